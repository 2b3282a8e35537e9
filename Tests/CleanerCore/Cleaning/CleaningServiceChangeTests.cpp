#include "Tests/CleanerCore/Cleaning/CleaningFixture.h"

#include <fcntl.h>
#include <fstream>
#include <sys/stat.h>

namespace CleaningTests {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// With the desktop's Trash: what became of items between the scan and the clean.
class CleaningServiceChangeTest : public CleaningTest {
protected:
    /// Gives the file the times of another moment, to the nanosecond.
    static void setTimes(const std::string& path, const struct stat& times)
    {
        const struct timespec both[] = {times.st_atim, times.st_mtim};
        ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), both, AT_SYMLINK_NOFOLLOW), 0);
    }
    [[nodiscard]] static struct stat statusOf(const std::string& path)
    {
        struct stat status{};
        EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
        return status;
    }

    /// The one candidate is refused for this reason, and nothing moved.
    void expectLeftAlone(const std::vector<CleanupCandidate>& candidates, Kind kind, std::string_view name)
    {
        const auto before = names(item(""));
        expectRefused(clean(candidates), kind, item(name));
        EXPECT_EQ(names(item("")), before);
        EXPECT_THAT(names(trashFolder()), IsEmpty());
        expectSoundTrash();
    }
};

TEST_F(CleaningServiceChangeTest, MovesFilesAndFoldersToTheTrashOfTheDesktop)
{
    m_tree.add("home/Caches/a size=10\nhome/Caches/b/\n    x size=10\n    deep/\n        y -> nowhere");
    const auto candidates = scan();
    const auto result = clean(candidates);
    ASSERT_THAT(result.cleanedItems, SizeIs(2));
    EXPECT_THAT(names(item("")), IsEmpty());
    EXPECT_THAT(names(trashFolder()), ElementsAre("a", "b"));
    expectSoundTrash();
    for (const auto& cleaned : result.cleanedItems) {
        EXPECT_EQ(cleaned.restoreSourceRootURL->path(), trashFolder().path());
        // A move changes nothing of what a restore will ask for.
        EXPECT_EQ(cleaned.restoreSourceIdentity, cleaned.candidate.resourceIdentity);
    }
}

TEST_F(CleaningServiceChangeTest, DeletesPermanentlyAndLeavesNothingInTheTrash)
{
    m_tree.add("home/Caches/a size=10\nhome/Caches/b/\n    x size=10");
    EXPECT_THAT(clean(scan(), CleaningMode::deletePermanently).cleanedItems, SizeIs(2));
    EXPECT_THAT(names(item("")), IsEmpty());
    EXPECT_THAT(names(trashFolder()), IsEmpty());
    expectSoundTrash();
}

TEST_F(CleaningServiceChangeTest, RefusesAFileThatGrew)
{
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    const auto before = statusOf(path("a"));
    std::ofstream(path("a"), std::ios::app) << "more";
    setTimes(path("a"), before);
    expectLeftAlone(candidates, Kind::cleanupCandidateChanged, "a");
}

TEST_F(CleaningServiceChangeTest, RefusesAFileThatWasTouched)
{
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    m_tree.setAge("home/Caches/a", 29 * 86400.0);
    expectLeftAlone(candidates, Kind::cleanupCandidateChanged, "a");
}

TEST_F(CleaningServiceChangeTest, RefusesAFileWithAnOlderDateJustAsWithANewer)
{
    m_tree.add("home/Caches/a size=10");
    auto candidates = scan();
    m_tree.setAge("home/Caches/a", 31 * 86400.0);
    expectLeftAlone(candidates, Kind::cleanupCandidateChanged, "a");
    candidates.at(0).resourceIdentity.reset();
    expectLeftAlone(candidates, Kind::cleanupCandidateRecentlyModified, "a");
}

TEST_F(CleaningServiceChangeTest, RefusesAFileReplacedByOneOfTheSameSizeWithForgedDates)
{
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    const auto before = statusOf(path("a"));
    std::ofstream(path("new")) << "0123456789";
    setTimes(path("new"), before);
    std::filesystem::rename(path("new"), path("a"));
    expectLeftAlone(candidates, Kind::cleanupCandidateChanged, "a");
}

TEST_F(CleaningServiceChangeTest, RefusesAFileReplacedByAFolder)
{
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    std::filesystem::remove(path("a"));
    std::filesystem::create_directory(path("a"));
    expectLeftAlone(candidates, Kind::cleanupCandidateChanged, "a");
}

TEST_F(CleaningServiceChangeTest, RefusesAnItemReplacedByALinkForBeingALink)
{
    m_tree.add("home/Caches/a/\n    x size=10\nhome/Documents/letter size=10");
    const auto candidates = scan();
    std::filesystem::remove_all(path("a"));
    std::filesystem::create_directory_symlink(m_tree.path("home/Documents"), path("a"));
    // The link leads out of the scope.
    const auto result = clean(candidates);
    ASSERT_THAT(result.failedItems, SizeIs(1));
    EXPECT_EQ(result.failedItems[0].reason, words(Kind::pathNotAllowed, m_tree.url("home/Documents")));

    std::filesystem::remove(path("a"));
    std::filesystem::create_directory(path("other"));
    std::filesystem::create_directory_symlink("other", path("a"));
    expectLeftAlone(candidates, Kind::symbolicLink, "a");
}

TEST_F(CleaningServiceChangeTest, RefusesAnItemThatIsGone)
{
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    std::filesystem::remove(path("a"));
    expectLeftAlone(candidates, Kind::unreadableAttributes, "a");
}

TEST_F(CleaningServiceChangeTest, RefusesAFolderInWhichADirectEntryWasMade)
{
    m_tree.add("home/Caches/a/\n    x size=10");
    const auto candidates = scan();
    std::ofstream(path("a/new")) << "x";
    expectLeftAlone(candidates, Kind::cleanupCandidateChanged, "a");
}

TEST_F(CleaningServiceChangeTest, RefusesAFolderInWhichADeepFileWasChanged)
{
    m_tree.add("home/Caches/a/\n    b/c/x size=10");
    const auto candidates = scan();
    std::ofstream(path("a/b/c/x"), std::ios::app) << "x";
    expectLeftAlone(candidates, Kind::cleanupCandidateRecentlyModified, "a");
}

TEST_F(CleaningServiceChangeTest, DoesNotMindAChangedHiddenFileThatTheScanLeftOut)
{
    m_tree.add("home/Caches/a/\n    x size=10\n    .state size=10");
    const auto candidates = scan();
    std::ofstream(path("a/.state"), std::ios::app) << "x";
    EXPECT_THAT(clean(candidates).cleanedItems, SizeIs(1));
}

TEST_F(CleaningServiceChangeTest, MindsAHiddenFileThatWasMadeAfterTheScan)
{
    m_tree.add("home/Caches/a/\n    x size=10");
    const auto candidates = scan();
    std::ofstream(path("a/.new")) << "x";
    expectLeftAlone(candidates, Kind::cleanupCandidateChanged, "a");
}

TEST_F(CleaningServiceChangeTest, MindsAChangedHiddenFileWhenTheScanLookedAtIt)
{
    m_tree.add("home/Caches/a/\n    x size=10\n    .state size=10");
    const auto candidates = scan({location("home/Caches/", {.includesHiddenFiles = true})});
    std::ofstream(path("a/.state"), std::ios::app) << "x";
    expectLeftAlone(candidates, Kind::cleanupCandidateRecentlyModified, "a");
}

TEST_F(CleaningServiceChangeTest, RefusesAForgedCandidateBelowAParentThatIsALinkToAFolderOfTheSameContents)
{
    m_tree.add("home/Caches/a/\n    x size=10\nhome/Caches/real/\n    x size=10");
    scan();
    const CleanupCandidate inside(
        {.url = item("a/x"), .resourceIdentity = FileResourceIdentity::captureIfAvailable(item("real/x"), m_posix)});
    std::filesystem::remove_all(path("a"));
    std::filesystem::create_directory_symlink("real", path("a"));
    expectLeftAlone({inside}, Kind::symbolicLink, "a");
}

TEST_F(CleaningServiceChangeTest, RefusesItemsWhoseRootBecameALink)
{
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    std::filesystem::rename(path(""), m_tree.path("home/Moved"));
    std::filesystem::create_directory_symlink("Moved", path(""));
    expectRefused(clean(candidates), Kind::pathNotAllowed, item("a"));
    EXPECT_TRUE(exists(m_tree.path("home/Moved/a")));
}

TEST_F(CleaningServiceChangeTest, RefusesAnItemWhoseTrashIsNotSafeToUse)
{
    m_tree.add("home/Caches/a size=10\nhome/.local/share/Trash/ mode=777");
    const auto candidates = scan();
    const auto result = clean(candidates);
    ASSERT_THAT(result.failedItems, SizeIs(1));
    EXPECT_EQ(result.failedItems[0].reason,
        "The file “a” couldn’t be moved to the Trash because its volume has no Trash that is safe to use.");
    EXPECT_TRUE(exists(path("a")));
}

TEST_F(CleaningServiceChangeTest, CleansNamesThatAreHostile)
{
    const std::vector<std::string> hostile{"-rf", "a\nb", "100%25", "\xFF\xFE", std::string(255, 'n'), " ",
        "\xE2\x80\xAE"
        "txt.exe",
        "a\\b", "*?[x]"};
    for (const auto& name : hostile) {
        std::ofstream(path(name)) << name;
        m_tree.setAge("home/Caches/" + name, 86400);
    }
    const auto result = clean(scan());
    EXPECT_THAT(result.cleanedItems, SizeIs(hostile.size()));
    EXPECT_THAT(names(item("")), IsEmpty());
    expectSoundTrash();
    EXPECT_THAT(restore(result.cleanedItems).restoredItems, SizeIs(hostile.size()));
    EXPECT_THAT(names(item("")), SizeIs(hostile.size()));
    EXPECT_THAT(names(trashFolder()), IsEmpty());
}

TEST_F(CleaningServiceChangeTest, CleansAThousandItemsAndPutsThemBack)
{
    m_tree.add("home/Caches/part count=900 size=3\nhome/Caches/folder/\n    x size=10");
    for (int index = 0; index < 99; ++index) {
        m_tree.add("home/Caches/f" + std::to_string(index) + "/\n    x size=1");
    }
    const auto before = names(item(""));
    ASSERT_THAT(before, SizeIs(1000));
    const auto result = clean(scan());
    EXPECT_THAT(result.cleanedItems, SizeIs(1000));
    EXPECT_THAT(names(item("")), IsEmpty());
    EXPECT_EQ(names(trashFolder()), before);
    expectSoundTrash();
    const auto restored = restore(result.cleanedItems);
    EXPECT_THAT(restored.restoredItems, SizeIs(1000));
    EXPECT_EQ(names(item("")), before);
    EXPECT_THAT(names(trashFolder()), IsEmpty());
    expectSoundTrash();
}

} // namespace CleaningTests
