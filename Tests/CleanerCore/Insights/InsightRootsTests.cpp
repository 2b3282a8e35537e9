#include "CleanerCore/Insights/InsightRoots.h"

#include "CleanerCore/Insights/MacStorageInsightScanner.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/TemporaryTree.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace CleanerCore {

namespace {

using testing::ElementsAre;

class InsightRootsTest : public testing::Test {
protected:
    [[nodiscard]] InsightRoots roots(std::string_view home = "home/") const
    {
        return InsightRoots::of(m_tree.url(home), m_fileManager, m_environment);
    }
    [[nodiscard]] std::vector<std::string> below(const std::vector<Platform::FileURL>& urls) const
    {
        std::vector<std::string> paths;
        for (const auto& url : urls) {
            paths.push_back(url.path().substr(m_tree.root().path().size() + 1));
        }
        return paths;
    }
    [[nodiscard]] bool allows(std::string_view path) const
    {
        return MacStorageInsightScanner::isCleanupAllowed(
            m_tree.url(path), m_tree.url("home/"), m_fileManager, m_environment);
    }

    TestSupport::TemporaryTree m_tree{"home/"};
    Platform::PosixFileManager m_fileManager;
    Platform::Environment m_environment;
};

} // namespace

TEST_F(InsightRootsTest, OfAHomeWithALibraryAreThoseOfMacOS)
{
    m_tree.add("home/Library/Developer/\nhome/Downloads/\nhome/Documents/\nhome/Videos/\nhome/.local/share/");
    EXPECT_THAT(below(roots().folders), ElementsAre("home/Downloads", "home/Documents", "home/Library/Developer"));
    EXPECT_THAT(below(roots().cleanable), ElementsAre("home/Downloads", "home/Documents"));
}

TEST_F(InsightRootsTest, OfAnyOtherHomeAreItsUserDirectoriesAndWhatApplicationsKeep)
{
    m_tree.add(R"(
        home/.local/share/
        home/.var/app/
        home/Videos/
        home/Downloads/
        home/Laden/
        home/Documents text="no folder"
        home/Elsewhere/
        home/.config/user-dirs.dirs text="XDG_DOWNLOAD_DIR=\"$HOME/Laden\"\nXDG_MUSIC_DIR=\"$HOME/\"\n"
    )");
    EXPECT_THAT(below(roots().folders), ElementsAre("home/Laden", "home/Videos", "home/.local/share", "home/.var/app"));
    EXPECT_THAT(below(roots().cleanable), ElementsAre("home/Laden", "home/Videos"));
    EXPECT_EQ(roots().downloadsFolder, m_tree.url("home/Laden/"));
}

TEST_F(InsightRootsTest, NeverLieInEachOtherNorHoldTheHome)
{
    m_tree.add(R"(
        home/Documents/Laden/
        home/Music/
        home/.config/user-dirs.dirs text="XDG_DOWNLOAD_DIR=\"$HOME/Documents/Laden\"\nXDG_VIDEOS_DIR=\"$HOME/Music\"\nXDG_PICTURES_DIR=\"$HOME/..\"\nXDG_DESKTOP_DIR=\"/\"\nXDG_TEMPLATES_DIR=\"$HOME/.\"\n"
    )");
    EXPECT_THAT(below(roots().folders), ElementsAre("home/Documents", "home/Music"));
}

TEST_F(InsightRootsTest, KeepTheirDownloadsInAnotherFolder)
{
    m_tree.add(R"(
        home/Documents/Laden/file size=4K
        home/Documents/other size=4K
        home/.config/user-dirs.dirs text="XDG_DOWNLOAD_DIR=\"$HOME/Documents/Laden\"\n"
    )");
    InsightScanOptions options;
    options.jobs = 1;
    const MacStorageInsightScanner scanner(
        m_tree.url("home/"), m_fileManager, InsightConfiguration::standard(), options);
    const auto report = scanner.scan(m_tree.now());
    ASSERT_EQ(report.downloadFiles.size(), 1U);
    EXPECT_EQ(report.downloadFiles.front().displayName, "file");
    EXPECT_TRUE(report.skippedItems.empty());
}

TEST_F(InsightRootsTest, AreAllSafeToScan)
{
    m_tree.add("home/Downloads/a size=4K\nhome/.local/share/b size=4K\nhome/.var/app/org.example.App/c size=4K");
    InsightScanOptions options;
    options.jobs = 1;
    const MacStorageInsightScanner scanner(
        m_tree.url("home/"), m_fileManager, InsightConfiguration::standard(), options);
    const auto report = scanner.scan(m_tree.now());
    EXPECT_TRUE(report.skippedItems.empty()) << report.skippedItems.front().reason;
    ASSERT_EQ(report.heatmapItems.size(), 3U);
    for (const auto& item : report.heatmapItems) {
        EXPECT_GE(item.itemCount, 1) << item.displayName;
        EXPECT_TRUE(item.displayName.starts_with("~/")) << item.displayName;
    }
}

TEST_F(InsightRootsTest, OfAHomeBehindALinkAreReachedWithoutIt)
{
    m_tree.add("home/Downloads/\nlink -> home");
    const auto found = roots("link/");
    EXPECT_THAT(below(found.folders), ElementsAre("home/Downloads"));
    EXPECT_EQ(insightDisplayName(found.folders.front(), m_tree.url("link/"), m_fileManager), "~/Downloads");
}

TEST_F(InsightRootsTest, MakeLocationsForCleaningThatAskForAReview)
{
    m_tree.add("home/Library/Developer/\nhome/Music/");
    const auto locations =
        MacStorageInsightScanner::allowedCleanupLocations(m_tree.url("home/"), m_fileManager, m_environment);
    ASSERT_EQ(locations.size(), 1U);
    EXPECT_EQ(locations.front(),
        ScanLocation({.rootURL = m_tree.url("home/Music/"),
            .category = CleanupCategory::customFolder,
            .displayName = "~/Music",
            .depth = ScanDepth::immediateChildren,
            .isSelectedByDefault = false,
            .safety = CleanupSafety::manualReview,
            .minimumModificationAge = 0,
            .includesHiddenFiles = false,
            .includesPackageDescendants = false}));
}

TEST_F(InsightRootsTest, LetOnlyWhatLiesInTheUsersOwnFoldersBeCleaned)
{
    m_tree.add(R"(
        home/Library/Developer/big size=4K
        home/Documents/file size=4K
        home/Documents/folder/file size=4K
        home/Documents/link -> ../Music
        home/Music/file size=4K
        home/Work/file size=4K
    )");
    EXPECT_TRUE(allows("home/Documents/file"));
    EXPECT_TRUE(allows("home/Documents/folder/file"));
    EXPECT_TRUE(allows("home/Documents/folder/"));
    EXPECT_FALSE(allows("home/Documents"));
    EXPECT_FALSE(allows("home/Documents/link/file"));
    EXPECT_FALSE(allows("home/Library/Developer/big"));
    EXPECT_FALSE(allows("home/Work/file"));
    EXPECT_FALSE(allows("home/Documents/../Work/file"));
    EXPECT_FALSE(allows("home/Documents/.ssh/id_rsa"));
}

TEST_F(InsightRootsTest, AllowNothingOnceAFolderIsAnotherOne)
{
    m_tree.add("home/Library/\nhome/Documents/file size=4K\nhome/Other/file size=4K");
    const auto locations =
        MacStorageInsightScanner::allowedCleanupLocations(m_tree.url("home/"), m_fileManager, m_environment);
    const auto allowance = MacStorageInsightScanner::cleanupAllowance(locations, m_fileManager);
    const auto file = m_tree.url("home/Documents/file");
    EXPECT_TRUE(allowance.allows(file, m_fileManager));
    EXPECT_TRUE(MacStorageInsightScanner::isCleanupAllowed(file, locations, m_fileManager));
    // Put aside and not removed: a number that is free again may be the next folder's own.
    std::filesystem::rename(m_tree.path("home/Documents"), m_tree.path("home/Aside"));
    m_tree.add("home/Documents/file size=4K");
    EXPECT_FALSE(allowance.allows(file, m_fileManager));
    EXPECT_FALSE(MacStorageInsightScanner::isCleanupAllowed(file, {}, m_fileManager));
}

} // namespace CleanerCore
