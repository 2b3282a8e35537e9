#include "CleanerCore/Insights/InsightReportCoding.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace CleanerCore {

namespace {

using Platform::Date;
using Platform::FileURL;

FileInsight insight(std::string_view path, std::int64_t size, std::optional<Date> date = Date{1},
    FileInsightKind kind = FileInsightKind::largeFile)
{
    return FileInsight({.url = FileURL(path), .sizeBytes = size, .lastModified = date, .kind = kind, .detail = "d"});
}

StorageMapItem bar(std::string_view path, std::int64_t size)
{
    return StorageMapItem({.url = FileURL::folder(path), .displayName = std::string(path), .sizeBytes = size});
}

std::vector<std::string> idsOf(const auto& items)
{
    std::vector<std::string> ids;
    for (const auto& item : items) {
        ids.push_back(item.id);
    }
    return ids;
}

MacStorageInsightReport unsortedReport()
{
    const auto duplicate = FileInsightKind::duplicate;
    SystemResourceSnapshot snapshot;
    snapshot.processorCount = 3;
    snapshot.memoryPressure = "Normal";
    return MacStorageInsightReport({
        .scannedAt = Date{7},
        .heatmapItems = {bar("/a", 1), bar("/c", 5), bar("/b", 5)},
        .largeFiles = {insight("/b", 1), insight("/a", 1), insight("/c", 2), insight("/d", 1, std::nullopt)},
        .downloadFiles = {insight("/y", 1, Date{2}), insight("/z", 1, Date{1})},
        .duplicateGroups = {DuplicateFileGroup(
                                "aa", 9, {insight("/a", 1, Date{1}, duplicate), insight("/b", 1, Date{2}, duplicate)}),
            DuplicateFileGroup("bb", 5, {insight("/c", 4, Date{1}, duplicate), insight("/d", 4, Date{2}, duplicate)})},
        .securityFindings = {insight("/s", 1), insight("/r", 1), insight("/t", 3)},
        .skippedItems = {{FileURL("/z"), "why"}, {FileURL("/a\xFF"), "because"}},
        .isTruncated = true,
        .systemSnapshot = snapshot,
    });
}

} // namespace

TEST(MacStorageInsightReport, PutsEachListIntoItsOrder)
{
    const auto sorted = unsortedReport();
    EXPECT_EQ(idsOf(sorted.heatmapItems), (std::vector<std::string>{"/c", "/b", "/a"}));
    EXPECT_EQ(idsOf(sorted.largeFiles),
        (std::vector<std::string>{"largeFile:/c", "largeFile:/a", "largeFile:/b", "largeFile:/d"}));
    EXPECT_EQ(idsOf(sorted.downloadFiles), (std::vector<std::string>{"largeFile:/z", "largeFile:/y"}));
    EXPECT_EQ(idsOf(sorted.duplicateGroups), (std::vector<std::string>{"bb", "aa"}));
    EXPECT_EQ(
        idsOf(sorted.securityFindings), (std::vector<std::string>{"largeFile:/t", "largeFile:/s", "largeFile:/r"}));
    EXPECT_EQ(sorted.skippedItems.front().reason, "why");
}

TEST(MacStorageInsightReport, AddsUpWhatDuplicatesWaste)
{
    const auto made = unsortedReport();
    EXPECT_EQ(idsOf(made.duplicateFiles()), (std::vector<std::string>{"duplicate:/d", "duplicate:/b"}));
    EXPECT_EQ(made.duplicateWastedBytes(), 5);
}

TEST(MacStorageInsightReport, DoesNotOverflowOnAbsurdSizes)
{
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    const DuplicateFileGroup group("aa", most, {insight("/a", most), insight("/b", most)});
    const MacStorageInsightReport made({.scannedAt = Date{}, .duplicateGroups = {group, group}});
    EXPECT_EQ(made.duplicateWastedBytes(), most);
}

TEST(MacStorageInsightReport, TakesAnotherSnapshotAndKeepsTheRest)
{
    SystemResourceSnapshot snapshot;
    snapshot.processorCount = 99;
    auto replaced = unsortedReport().replacingSystemSnapshot(snapshot);
    EXPECT_EQ(replaced.systemSnapshot, snapshot);
    replaced.systemSnapshot = unsortedReport().systemSnapshot;
    EXPECT_EQ(replaced, unsortedReport());
}

TEST(MacStorageInsightReport, OfNothingHasNothingButThePresent)
{
    const auto before = Date::now();
    const auto empty = MacStorageInsightReport::empty();
    EXPECT_GE(empty.scannedAt, before);
    EXPECT_TRUE(empty.heatmapItems.empty() && empty.largeFiles.empty() && empty.downloadFiles.empty());
    EXPECT_TRUE(empty.duplicateGroups.empty() && empty.securityFindings.empty() && empty.skippedItems.empty());
    EXPECT_FALSE(empty.isTruncated);
    EXPECT_GE(empty.systemSnapshot.activeProcessorCount, 1);
}

TEST(MacStorageInsightReport, ReadsWhatItWrote)
{
    auto made = unsortedReport();
    made.skippedItems.pop_back(); // a path that is no text is escaped in its reason's place, not read back as bytes
    const auto text = Platform::encodeJSON(made);
    ASSERT_TRUE(text);
    const auto read = Platform::decodeJSON<MacStorageInsightReport>(*text);
    ASSERT_TRUE(read) << read.error().localizedDescription();
    EXPECT_EQ(*read, made);
}

TEST(MacStorageInsightReport, NeedsEachOfItsFields)
{
    const auto text = *Platform::encodeJSON(unsortedReport());
    const auto whole = Platform::JSONReader::parse(text);
    ASSERT_TRUE(whole);
    for (const auto* const key : {"scannedAt", "heatmapItems", "largeFiles", "downloadFiles", "duplicateGroups",
             "securityFindings", "skippedItems", "isTruncated", "systemSnapshot"}) {
        auto damaged = text;
        const auto found = damaged.find('"' + std::string(key) + '"');
        ASSERT_NE(found, std::string::npos) << key;
        damaged[found + 1] = 'X';
        EXPECT_FALSE(Platform::decodeJSON<MacStorageInsightReport>(damaged)) << key;
    }
}

TEST(MacStorageInsightReport, BringsWhatItReadsIntoOrder)
{
    auto made = unsortedReport();
    std::ranges::reverse(made.heatmapItems);
    std::ranges::reverse(made.largeFiles);
    made.heatmapItems.front().sizeBytes = -7;
    const auto read = Platform::decodeJSON<MacStorageInsightReport>(*Platform::encodeJSON(made));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->largeFiles, unsortedReport().largeFiles);
    EXPECT_EQ(read->heatmapItems.back().sizeBytes, 0);
}

} // namespace CleanerCore
