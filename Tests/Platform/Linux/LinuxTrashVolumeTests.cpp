#include "Tests/Platform/Linux/TrashFixture.h"
#include "Tests/Support/FailingSystemCall.h"

#include <cerrno>
#include <fmt/format.h>
#include <sys/mount.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

using namespace TrashTests;
using testing::ElementsAre;
using testing::IsEmpty;

/// A volume of its own in the home, mounted on `home/volume` for one part of a test.
class LinuxTrashVolumes : public TrashTest {
protected:
    static void inNamespace(const std::function<void()>& part) { TestSupport::inMountNamespace(part); }

    void mountVolume(std::string_view options = "mode=700")
    {
        TestSupport::mountTemporaryFileSystem(m_tree.path("home/volume"), options);
        makeFolder("cache/sub", 0700);
        write(m_tree.path("home/volume/cache/sub/data"), "bytes");
        write(m_tree.path("home/volume/cache/other"), "b");
    }

    /// The tree itself stays on its own volume.
    void makeFolder(std::string_view path, mode_t mode) const
    {
        const auto folder = m_tree.path("home/volume/") + "/" + std::string(path);
        ASSERT_TRUE(std::filesystem::create_directories(folder));
        ASSERT_EQ(chmod(folder.c_str(), mode), 0);
    }

    FileURL trashedOnVolume(std::string_view path = "home/volume/cache/sub/data")
    {
        return trashed(path, "home/volume/cache/");
    }

    [[nodiscard]] std::string own() const
    {
        return m_tree.path("home/volume/") + "/.Trash-" + fmt::format("{}", geteuid());
    }
    [[nodiscard]] std::string shared() const { return m_tree.path("home/volume/.Trash"); }
    [[nodiscard]] std::string ownInShared() const { return shared() + "/" + fmt::format("{}", geteuid()); }

    void expectRefusedOnVolume(FileErrorKind kind, std::string_view path = "home/volume/cache/sub/data")
    {
        auto anchor = item(path, "home/volume/cache/");
        expectRefused(anchor, kind);
        EXPECT_THAT(names(filesFolder()), IsEmpty());
    }

    void SetUp() override { m_tree.add("home/volume/"); }
};

TEST_F(LinuxTrashVolumes, MakesTheUsersOwnTrashOnAVolumeWithARelativeRecord)
{
    inNamespace([&] {
        mountVolume();
        const auto place = trashedOnVolume();
        EXPECT_EQ(place.path(), own() + "/files/data");
        EXPECT_TRUE(contentsOf(own() + "/info/data.trashinfo").starts_with("[Trash Info]\nPath=cache/sub/data\n"));
        EXPECT_EQ(modeOf(own()), 0700U);
        EXPECT_EQ(modeOf(own() + "/files"), 0700U);
        EXPECT_FALSE(stands(trashFolder()));
        EXPECT_THAT(m_trash.trashDirectories(m_tree.url("home/volume/cache/sub/data")),
            ElementsAre(FileURL::folder(own() + "/files")));
        const auto restored = m_trash.restoreItem(restoring(place, "home/volume/cache/sub/data", "home/volume/cache/"));
        EXPECT_TRUE(restored) << restored.error().localizedDescription();
        EXPECT_EQ(contentsOf(m_tree.path("home/volume/cache/sub/data")), "bytes");
        EXPECT_THAT(names(own() + "/info"), IsEmpty());
        EXPECT_TRUE(m_trash.settle());
    });
}

TEST_F(LinuxTrashVolumes, NamesTheVolumesTrashBeforeTheHomes)
{
    inNamespace([&] {
        m_tree.add("home/Caches/data size=1");
        trashed("home/Caches/data");
        mountVolume();
        trashedOnVolume();
        EXPECT_THAT(m_trash.trashDirectories(m_tree.url("home/volume/cache/x")),
            ElementsAre(FileURL::folder(own() + "/files"), FileURL::folder(filesFolder())));
    });
}

TEST_F(LinuxTrashVolumes, UsesTheSharedTrashThatIsSticky)
{
    inNamespace([&] {
        mountVolume();
        makeFolder(".Trash", 01777);
        EXPECT_EQ(trashedOnVolume().path(), ownInShared() + "/files/data");
        EXPECT_TRUE(
            contentsOf(ownInShared() + "/info/data.trashinfo").starts_with("[Trash Info]\nPath=cache/sub/data\n"));
        EXPECT_FALSE(stands(own()));
    });
}

TEST_F(LinuxTrashVolumes, LeavesASharedTrashAloneThatIsNotSticky)
{
    inNamespace([&] {
        mountVolume();
        makeFolder(".Trash", 0777);
        EXPECT_EQ(trashedOnVolume().path(), own() + "/files/data");
        EXPECT_THAT(names(shared()), IsEmpty());
    });
}

TEST_F(LinuxTrashVolumes, LeavesASharedTrashAloneThatIsALinkOrAFile)
{
    inNamespace([&] {
        mountVolume();
        makeFolder("sticky", 01777);
        std::filesystem::create_symlink("sticky", shared());
        EXPECT_EQ(trashedOnVolume().path(), own() + "/files/data");
        EXPECT_THAT(names(m_tree.path("home/volume/sticky")), IsEmpty());
        std::filesystem::remove(shared());
        write(shared(), "");
        ASSERT_EQ(chmod(shared().c_str(), 01777), 0);
        EXPECT_EQ(trashedOnVolume("home/volume/cache/other").path(), own() + "/files/other");
    });
}

TEST_F(LinuxTrashVolumes, FallsBackWhereThePlaceInTheSharedTrashIsUnsafe)
{
    inNamespace([&] {
        mountVolume();
        makeFolder("elsewhere", 0700);
        makeFolder(".Trash", 01777);
        std::filesystem::create_symlink("../elsewhere", ownInShared());
        EXPECT_EQ(trashedOnVolume().path(), own() + "/files/data");
        EXPECT_THAT(names(m_tree.path("home/volume/elsewhere")), IsEmpty());
        std::filesystem::remove(ownInShared());
        std::filesystem::create_directory(ownInShared());
        ASSERT_EQ(chmod(ownInShared().c_str(), 0777), 0);
        EXPECT_EQ(trashedOnVolume("home/volume/cache/other").path(), own() + "/files/other");
    });
}

TEST_F(LinuxTrashVolumes, RefusesWhereTheUsersOwnTrashIsUnsafe)
{
    inNamespace([&] {
        mountVolume();
        makeFolder("elsewhere", 0700);
        std::filesystem::create_symlink("elsewhere", own());
        expectRefusedOnVolume(FileErrorKind::noTrash);
        EXPECT_THAT(names(m_tree.path("home/volume/elsewhere")), IsEmpty());
        std::filesystem::remove(own());
        std::filesystem::create_directory(own());
        ASSERT_EQ(chmod(own().c_str(), 0777), 0);
        expectRefusedOnVolume(FileErrorKind::noTrash);
    });
}

TEST_F(LinuxTrashVolumes, RefusesWhatLiesInABindMount)
{
    m_tree.add(R"(home/real/cache/data text="p")");
    inNamespace([&] {
        TestSupport::bindMount(m_tree.path("home/real"), m_tree.path("home/volume"));
        expectRefused(item("home/volume/cache/data", "home/volume/cache/"), FileErrorKind::noTrash);
        EXPECT_THAT(names(m_tree.path("home/real")), ElementsAre("cache"));
    });
}

TEST_F(LinuxTrashVolumes, RefusesOnAReadOnlyVolume)
{
    inNamespace([&] {
        mountVolume();
        TestSupport::makeReadOnly(m_tree.path("home/volume"));
        expectRefusedOnVolume(FileErrorKind::readOnlyVolume);
    });
}

TEST_F(LinuxTrashVolumes, RefusesTheHomesTrashOnAnotherVolume)
{
    m_tree.add(R"(
        home/data/Trash/
        home/Caches/data size=1
    )");
    inNamespace([&] {
        TestSupport::mountTemporaryFileSystem(trashFolder());
        const auto result = m_trash.trashItem(item("home/Caches/data"));
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().kind, FileErrorKind::noTrash);
        EXPECT_TRUE(stands(m_tree.path("home/Caches/data")));
        EXPECT_THAT(names(trashFolder()), IsEmpty());
    });
}

TEST_F(LinuxTrashVolumes, RefusesAFolderOfTheTrashOnAnotherVolume)
{
    m_tree.add(R"(
        home/data/Trash/files/
        home/data/Trash/info/
        home/Caches/data size=1
    )");
    for (const auto& folder : {filesFolder(), infoFolder()}) {
        inNamespace([&] {
            TestSupport::mountTemporaryFileSystem(folder, "mode=700");
            expectRefused(item("home/Caches/data"), FileErrorKind::noTrash);
        });
    }
}

TEST_F(LinuxTrashVolumes, RefusesAMountPoint)
{
    m_tree.add("home/Caches/mounted/");
    inNamespace([&] {
        TestSupport::mountTemporaryFileSystem(m_tree.path("home/Caches/mounted"));
        expectRefused(item("home/Caches/mounted/"), FileErrorKind::crossesVolume);
    });
}

TEST_F(LinuxTrashVolumes, RefusesAFolderWithAMountInside)
{
    m_tree.add(R"(
        home/Caches/app/sub/mounted/
        home/elsewhere/
        home/Caches/apple size=1
    )");
    inNamespace([&] {
        TestSupport::bindMount(m_tree.path("home/elsewhere"), m_tree.path("home/Caches/app/sub/mounted"));
        expectRefused(item("home/Caches/app/"), FileErrorKind::containsMount);
        EXPECT_EQ(trashed("home/Caches/apple").path(), filesFolder() + "/apple");
    });
}

TEST_F(LinuxTrashVolumes, NoticesAMountThatCameAfterTheFirstMove)
{
    m_tree.add(R"(
        home/Caches/first/x size=1
        home/Caches/app/sub/mounted/
    )");
    inNamespace([&] {
        trashed("home/Caches/first/");
        TestSupport::mountTemporaryFileSystem(m_tree.path("home/Caches/app/sub/mounted"));
        expectRefused(item("home/Caches/app/"), FileErrorKind::containsMount);
        ASSERT_EQ(umount(m_tree.path("home/Caches/app/sub/mounted").c_str()), 0);
        EXPECT_EQ(trashed("home/Caches/app/").path(), filesFolder() + "/app");
    });
}

TEST_F(LinuxTrashVolumes, FindsAMountInsideThoughThePathOfTheRootLeadsThroughALink)
{
    m_tree.add(R"(
        home/real/Caches/app/mounted/
        home/link -> real
    )");
    inNamespace([&] {
        TestSupport::mountTemporaryFileSystem(m_tree.path("home/real/Caches/app/mounted"));
        expectRefused(item("home/link/Caches/app/", "home/link/Caches/"), FileErrorKind::containsMount);
    });
}

TEST_F(LinuxTrashVolumes, RefusesOnAVolumeThatItsPathDoesNotName)
{
    m_tree.add("home/link -> volume");
    inNamespace([&] {
        mountVolume();
        expectRefused(item("home/link/cache/other", "home/link/cache/"), FileErrorKind::crossesVolume);
    });
}

TEST_F(LinuxTrashVolumes, RefusesInWordsWhenTheVolumeIsFull)
{
    inNamespace([&] {
        mountVolume("size=64k,mode=700");
        write(m_tree.path("home/volume/fill"), std::string(256 * 1024, 'x'));
        const auto result = m_trash.trashItem(item("home/volume/cache/sub/data", "home/volume/cache/"));
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().kind, FileErrorKind::outOfSpace) << result.error().localizedDescription();
        EXPECT_EQ(contentsOf(m_tree.path("home/volume/cache/sub/data")), "bytes");
        EXPECT_THAT(names(own() + "/info"), IsEmpty());
    });
}

TEST_F(LinuxTrashVolumes, NamesOnlyTheHomesTrashOnTheVolumeOfTheHome)
{
    inNamespace([&] {
        TestSupport::mountTemporaryFileSystem(m_tree.path("home"), "mode=700");
        for (const auto& folder : {std::string("Caches"), std::string("data"),
                 fmt::format(".Trash-{}/files", geteuid()), fmt::format(".Trash-{}/info", geteuid())}) {
            ASSERT_TRUE(std::filesystem::create_directories(m_tree.path("home") + "/" + folder));
        }
        write(m_tree.path("home/Caches/data"), "bytes");
        EXPECT_EQ(trashed("home/Caches/data").path(), filesFolder() + "/data");
        EXPECT_THAT(
            m_trash.trashDirectories(m_tree.url("home/Caches/data")), ElementsAre(FileURL::folder(filesFolder())));
    });
}

TEST_F(LinuxTrashVolumes, RefusesATrashOnAVolumeThatCoveredTheItemsMeanwhile)
{
    inNamespace([&] {
        mountVolume();
        auto anchor = item("home/volume/cache/other", "home/volume/cache/");
        anchor.isConfirmed = [&, isItem = anchor.isConfirmed](const Platform::FingerprintReadings& found) {
            TestSupport::mountTemporaryFileSystem(m_tree.path("home/volume"), "mode=700");
            return isItem(found);
        };
        const auto result = m_trash.trashItem(anchor);
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().kind, FileErrorKind::noTrash);
        ASSERT_EQ(umount2(m_tree.path("home/volume").c_str(), MNT_DETACH), 0);
        EXPECT_EQ(contentsOf(m_tree.path("home/volume/cache/other")), "b");
    });
}

TEST_F(LinuxTrashVolumes, RestoresOnlyFromTheTrashThatIsNamed)
{
    inNamespace([&] {
        mountVolume();
        auto anchor = restoring(trashedOnVolume(), "home/volume/cache/sub/data", "home/volume/cache/");
        makeFolder("other/files", 0700);
        anchor.trashedItem = m_tree.url("home/volume/other/files/data");
        const auto restored = m_trash.restoreItem(anchor);
        ASSERT_FALSE(restored);
        EXPECT_EQ(restored.error().kind, FileErrorKind::noTrash);
        EXPECT_TRUE(stands(own() + "/files/data"));
    });
}

TEST_F(LinuxTrashVolumes, RefusesWhereTheMountsAreNotKnown)
{
    inNamespace([&] {
        mountVolume();
        const auto hideMounts = [](const TestSupport::PendingSystemCall& call) {
            return call.text(1) == Platform::MountTable::kOfThisProcess ? std::optional<std::int64_t>(-EMFILE)
                                                                        : std::nullopt;
        };
        TestSupport::answerSystemCalls({.number = SYS_openat}, hideMounts, [&] {
            expectRefusedOnVolume(FileErrorKind::noTrash);
            expectRefused(item("home/volume/cache/sub/", "home/volume/cache/"), FileErrorKind::tooManyOpenFiles);
        });
    });
}

} // namespace
