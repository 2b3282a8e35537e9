#include "CleanerCore/Insights/FileRecord.h"

#include "CleanerCore/Insights/FileInsight.h"
#include "CleanerCore/Insights/ReviewOrder.h"
#include "CleanerCore/Insights/StorageMapItem.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace CleanerCore {

namespace {

using Platform::Date;
using Platform::FileURL;

FileRecord record(std::string_view path, std::int64_t size, std::optional<double> date)
{
    FileRecord made{FileURL(path)};
    made.allocatedSizeBytes = size;
    if (date) {
        made.lastModified = Date{*date};
    }
    return made;
}

FileInsight insight(const FileRecord& from)
{
    return FileInsight({.url = from.url(),
        .sizeBytes = from.allocatedSizeBytes,
        .lastModified = from.lastModified,
        .detail = "Large file"});
}

} // namespace

TEST(FileRecord, BuildsItsPathFromTheFolderAndTheName)
{
    EXPECT_EQ(FileRecord(FileURL("/a/b/c")).url(), FileURL("/a/b/c"));
    EXPECT_EQ(FileRecord(FileURL("/a")).url(), FileURL("/a"));
    FileRecord folder(FileURL::folder("/a/X.app"));
    folder.isDirectory = true;
    EXPECT_EQ(folder.url(), FileURL::folder("/a/X.app"));
}

TEST(FileRecord, ComparesPathsAsTheirBytesStand)
{
    const std::vector<std::string> paths{
        "/a", "/a b/c", "/a!", "/a-b/x", "/a/b", "/a/b/c", "/a/b/c/d", "/a/bb", "/ab", "/b", "/\xFF", "/\xC3\xA4/x"};
    for (const auto& left : paths) {
        for (const auto& right : paths) {
            EXPECT_EQ(FileRecord(FileURL(left)).comparePath(FileRecord(FileURL(right))), left <=> right)
                << left << " and " << right;
        }
    }
}

TEST(ReviewOrder, PutsTheLargerFirstThenTheOlderThenTheSmallerPath)
{
    const std::vector<FileRecord> inOrder{record("/z", 9, 5), record("/z", 8, 1), record("/y", 8, 2),
        record("/b", 8, std::nullopt), record("/c", 8, std::nullopt), record("/a", 7, 0)};
    for (std::size_t left = 0; left < inOrder.size(); ++left) {
        for (std::size_t right = 0; right < inOrder.size(); ++right) {
            EXPECT_EQ(prefersReviewRecord(inOrder[left], inOrder[right]), left < right) << left << " " << right;
            EXPECT_EQ(prefersReviewInsight(insight(inOrder[left]), insight(inOrder[right])), left < right);
        }
    }
}

TEST(ReviewOrder, PutsAFileWithoutADateBehindAllDatedOnesOfItsSize)
{
    // Far beyond any date that a calendar names.
    EXPECT_TRUE(prefersReviewRecord(record("/z", 1, 1e18), record("/a", 1, std::nullopt)));
    EXPECT_FALSE(prefersReviewRecord(record("/a", 1, std::nullopt), record("/z", 1, 1e18)));
}

TEST(FileInsight, DerivesItsIdAndNamesFromThePath)
{
    const FileInsight made({.url = FileURL("/Users/a/../a/x.mov"),
        .sizeBytes = -4,
        .kind = FileInsightKind::download,
        .detail = "Downloads item"});
    EXPECT_EQ(made.id, "download:/Users/a/x.mov");
    EXPECT_EQ(made.displayName, "x.mov");
    EXPECT_EQ(made.parentPath, "/Users/a");
    EXPECT_EQ(made.sizeBytes, 0);
    EXPECT_EQ(made.safety, CleanupSafety::caution);
    EXPECT_EQ(safetyOf(FileInsightKind::securitySignal), CleanupSafety::manualReview);
    EXPECT_EQ(safetyOf(FileInsightKind::duplicate), CleanupSafety::caution);
}

TEST(FileInsight, GivesEachPathAnIdOfItsOwnWhateverItsBytes)
{
    const FileInsight raw({.url = FileURL("/a/\xFF"), .detail = ""});
    const FileInsight escaped({.url = FileURL("/a/xFF"), .detail = ""});
    EXPECT_EQ(raw.id, "largeFile:/a///xFF");
    EXPECT_EQ(raw.displayName, "\xFF");
    EXPECT_NE(raw.id, escaped.id);
}

TEST(FileInsight, BecomesACandidateThatNobodyHasSelected)
{
    FileResourceIdentity identity;
    identity.fileSize = 5;
    const FileInsight made({.url = FileURL("/a/x.pkg"),
        .sizeBytes = 5,
        .lastModified = Date{3},
        .resourceIdentity = identity,
        .kind = FileInsightKind::securitySignal,
        .detail = "Installer package",
        .safety = CleanupSafety::manualReview});
    const auto candidate = made.cleanupCandidate(CleanupCategory::customFolder);
    EXPECT_EQ(candidate.id, "customFolder:/a/x.pkg");
    EXPECT_EQ(candidate.url, made.url);
    EXPECT_EQ(candidate.displayName, "x.pkg");
    EXPECT_EQ(candidate.sizeBytes, 5);
    EXPECT_EQ(candidate.lastModified, Date{3});
    EXPECT_EQ(candidate.resourceIdentity, identity);
    EXPECT_EQ(candidate.safety, CleanupSafety::manualReview);
    EXPECT_FALSE(candidate.isSelectedByDefault);
    EXPECT_FALSE(candidate.requiresManualReviewBySource);
    EXPECT_EQ(candidate.appCacheContext, std::nullopt);
}

TEST(StorageMapItem, HasNoNegativeFigures)
{
    const StorageMapItem item(
        {.url = FileURL::folder("/a/b"), .displayName = "~/b", .sizeBytes = -1, .itemCount = -1, .isTruncated = true});
    EXPECT_EQ(item.id, "/a/b");
    EXPECT_EQ(item.sizeBytes, 0);
    EXPECT_EQ(item.itemCount, 0);
    EXPECT_TRUE(item.isTruncated);
}

} // namespace CleanerCore
