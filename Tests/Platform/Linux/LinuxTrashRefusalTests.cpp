#include "Tests/Platform/Linux/InterruptedFileManager.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

using namespace TrashTests;
using testing::IsEmpty;

class LinuxTrashRefusals : public InterruptedTrashTest {
protected:
    void expectTrashRefusesTheHomesTrash(FileErrorKind kind = FileErrorKind::noTrash)
    {
        m_tree.add("home/Caches/data size=1");
        expectRefused(item("home/Caches/data"), kind);
        EXPECT_THAT(m_trash.trashDirectories(m_tree.url("home/Caches/data")), IsEmpty());
    }
};

TEST_F(LinuxTrashRefusals, RefusesATrashThatIsALink)
{
    m_tree.add(R"(
        home/elsewhere/files/
        home/elsewhere/info/
        home/data/Trash -> ../elsewhere
    )");
    expectTrashRefusesTheHomesTrash();
    EXPECT_THAT(names(m_tree.path("home/elsewhere/files")), IsEmpty());
}

TEST_F(LinuxTrashRefusals, RefusesAFolderInTheTrashThatIsALink)
{
    m_tree.add(R"(
        home/elsewhere/
        home/data/Trash/files -> ../../elsewhere
        home/data/Trash/info/
    )");
    expectTrashRefusesTheHomesTrash();
    EXPECT_THAT(names(m_tree.path("home/elsewhere")), IsEmpty());
}

TEST_F(LinuxTrashRefusals, RefusesARecordFolderThatIsALink)
{
    m_tree.add(R"(
        home/elsewhere/
        home/data/Trash/info -> ../../elsewhere
        home/data/Trash/files/
    )");
    expectTrashRefusesTheHomesTrash();
    EXPECT_THAT(names(m_tree.path("home/elsewhere")), IsEmpty());
}

TEST_F(LinuxTrashRefusals, RefusesATrashThatIsNoFolder)
{
    m_tree.add("home/data/Trash size=1");
    expectTrashRefusesTheHomesTrash();
}

TEST_F(LinuxTrashRefusals, RefusesATrashThatOthersMayWriteTo)
{
    for (const auto* folder : {"home/data/Trash", "home/data/Trash/files", "home/data/Trash/info"}) {
        for (const mode_t mode : {0777U, 0770U, 0707U, 0720U, 01777U}) {
            m_tree.add(R"(
                home/data/Trash/files/
                home/data/Trash/info/
            )");
            ASSERT_EQ(chmod(m_tree.path(folder).c_str(), mode), 0);
            expectTrashRefusesTheHomesTrash();
            m_tree.remove("home/data/Trash");
            m_tree.remove("home/Caches/data");
        }
    }
}

TEST_F(LinuxTrashRefusals, AcceptsATrashThatOthersMayRead)
{
    m_tree.add(R"(
        home/data/Trash/ mode=755
        home/data/Trash/files/ mode=755
        home/data/Trash/info/ mode=755
        home/Caches/data size=1
    )");
    EXPECT_EQ(trashed("home/Caches/data").path(), filesFolder() + "/data");
    EXPECT_EQ(modeOf(filesFolder()), 0755U);
}

TEST_F(LinuxTrashRefusals, RefusesATrashOfAnotherUser)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can give a folder to another user";
    }
    for (const auto* folder : {"home/data/Trash", "home/data/Trash/files", "home/data/Trash/info"}) {
        m_tree.add(R"(
            home/data/Trash/files/
            home/data/Trash/info/
        )");
        ASSERT_EQ(chown(m_tree.path(folder).c_str(), 65534, 65534), 0);
        expectTrashRefusesTheHomesTrash();
        m_tree.remove("home/data/Trash");
        m_tree.remove("home/Caches/data");
    }
}

TEST_F(LinuxTrashRefusals, RefusesATrashThatLostItsSoundnessAfterItWasOpened)
{
    m_tree.add(R"(
        home/Caches/first size=1
        home/Caches/data size=1
    )");
    trashed("home/Caches/first");
    ASSERT_EQ(chmod(filesFolder().c_str(), 0777), 0);
    expectRefused(item("home/Caches/data"), FileErrorKind::noTrash);
}

TEST_F(LinuxTrashRefusals, RefusesWhileAnotherProcessKeepsTidying)
{
    m_tree.add("home/Caches/first size=1\nhome/Caches/second size=1");
    const auto first = trashed("home/Caches/first");
    const Platform::FileDescriptor tidying(open(infoFolder().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ASSERT_EQ(flock(tidying.get(), LOCK_EX), 0);
    EXPECT_FALSE(m_trash.trashItem(item("home/Caches/second")));
    EXPECT_TRUE(stands(m_tree.path("home/Caches/second")));
    EXPECT_FALSE(m_trash.restoreItem(restoring(first, "home/Caches/first")));
    EXPECT_TRUE(stands(first.path()));
}

TEST_F(LinuxTrashRefusals, RefusesAnItemThatChangedSinceItWasConfirmed)
{
    m_tree.add("home/Caches/data size=10");
    const auto anchor = item("home/Caches/data");
    write(m_tree.path("home/Caches/data"), "newer");
    expectRefused(anchor, FileErrorKind::itemChanged);
    EXPECT_THAT(names(filesFolder()), IsEmpty());
}

TEST_F(LinuxTrashRefusals, RefusesARootThatWasReplaced)
{
    m_tree.add(R"(
        home/Caches/data size=10
        home/other/data size=10
    )");
    const auto anchor = item("home/Caches/data");
    exchange("home/Caches", "home/other");
    expectRefused(anchor, FileErrorKind::itemChanged);
}

TEST_F(LinuxTrashRefusals, RefusesARootThatBecameALink)
{
    m_tree.add(R"(
        home/Caches/data size=10
        home/link -> Caches
    )");
    const auto anchor = item("home/Caches/data");
    exchange("home/Caches", "home/link");
    const auto result = m_trash.trashItem(anchor);
    ASSERT_FALSE(result);
    EXPECT_EQ(contentsOf(m_tree.path("home/link/data")).size(), 10U);
}

TEST_F(LinuxTrashRefusals, RefusesAnItemWhoseFolderBecameALink)
{
    m_tree.add(R"(
        home/Caches/app/data text="a"
        home/Caches/link -> app
    )");
    const auto anchor = item("home/Caches/app/data");
    exchange("home/Caches/app", "home/Caches/link");
    const auto result = m_trash.trashItem(anchor);
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().kind, FileErrorKind::notDirectory);
    EXPECT_EQ(contentsOf(m_tree.path("home/Caches/link/data")), "a");
}

TEST_F(LinuxTrashRefusals, RefusesAnItemWithALinkAmongTheFoldersAboveIt)
{
    m_tree.add(R"(
        home/Caches/app/sub/data text="a"
        home/Caches/link -> app
    )");
    const auto anchor = item("home/Caches/app/sub/data");
    exchange("home/Caches/app", "home/Caches/link");
    const auto result = m_trash.trashItem(anchor);
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().kind, FileErrorKind::tooManySymbolicLinks);
    EXPECT_EQ(contentsOf(m_tree.path("home/Caches/link/sub/data")), "a");
}

TEST_F(LinuxTrashRefusals, RefusesWhatLiesNotBelowTheRoot)
{
    m_tree.add(R"(
        home/Caches/data size=1
        home/data2 size=1
        home/CachesToo/data size=1
    )");
    for (const auto* path : {"home/data2", "home/CachesToo/data", "home/Caches"}) {
        auto anchor = item(path);
        anchor.root = root();
        expectRefused(anchor, FileErrorKind::itemChanged);
    }
}

TEST_F(LinuxTrashRefusals, PutsBackWhatSlippedInBetweenTheLookAndTheMove)
{
    m_tree.add(R"(
        home/Caches/data text="old"
        home/Caches/newer text="newer"
    )");
    const InterruptedFileManager files(m_posix, 1, [&] { exchange("home/Caches/data", "home/Caches/newer"); });
    Platform::LinuxTrash trash(files, m_tree.url("home/data/"));
    const auto result = trash.trashItem(item("home/Caches/data"));
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().kind, FileErrorKind::itemChanged);
    EXPECT_EQ(contentsOf(m_tree.path("home/Caches/data")), "newer");
    EXPECT_EQ(contentsOf(m_tree.path("home/Caches/newer")), "old");
    EXPECT_THAT(names(filesFolder()), IsEmpty());
    EXPECT_THAT(names(infoFolder()), IsEmpty());
}

TEST_F(LinuxTrashRefusals, LeavesWhatSlippedInInTheTrashWhereItsPlaceIsTakenAgain)
{
    m_tree.add(R"(
        home/Caches/data text="old"
        home/Caches/newer text="newer"
    )");
    const InterruptedFileManager second(m_posix, 2, [&] { write(m_tree.path("home/Caches/data"), "newest"); });
    const InterruptedFileManager first(second, 1, [&] { exchange("home/Caches/data", "home/Caches/newer"); });
    Platform::LinuxTrash trash(first, m_tree.url("home/data/"));
    const auto result = trash.trashItem(item("home/Caches/data"));
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().kind, FileErrorKind::movedUnconfirmed);
    EXPECT_EQ(contentsOf(m_tree.path("home/Caches/data")), "newest");
    EXPECT_EQ(contentsOf(filesFolder() + "/data"), "newer");
    EXPECT_TRUE(record("data").starts_with("[Trash Info]\nPath=" + m_tree.path("home/Caches/data") + "\n"));
}

TEST_F(LinuxTrashRefusals, MovesFromTheFolderThatWasOpenedThoughItsPathLeadsElsewhere)
{
    m_tree.add(R"(
        home/Caches/app/data text="confirmed"
        home/precious/data text="precious"
        home/link -> precious
    )");
    const InterruptedFileManager files(m_posix, 1, [&] { exchange("home/Caches/app", "home/link"); });
    Platform::LinuxTrash trash(files, m_tree.url("home/data/"));
    std::ignore = trash.trashItem(item("home/Caches/app/data"));
    EXPECT_EQ(contentsOf(m_tree.path("home/precious/data")), "precious");
    EXPECT_EQ(contentsOf(filesFolder() + "/data"), "confirmed");
}

TEST_F(LinuxTrashRefusals, RefusesAnItemThatItCannotLookAt)
{
    class Blind final : public TestSupport::ForwardingFileManager {
    public:
        using ForwardingFileManager::ForwardingFileManager;
        [[nodiscard]] std::expected<Platform::ResourceValues, FileError> resourceValues(
            const Platform::ItemReference& item) const override
        {
            return std::unexpected(FileError::fromSystemError(EIO, Platform::FileOperation::read, item.url().path()));
        }
    };
    m_tree.add("home/Caches/data size=1");
    const Blind files(m_posix);
    Platform::LinuxTrash trash(files, m_tree.url("home/data/"));
    const auto result = trash.trashItem(item("home/Caches/data"));
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().kind, FileErrorKind::inputOutput);
    EXPECT_EQ(result.error().operation, Platform::FileOperation::trash);
    EXPECT_TRUE(stands(m_tree.path("home/Caches/data")));
}

TEST_F(LinuxTrashRefusals, RefusesAnItemInAFolderWithoutWritePermission)
{
    m_tree.add(R"(
        home/Caches/locked/data size=1
        home/Caches/locked/ mode=555
    )");
    TestSupport::asOrdinaryUser(m_tree.root().path(), [&] {
        expectRefused(item("home/Caches/locked/data"), FileErrorKind::noPermission);
        EXPECT_THAT(names(filesFolder()), IsEmpty());
    });
}

TEST_F(LinuxTrashRefusals, RefusesAnImmutableItem)
{
    m_tree.add("home/Caches/data size=1");
    const auto path = m_tree.path("home/Caches/data");
    const Platform::FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    int flags = 0;
    int immutable = FS_IMMUTABLE_FL;
    if (ioctl(file.get(), FS_IOC_GETFLAGS, &flags) != 0 || ioctl(file.get(), FS_IOC_SETFLAGS, &immutable) != 0) {
        GTEST_SKIP() << "this user or file system cannot make a file immutable";
    }
    expectRefused(item("home/Caches/data"), FileErrorKind::noPermission);
    const auto removal = m_trash.removeItem(item("home/Caches/data"));
    EXPECT_FALSE(removal);
    EXPECT_TRUE(stands(path));
    ASSERT_EQ(ioctl(file.get(), FS_IOC_SETFLAGS, &flags), 0);
    EXPECT_THAT(names(infoFolder()), IsEmpty());
}

} // namespace
