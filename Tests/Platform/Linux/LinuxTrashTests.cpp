#include "Tests/Platform/Linux/TrashFixture.h"
#include "Tests/Support/FailingSystemCall.h"

#include <atomic>
#include <cerrno>
#include <fmt/format.h>
#include <set>
#include <sys/file.h>
#include <sys/syscall.h>
#include <thread>

namespace {

using namespace TrashTests;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using LinuxTrash = TrashTest;

TEST_F(LinuxTrash, MovesAFileAndWritesItsRecord)
{
    m_tree.add(R"(home/Caches/app/data text="bytes")");
    const auto place = trashed("home/Caches/app/data");
    EXPECT_EQ(place.path(), filesFolder() + "/data");
    EXPECT_EQ(contentsOf(place.path()), "bytes");
    EXPECT_FALSE(stands(m_tree.path("home/Caches/app/data")));
    EXPECT_TRUE(
        record("data").starts_with("[Trash Info]\nPath=" + m_tree.path("home/Caches/app/data") + "\nDeletionDate=2"))
        << record("data");
}

TEST_F(LinuxTrash, MovesAFolderWithAllThatItHolds)
{
    m_tree.add(R"(
        home/Caches/app/sub/data text="bytes"
        home/Caches/app/link -> sub
    )");
    const auto place = trashed("home/Caches/app/");
    EXPECT_TRUE(place.hasDirectoryPath());
    EXPECT_EQ(contentsOf(place.path() + "/sub/data"), "bytes");
    EXPECT_THAT(names(m_tree.path("home/Caches")), IsEmpty());
}

TEST_F(LinuxTrash, MovesALinkAndNotWhatItLeadsTo)
{
    m_tree.add(R"(
        home/precious text="p"
        home/Caches/link -> ../precious
        home/Caches/dangling -> nowhere
    )");
    const auto place = trashed("home/Caches/link");
    EXPECT_TRUE(std::filesystem::is_symlink(place.path()));
    EXPECT_TRUE(std::filesystem::is_symlink(trashed("home/Caches/dangling").path()));
    EXPECT_EQ(contentsOf(m_tree.path("home/precious")), "p");
}

TEST_F(LinuxTrash, MakesTheHomesTrashForItsUserAlone)
{
    m_tree.add("home/Caches/data size=1");
    const auto mask = umask(0);
    trashed("home/Caches/data");
    umask(mask);
    for (const auto& folder : {trashFolder(), filesFolder(), infoFolder()}) {
        EXPECT_EQ(modeOf(folder), 0700U) << folder;
    }
    EXPECT_EQ(modeOf(infoFolder() + "/data.trashinfo"), 0600U);
}

TEST_F(LinuxTrash, MakesTheFolderForApplicationDataThatIsMissing)
{
    m_tree.add("home/Caches/data size=1");
    Platform::LinuxTrash trash(m_posix, m_tree.url("home/new/share/"));
    ASSERT_TRUE(trash.trashItem(item("home/Caches/data")));
    EXPECT_THAT(names(m_tree.path("home/new/share/Trash/files")), ElementsAre("data"));
    EXPECT_EQ(modeOf(m_tree.path("home/new")), 0700U);
}

TEST_F(LinuxTrash, KeepsEachOfManyItemsOfOneName)
{
    std::set<std::string> places;
    for (int number = 0; number < 40; ++number) {
        write(m_tree.path("home/Caches/data.bin"), std::to_string(number));
        const auto place = trashed("home/Caches/data.bin");
        EXPECT_EQ(contentsOf(place.path()), std::to_string(number));
        EXPECT_EQ(place.pathExtension(), "bin");
        places.insert(place.path());
    }
    EXPECT_EQ(places.size(), 40U);
    EXPECT_THAT(names(infoFolder()), SizeIs(40));
    EXPECT_TRUE(places.contains(filesFolder() + "/data.2.bin"));
}

TEST_F(LinuxTrash, NeverReplacesAnItemThatLiesInTheTrashWithoutARecord)
{
    m_tree.add(R"(
        home/data/Trash/files/data text="orphan"
        home/data/Trash/files/data.2/
        home/data/Trash/files/data.3 -> nowhere
        home/data/Trash/info/
        home/Caches/data text="new"
    )");
    EXPECT_EQ(trashed("home/Caches/data").path(), filesFolder() + "/data.4");
    EXPECT_EQ(contentsOf(filesFolder() + "/data"), "orphan");
    EXPECT_THAT(names(filesFolder() + "/data.2"), IsEmpty());
    EXPECT_TRUE(std::filesystem::is_symlink(filesFolder() + "/data.3"));
    EXPECT_THAT(names(infoFolder()), ElementsAre("data.4.trashinfo"));
}

TEST_F(LinuxTrash, TakesNoNameWhoseRecordIsThere)
{
    m_tree.add(R"(
        home/data/Trash/files/
        home/data/Trash/info/data.trashinfo text="[Trash Info]\nPath=/x\n"
        home/Caches/data text="new"
    )");
    EXPECT_EQ(trashed("home/Caches/data").path(), filesFolder() + "/data.2");
    EXPECT_EQ(record("data"), "[Trash Info]\nPath=/x\n");
}

TEST_F(LinuxTrash, MovesAndRestoresHostileNames)
{
    for (const auto& name : {std::string("new\nline"), std::string("100% %41"), std::string("\xFF\xFE"),
             std::string("-rf"), std::string(" "), std::string("\xE2\x80\xAE.txt"), std::string(255, 'x'),
             std::string(251, '\xC3') + ".txt", std::string("a;b?c#d"), std::string("...")}) {
        const auto path = m_tree.path("home/Caches") + "/" + name;
        write(path, "bytes of " + name);
        const auto place = trashed("home/Caches/" + name);
        EXPECT_FALSE(stands(path));
        const auto restored = m_trash.restoreItem(restoring(place, "home/Caches/" + name));
        ASSERT_TRUE(restored) << restored.error().localizedDescription();
        EXPECT_EQ(contentsOf(path), "bytes of " + name);
        EXPECT_THAT(names(infoFolder()), IsEmpty());
    }
}

TEST_F(LinuxTrash, RestoresAFolderAndTakesItsRecordAway)
{
    m_tree.add(R"(home/Caches/app/sub/data text="bytes")");
    const auto place = trashed("home/Caches/app/");
    ASSERT_TRUE(m_trash.restoreItem(restoring(place, "home/Caches/app/")));
    EXPECT_EQ(contentsOf(m_tree.path("home/Caches/app/sub/data")), "bytes");
    EXPECT_THAT(names(filesFolder()), IsEmpty());
    EXPECT_THAT(names(infoFolder()), IsEmpty());
}

TEST_F(LinuxTrash, RestoresWithANewTrashObject)
{
    m_tree.add("home/Caches/data size=5");
    const auto place = trashed("home/Caches/data");
    Platform::LinuxTrash later(m_posix, m_tree.url("home/data/"));
    EXPECT_TRUE(later.restoreItem(restoring(place, "home/Caches/data")));
    EXPECT_TRUE(stands(m_tree.path("home/Caches/data")));
}

TEST_F(LinuxTrash, RemovesAFolderForGoodAndNothingThatItsLinksLeadTo)
{
    m_tree.add(R"(
        home/precious/file text="p"
        home/Caches/app/sub/data size=10
        home/Caches/app/link -> ../../precious
        home/Caches/app/sub/up -> ../..
    )");
    ASSERT_TRUE(m_trash.removeItem(item("home/Caches/app/")));
    EXPECT_THAT(names(m_tree.path("home/Caches")), IsEmpty());
    EXPECT_THAT(names(filesFolder()), IsEmpty());
    EXPECT_THAT(names(infoFolder()), IsEmpty());
    EXPECT_EQ(contentsOf(m_tree.path("home/precious/file")), "p");
}

TEST_F(LinuxTrash, PutsBackWhatCannotBeRemovedWhole)
{
    m_tree.add(R"(
        home/Caches/app/sub/locked/file size=1
        home/Caches/app/sub/locked/ mode=555
        home/Caches/app/free size=1
    )");
    TestSupport::asOrdinaryUser(m_tree.root().path(), [&] {
        const auto result = m_trash.removeItem(item("home/Caches/app/"));
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().kind, FileErrorKind::noPermission);
        EXPECT_EQ(result.error().operation, Platform::FileOperation::remove);
        EXPECT_TRUE(stands(m_tree.path("home/Caches/app/sub/locked/file")));
        EXPECT_THAT(names(filesFolder()), IsEmpty());
        EXPECT_THAT(names(infoFolder()), IsEmpty());
    });
}

TEST_F(LinuxTrash, SettlesOnceAndWithNothingToSettle)
{
    EXPECT_TRUE(m_trash.settle());
    m_tree.add("home/Caches/data size=1");
    trashed("home/Caches/data");
    EXPECT_TRUE(m_trash.settle());
    EXPECT_TRUE(m_trash.settle());
}

TEST_F(LinuxTrash, SaysWhenMovesCannotBeMadeDurable)
{
    m_tree.add("home/Caches/data size=1");
    TestSupport::inChildProcess([&] {
        TestSupport::failSystemCall({.number = SYS_syncfs}, EIO);
        trashed("home/Caches/data");
        EXPECT_FALSE(m_trash.settle());
        EXPECT_TRUE(m_trash.settle());
    });
}

TEST_F(LinuxTrash, RefusesAFolderWhosePlaceIsNotKnown)
{
    m_tree.add("home/Caches/app/data size=1");
    const auto hideOpenFolders = [](const TestSupport::PendingSystemCall& call) {
        return call.text(0).starts_with("/proc/self/fd/") ? std::optional<std::int64_t>(-EACCES) : std::nullopt;
    };
    TestSupport::answerSystemCalls({.number = SYS_readlink}, hideOpenFolders,
        [&] { expectRefused(item("home/Caches/app/"), FileErrorKind::noPermission); });
}

TEST_F(LinuxTrash, NeitherMovesNorRestoresWhereTheVolumeKnowsNoLocks)
{
    constexpr TestSupport::SystemCalls sharedLocks{
        .number = SYS_flock, .argument = 1, .mask = LOCK_SH, .value = LOCK_SH};
    m_tree.add("home/Caches/moved size=1\nhome/Caches/kept size=1");
    const auto place = trashed("home/Caches/moved");
    TestSupport::inChildProcess([&] {
        TestSupport::failSystemCall(sharedLocks, EMFILE);
        expectRefused(item("home/Caches/kept"), FileErrorKind::tooManyOpenFiles);
        const auto restored = m_trash.restoreItem(restoring(place, "home/Caches/moved"));
        ASSERT_FALSE(restored);
        EXPECT_EQ(restored.error().kind, FileErrorKind::tooManyOpenFiles);
    });
    EXPECT_TRUE(stands(place.path()));
}

TEST_F(LinuxTrash, NamesAFileAsAFileAndAFolderAsAFolder)
{
    m_tree.add("home/Caches/data size=1\nhome/Caches/folder/");
    EXPECT_FALSE(trashed("home/Caches/data").hasDirectoryPath());
    EXPECT_TRUE(trashed("home/Caches/folder/").hasDirectoryPath());
}

TEST_F(LinuxTrash, NamesTheHomesTrashOnlyOnceItIsThere)
{
    const auto url = m_tree.url("home/Caches/data");
    EXPECT_THAT(m_trash.trashDirectories(url), IsEmpty());
    EXPECT_FALSE(stands(trashFolder()));
    m_tree.add("home/Caches/data size=1");
    trashed("home/Caches/data");
    EXPECT_THAT(m_trash.trashDirectories(url), ElementsAre(FileURL::folder(filesFolder())));
}

TEST_F(LinuxTrash, UsesTheTrashThatTookThePlaceOfAnEmptiedOne)
{
    m_tree.add(R"(
        home/Caches/a size=1
        home/Caches/b size=1
    )");
    trashed("home/Caches/a");
    std::filesystem::rename(trashFolder(), m_tree.path("home/old"));
    EXPECT_EQ(trashed("home/Caches/b").path(), filesFolder() + "/b");
    EXPECT_THAT(names(filesFolder()), ElementsAre("b"));
    EXPECT_THAT(names(m_tree.path("home/old/files")), ElementsAre("a"));
}

TEST_F(LinuxTrash, MovesFromManyThreadsAtOnce)
{
    constexpr int kThreads = 4;
    constexpr int kItems = 50;
    for (int number = 0; number < kThreads * kItems; ++number) {
        std::filesystem::create_directory(m_tree.path("home/Caches/") + "/" + std::to_string(number));
        write(m_tree.path("home/Caches/" + std::to_string(number)) + "/same", std::to_string(number));
    }
    std::vector<Platform::ItemAnchor> anchors;
    for (int number = 0; number < kThreads * kItems; ++number) {
        anchors.push_back(item("home/Caches/" + std::to_string(number) + "/same"));
    }
    std::atomic<int> moved = 0;
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < kThreads; ++thread) {
            threads.emplace_back([&, thread] {
                for (int number = 0; number < kItems; ++number) {
                    moved += m_trash.trashItem(anchors[static_cast<std::size_t>(thread * kItems + number)]) ? 1 : 0;
                }
            });
        }
    }
    EXPECT_EQ(moved, kThreads * kItems);
    std::set<std::string> found;
    for (const auto& name : names(filesFolder())) {
        found.insert(contentsOf(filesFolder() + "/" + name));
        EXPECT_NE(record(name), "");
    }
    EXPECT_THAT(found, SizeIs(kThreads * kItems));
}

TEST_F(LinuxTrash, LetsOneOfTwoProcessesHaveTheItem)
{
    m_tree.add("home/Caches/data size=1");
    const auto anchor = item("home/Caches/data");
    Platform::LinuxTrash other(m_posix, m_tree.url("home/data/"));
    ASSERT_TRUE(other.trashItem(anchor));
    const auto result = m_trash.trashItem(anchor);
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().kind, FileErrorKind::noSuchFile);
    EXPECT_THAT(names(filesFolder()), ElementsAre("data"));
    EXPECT_THAT(names(infoFolder()), SizeIs(1));
}

TEST_F(LinuxTrash, FindsAFreeNameWhereManyNumbersAreTaken)
{
    m_tree.add(R"(
        home/data/Trash/files/
        home/data/Trash/info/data.trashinfo
        home/Caches/data text="new"
    )");
    for (int number = 2; number <= 70; ++number) {
        write(fmt::format("{}/data.{}.trashinfo", infoFolder(), number), "");
    }
    EXPECT_EQ(contentsOf(trashed("home/Caches/data").path()), "new");
}

} // namespace
