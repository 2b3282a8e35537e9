#include "CleanerCore/Scan/ScanReport.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace CleanerCore {

namespace {

using Platform::Date;
using Platform::FileURL;

CleanupCandidate candidate(std::string_view name, CleanupSafety safety, std::int64_t sizeBytes)
{
    return CleanupCandidate({
        .url = FileURL("/home/u").appending(name),
        .category = CleanupCategory::userCaches,
        .sizeBytes = sizeBytes,
        .safety = safety,
    });
}

std::vector<std::string> names(const ScanReport& report)
{
    std::vector<std::string> names;
    for (const auto& item : report.candidates) {
        names.push_back(item.displayName);
    }
    return names;
}

} // namespace

TEST(ScanReport, OfNothingHasNothing)
{
    const auto before = Date::now();
    const auto report = ScanReport::empty();
    EXPECT_TRUE(report.candidates.empty());
    EXPECT_TRUE(report.skippedItems.empty());
    EXPECT_EQ(report.reclaimableBytes(), 0);
    EXPECT_GE(report.scannedAt, before);
    EXPECT_LE(report.scannedAt, Date::now());
}

TEST(ScanReport, SortsBySafetyThenByTheLargerSize)
{
    const ScanReport report(Date{},
        {candidate("review", CleanupSafety::manualReview, 100), candidate("caution", CleanupSafety::caution, 10),
            candidate("safe1", CleanupSafety::safe, 1), candidate("safe10", CleanupSafety::safe, 10)},
        {});
    EXPECT_EQ(names(report), (std::vector<std::string>{"safe10", "safe1", "caution", "review"}));
}

TEST(ScanReport, KeepsTheOrderOfEqualCandidates)
{
    const ScanReport report(Date{},
        {candidate("x", CleanupSafety::safe, 1), candidate("b", CleanupSafety::safe, 5),
            candidate("a", CleanupSafety::safe, 5), candidate("c", CleanupSafety::safe, 5)},
        {});
    EXPECT_EQ(names(report), (std::vector<std::string>{"b", "a", "c", "x"}));
}

TEST(ScanReport, SortsAsAStableSortDoes)
{
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        std::vector<CleanupCandidate> input;
        const auto count = random() % 40;
        for (std::size_t index = 0; index < count; ++index) {
            input.push_back(candidate(std::to_string(index), static_cast<CleanupSafety>(random() % 3), random() % 4));
        }
        auto expected = input;
        std::ranges::stable_sort(expected, [](const auto& left, const auto& right) {
            return left.safety != right.safety ? left.safety < right.safety : left.sizeBytes > right.sizeBytes;
        });
        EXPECT_EQ(ScanReport(Date{}, input, {}).candidates, expected);
    }
}

TEST(ScanReport, LeavesSkippedItemsInTheOrderOfDiscovery)
{
    const std::vector<SkippedItem> skipped{{FileURL("/z"), "Recently modified"}, {FileURL("/a"), "Empty item"}};
    EXPECT_EQ(ScanReport(Date{}, {}, skipped).skippedItems, skipped);
}

TEST(ScanReport, SumsTheSizesOfAllCandidates)
{
    const ScanReport report(
        Date{}, {candidate("a", CleanupSafety::safe, 3), candidate("b", CleanupSafety::manualReview, 4)}, {});
    EXPECT_EQ(report.reclaimableBytes(), 7);
}

TEST(ScanReportDeathTest, StopsWhenTheSumOverflows)
{
    const ScanReport report(Date{},
        {candidate("a", CleanupSafety::safe, std::numeric_limits<std::int64_t>::max()),
            candidate("b", CleanupSafety::safe, 1)},
        {});
    EXPECT_DEATH((void)report.reclaimableBytes(), "overflowed");
}

} // namespace CleanerCore
