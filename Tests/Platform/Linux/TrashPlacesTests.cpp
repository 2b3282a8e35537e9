#include "Platform/Linux/TrashPlaces.h"

#include "Platform/Files/OpenFolder.h"
#include "Tests/Platform/Linux/TrashFixture.h"
#include "Tests/Support/FailingSystemCall.h"

#include <cerrno>
#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

using namespace TrashTests;
using testing::ElementsAre;
using testing::IsEmpty;

/// Asks for the places on a mount that a table only says is there: its top is a folder of the test.
class TrashPlaces : public testing::Test {
protected:
    std::vector<std::string> places(
        std::string_view type, std::string_view root = "/", std::string_view options = "rw", std::string_view path = {})
    {
        const Platform::FolderHandle folder(*Platform::openFolder(m_top.path().c_str()), m_top);
        write(m_tree.path("mountinfo"),
            fmt::format("{} 1 254:0 {} {} {} - {} device rw\n", folder.status().mountNumber, root,
                path.empty() ? m_top.path() : path, options, type));
        const auto table = Platform::MountTable::read(m_tree.path("mountinfo").c_str(), "/dev/null");
        EXPECT_TRUE(table);
        std::vector<std::string> found;
        for (const auto& place : Platform::volumeTrashPlaces(folder, *table)) {
            EXPECT_EQ(place.topFolder, m_top);
            found.push_back(place.trash.path());
        }
        return found;
    }

    TemporaryTree m_tree{"top/"};
    FileURL m_top = m_tree.url("top/");
    std::string m_own = m_tree.path("top") + fmt::format("/.Trash-{}", geteuid());
    std::string m_inShared = m_tree.path("top") + fmt::format("/.Trash/{}", geteuid());
};

TEST_F(TrashPlaces, IsTheUsersOwnFolderOnAnOrdinaryVolume)
{
    EXPECT_THAT(places("ext4"), ElementsAre(m_own));
    EXPECT_THAT(places("fuseblk"), ElementsAre(m_own));
    EXPECT_THAT(places("tmpfs"), ElementsAre(m_own));
}

TEST_F(TrashPlaces, IsFirstInTheSharedFolderThatIsSticky)
{
    m_tree.add("top/.Trash/ mode=1777");
    EXPECT_THAT(places("ext4"), ElementsAre(m_inShared, m_own));
    ASSERT_EQ(chmod(m_tree.path("top/.Trash").c_str(), 0777), 0);
    EXPECT_THAT(places("ext4"), ElementsAre(m_own));
}

TEST_F(TrashPlaces, IsNowhereOnAVolumeOfAnotherMachineOrProgram)
{
    for (const auto* type : {"nfs", "nfs4", "cifs", "smb3", "smbfs", "9p", "ceph", "afs", "autofs", "ecryptfs", "davfs",
             "fuse", "fuse.sshfs", "fuse.gvfsd-fuse"}) {
        EXPECT_THAT(places(type), IsEmpty()) << type;
    }
}

TEST_F(TrashPlaces, IsNowhereOnABindMount)
{
    EXPECT_THAT(places("ext4", "/home/me/docs"), IsEmpty());
    EXPECT_THAT(places("btrfs", "/@home/me/docs"), IsEmpty());
}

TEST_F(TrashPlaces, IsNowhereOnTheSystemsOwnVolume)
{
    EXPECT_THAT(places("ext4", "/", "rw", "/"), IsEmpty());
}

TEST_F(TrashPlaces, IsNowhereWhereTheMountSaysSo)
{
    EXPECT_THAT(places("ext4", "/", "rw,x-gvfs-notrash"), IsEmpty());
}

TEST_F(TrashPlaces, IsNowhereOnAMountThatTheTableDoesNotKnow)
{
    const Platform::FolderHandle folder(*Platform::openFolder(m_top.path().c_str()), m_top);
    EXPECT_THAT(Platform::volumeTrashPlaces(folder, Platform::MountTable()), IsEmpty());
}

TEST_F(TrashPlaces, IsBelowTheFolderForApplicationDataAtHome)
{
    EXPECT_EQ(Platform::homeTrashURL(FileURL::folder("/home/me/.local/share")),
        FileURL::folder("/home/me/.local/share/Trash"));
}

TEST_F(TrashPlaces, IsNotInASharedFolderThatIsALinkOrAFile)
{
    m_tree.add(R"(
        top/sticky/ mode=1777
        top/.Trash -> sticky
    )");
    EXPECT_THAT(places("ext4"), ElementsAre(m_own));
    m_tree.remove("top/.Trash");
    m_tree.add("top/.Trash mode=1777");
    EXPECT_THAT(places("ext4"), ElementsAre(m_own));
}

/// The looks at the top of a mount, by its path.
constexpr TestSupport::SystemCalls kLooksAtPaths{
    .number = SYS_statx, .argument = 0, .mask = ~0U, .value = static_cast<std::uint32_t>(AT_FDCWD)};

TEST_F(TrashPlaces, IsTheUsersOwnFolderOnASubvolume)
{
    const auto sayTop = [](const TestSupport::PendingSystemCall& call) -> std::optional<std::int64_t> {
        auto* const found = call.pointer<struct statx>(4);
        const int result = statx(AT_FDCWD, call.pointer<const char>(1), static_cast<int>(call.arguments[2]),
            static_cast<unsigned>(call.arguments[3]), found);
        found->stx_ino = 256;
        return result;
    };
    TestSupport::answerSystemCalls(kLooksAtPaths, sayTop, [&] {
        EXPECT_THAT(places("btrfs", "/@home"), ElementsAre(m_own));
        EXPECT_THAT(places("ext4", "/@home"), IsEmpty());
    });
}

TEST_F(TrashPlaces, IsNowhereOnWhatDoesNotTellThatItIsASubvolume)
{
    TestSupport::answerSystemCalls(
        kLooksAtPaths, TestSupport::failingOnce(EACCES), [&] { EXPECT_THAT(places("btrfs", "/@home"), IsEmpty()); });
}

} // namespace
