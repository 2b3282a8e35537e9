#include "KarvelloUI/Stores/CustomScanFolderResolver.h"

#include "CleanerCore/Scan/StorageScanner.h"
#include "Tests/KarvelloUI/Stores/StoresFixture.h"
#include "Tests/Support/ChildProcess.h"

#include <cstdlib>

namespace KarvelloUI {

namespace {

using namespace StoresTests;

class CustomScanFolderResolverTest : public StoresFixture {
protected:
    CustomScanFolder folder(std::string_view path) const
    {
        return CustomScanFolder::make(m_tree.url(path), m_files, m_bookmarks, kNow).value();
    }

    CustomScanFolderResolution resolve(const std::vector<CustomScanFolder>& folders) const
    {
        return CustomScanFolderResolver::resolve(folders, m_files, m_bookmarks);
    }

    CleanerCore::ScanLocation locationOf(std::string_view path, std::string_view name) const
    {
        return CleanerCore::ScanLocation({
            .rootURL = m_tree.url(path),
            .category = CleanerCore::CleanupCategory::customFolder,
            .displayName = std::string(name),
            .depth = CleanerCore::ScanDepth::immediateChildren,
            .isSelectedByDefault = false,
            .safety = CleanerCore::CleanupSafety::manualReview,
            .minimumModificationAge = 86400.0,
            .includesHiddenFiles = false,
            .includesPackageDescendants = false,
            .appCacheContext = std::nullopt,
        });
    }
};

} // namespace

TEST_F(CustomScanFolderResolverTest, GivesNothingForNoFolders)
{
    EXPECT_EQ(resolve({}), CustomScanFolderResolution::empty());
}

TEST_F(CustomScanFolderResolverTest, MakesALocationOfEachFolderInTheirOrder)
{
    auto documents = folder("home/Documents/");
    documents.displayName = "My papers";
    const auto caches = folder("home/Library/Caches/");
    const auto resolution = resolve({documents, caches});
    EXPECT_EQ(resolution.skippedItems, std::vector<CleanerCore::SkippedItem>());
    EXPECT_EQ(resolution.locations,
        (std::vector{locationOf("home/Documents/", "My papers"), locationOf("home/Library/Caches/", "Caches")}));
    EXPECT_EQ(resolution.resolvedFolders,
        (std::vector<ResolvedCustomScanFolder>{
            {.folder = documents, .url = m_tree.url("home/Documents/"), .bookmarkWasStale = false},
            {.folder = caches, .url = m_tree.url("home/Library/Caches/"), .bookmarkWasStale = false}}));
}

TEST_F(CustomScanFolderResolverTest, SkipsADeletedFolderAndGoesOn)
{
    m_tree.add("home/gone/a\n");
    const auto gone = folder("home/gone/");
    m_tree.remove("home/gone");
    const auto resolution = resolve({gone, folder("home/Documents/")});
    EXPECT_EQ(resolution.skippedItems,
        (std::vector<CleanerCore::SkippedItem>{
            {m_tree.url("home/gone/"), "The file “gone” couldn’t be opened because there is no such file."}}));
    EXPECT_EQ(resolution.locations, std::vector{locationOf("home/Documents/", "Documents")});
    EXPECT_EQ(resolution.resolvedFolders.size(), 1);
}

TEST_F(CustomScanFolderResolverTest, NamesADamagedBookmarkByTheStoredPath)
{
    auto damaged = folder("home/Documents/");
    damaged.bookmarkData.bytes = "x";
    EXPECT_EQ(resolve({damaged}),
        (CustomScanFolderResolution{.skippedItems = {{m_tree.url("home/Documents/"),
                                        "The file “bookmark” couldn’t be opened because it isn’t in the correct "
                                        "format."}}}));
}

TEST_F(CustomScanFolderResolverTest, SkipsAFolderThatIsNotTheSameAnyMore)
{
    const auto documents = folder("home/Documents/");
    m_tree.remove("home/Documents");
    m_tree.add("home/Documents/b\n");
    EXPECT_EQ(resolve({documents}),
        (CustomScanFolderResolution{.skippedItems = {{m_tree.url("home/Documents/"),
                                        "Custom folder stale bookmark. Remove and add this folder again before "
                                        "cleanup."}}}));
}

TEST_F(CustomScanFolderResolverTest, SkipsAFolderThatMustNotBeARootAnyMore)
{
    const auto documents = folder("home/Documents/");
    m_bookmarks.tellsStale = true; // The other reason outranks it.
    TestSupport::inChildProcess([&] {
        ASSERT_EQ(setenv("HOME", m_tree.path("home/Documents").c_str(), 1), 0);
        EXPECT_EQ(resolve({documents}),
            (CustomScanFolderResolution{.skippedItems = {{m_tree.url("home/Documents/"),
                                            "Selected folder is too broad or protected for cleanup scanning: "
                                                + m_tree.path("home/Documents")}}}));
    });
}

TEST_F(CustomScanFolderResolverTest, KeepsPathsThatAreNotUTF8)
{
    m_tree.add("home/\"caf\\xE9\\n\"/a\nhome/\"g\\xE9\"/\n");
    const auto gone = folder("home/g\xE9/");
    m_tree.remove("home/g\xE9");
    const auto resolution = resolve({folder("home/caf\xE9\n/"), gone});
    EXPECT_EQ(resolution.locations, std::vector{locationOf("home/caf\xE9\n/", "caf\xE9\n")});
    ASSERT_EQ(resolution.skippedItems.size(), 1);
    EXPECT_EQ(resolution.skippedItems[0].url, m_tree.url("home/g\xE9/"));
}

TEST_F(CustomScanFolderResolverTest, LeadsToNoCandidateThatIsSelected)
{
    m_tree.add("home/Documents/large size=64K\nhome/Library/Caches/app/data size=64K\n");
    const auto resolution = resolve({folder("home/Documents/"), folder("home/Library/Caches/")});
    const auto report = CleanerCore::StorageScanner(m_files).scan(resolution.locations, m_tree.now());
    EXPECT_EQ(report.candidates.size(), 2);
    for (const auto& candidate : report.candidates) {
        EXPECT_FALSE(candidate.isSelectedByDefault) << candidate.id;
        EXPECT_EQ(candidate.safety, CleanerCore::CleanupSafety::manualReview) << candidate.id;
    }
}

} // namespace KarvelloUI
