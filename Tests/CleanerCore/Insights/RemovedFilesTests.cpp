#include "CleanerCore/Insights/RemovedFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace CleanerCore {

namespace {

using Platform::Date;
using Platform::FileURL;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

FileInsight file(std::string_view path, std::int64_t size, FileInsightKind kind = FileInsightKind::largeFile)
{
    return FileInsight({.url = FileURL(path), .sizeBytes = size, .lastModified = Date{1}, .kind = kind, .detail = "d"});
}

FileInsight copy(std::string_view path, std::int64_t size)
{
    return file(path, size, FileInsightKind::duplicate);
}

StorageMapItem truncatedBar(std::string_view path, std::int64_t size, std::int64_t count)
{
    return StorageMapItem({.url = FileURL::folder(path),
        .displayName = std::string(path),
        .sizeBytes = size,
        .itemCount = count,
        .isTruncated = true});
}

MacStorageInsightReport reportBefore()
{
    return MacStorageInsightReport({.scannedAt = Date{7},
        .heatmapItems = {truncatedBar("/h/Documents", 100, 10), truncatedBar("/h/Documents2", 80, 9),
            truncatedBar("/h/one", 60, 1)},
        .largeFiles = {file("/h/Documents/a", 40), file("/h/Documents/b", 30)},
        .downloadFiles = {file("/h/Documents/a", 40), file("/h/one", 60)},
        .duplicateGroups = {DuplicateFileGroup("aa", 5, {copy("/h/Documents/a", 40), copy("/h/x", 40)}),
            DuplicateFileGroup("bb", 5, {copy("/h/b", 9), copy("/h/c", 9), copy("/h/d", 9)})},
        .securityFindings = {file("/h/Documents/s", 20)},
        .skippedItems = {{FileURL("/z"), "why"}},
        .isTruncated = true});
}

std::vector<std::string> paths(const auto& items)
{
    std::vector<std::string> paths;
    for (const auto& item : items) {
        paths.push_back(item.url.path());
    }
    return paths;
}

} // namespace

TEST(RemovedFiles, LeaveTheReportAsItIsWithoutPaths)
{
    EXPECT_EQ(removingFiles(reportBefore(), {}), reportBefore());
}

TEST(RemovedFiles, GoFromEveryListAndAreCountedOnce)
{
    const auto after = removingFiles(reportBefore(), {"/h/Documents/a"});
    EXPECT_THAT(paths(after.largeFiles), ElementsAre("/h/Documents/b"));
    EXPECT_THAT(paths(after.downloadFiles), ElementsAre("/h/one"));
    ASSERT_THAT(after.duplicateGroups, SizeIs(1));
    EXPECT_EQ(after.duplicateGroups.front().id, "bb");
    ASSERT_EQ(after.heatmapItems.front().url.path(), "/h/Documents");
    EXPECT_EQ(after.heatmapItems.front().sizeBytes, 60);
    EXPECT_EQ(after.heatmapItems.front().itemCount, 9);
    EXPECT_EQ(after.scannedAt, Date{7});
    EXPECT_THAT(after.skippedItems, SizeIs(1));
    EXPECT_TRUE(after.isTruncated);
    EXPECT_TRUE(after.heatmapItems.front().isTruncated);
}

TEST(RemovedFiles, LeaveAGroupOfTwoOrMore)
{
    const auto after = removingFiles(reportBefore(), {"/h/b"});
    ASSERT_THAT(after.duplicateGroups, SizeIs(2));
    const auto left = std::ranges::find(after.duplicateGroups, "bb", &DuplicateFileGroup::id);
    EXPECT_THAT(paths(left->files), ElementsAre("/h/c", "/h/d"));
    EXPECT_EQ(left->sizeBytes, 5);
    EXPECT_THAT(removingFiles(reportBefore(), {"/h/b", "/h/c", "/h/x"}).duplicateGroups, IsEmpty());
}

TEST(RemovedFiles, LeaveABarAtNothingInItsPlace)
{
    auto before = reportBefore();
    before.largeFiles.push_back(file("/h/Documents/huge", 1'000));
    const auto after = removingFiles(before, {"/h/Documents/a", "/h/Documents/huge"});
    EXPECT_THAT(paths(after.heatmapItems), ElementsAre("/h/Documents", "/h/Documents2", "/h/one"));
    EXPECT_EQ(after.heatmapItems.front().sizeBytes, 0);
    EXPECT_EQ(after.heatmapItems.front().itemCount, 8);
}

TEST(RemovedFiles, TakeNothingFromABarThatIsTheFileItself)
{
    const auto after = removingFiles(reportBefore(), {"/h/one"});
    EXPECT_EQ(after.heatmapItems.back().sizeBytes, 60);
    EXPECT_EQ(after.heatmapItems.back().itemCount, 1);
    EXPECT_THAT(paths(after.downloadFiles), ElementsAre("/h/Documents/a"));
}

TEST(RemovedFiles, TakeNothingFromTheFolderWithALongerName)
{
    const auto after = removingFiles(reportBefore(), {"/h/Documents/s"});
    EXPECT_EQ(after.heatmapItems[0].sizeBytes, 80);
    EXPECT_EQ(after.heatmapItems[1].sizeBytes, 80);
    EXPECT_THAT(after.securityFindings, IsEmpty());
}

TEST(RemovedFiles, AreThoseThatTheReportShows)
{
    EXPECT_EQ(removingFiles(reportBefore(), {"/h/Documents/unknown"}), reportBefore());
}

} // namespace CleanerCore
