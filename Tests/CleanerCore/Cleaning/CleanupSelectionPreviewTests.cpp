#include "CleanerCore/Cleaning/CleanupSelectionPreview.h"

#include <gtest/gtest.h>
#include <limits>

namespace CleanerCore {

namespace {

CleanupCandidate candidate(CleanupCategory category, CleanupSafety safety, std::int64_t sizeBytes)
{
    return CleanupCandidate(
        {.url = Platform::FileURL("/a"), .category = category, .sizeBytes = sizeBytes, .safety = safety});
}

using enum CleanupCategory;
using enum CleanupSafety;
using Candidates = std::vector<CleanupCandidate>;

} // namespace

TEST(CleanupSelectionPreview, IsEmptyForAnEmptySelection)
{
    const CleanupSelectionPreview preview{Candidates()};
    EXPECT_EQ(preview.count, 0);
    EXPECT_EQ(preview.bytes, 0);
    EXPECT_EQ(preview.safetyBreakdown, CleanupSafetyBreakdown());
    EXPECT_TRUE(preview.categorySummaries.empty());
    EXPECT_EQ(preview.highestRisk(), std::nullopt);
    EXPECT_FALSE(preview.containsNonSafeItems());
}

TEST(CleanupSelectionPreview, CountsItemsBytesAndSafeties)
{
    const CleanupSelectionPreview preview(Candidates{candidate(userCaches, safe, 1), candidate(userCaches, safe, 2),
        candidate(userLogs, caution, 4), candidate(buildArchives, manualReview, 8),
        candidate(userLogs, manualReview, 16), candidate(userLogs, safe, 32)});
    EXPECT_EQ(preview.count, 6);
    EXPECT_EQ(preview.bytes, 63);
    EXPECT_EQ(preview.safetyBreakdown.safeCount, 3);
    EXPECT_EQ(preview.safetyBreakdown.cautionCount, 1);
    EXPECT_EQ(preview.safetyBreakdown.manualReviewCount, 2);
    EXPECT_EQ(preview.categorySummaries,
        (std::vector<CleanupPreviewCategorySummary>{{userLogs, 3, 52}, {buildArchives, 1, 8}, {userCaches, 2, 3}}));
    EXPECT_EQ(preview.categorySummaries.front().id(), userLogs);
}

TEST(CleanupSelectionPreview, OrdersCategoriesOfEqualBytesByRawValue)
{
    const CleanupSelectionPreview preview(Candidates{candidate(userLogs, safe, 5), candidate(appSandboxCaches, safe, 5),
        candidate(temporaryFiles, safe, 5), candidate(buildArchives, safe, 5)});
    EXPECT_EQ(preview.categorySummaries,
        (std::vector<CleanupPreviewCategorySummary>{
            {appSandboxCaches, 1, 5}, {buildArchives, 1, 5}, {temporaryFiles, 1, 5}, {userLogs, 1, 5}}));
}

TEST(CleanupSelectionPreview, KeepsACategoryOfItemsWithoutBytes)
{
    const CleanupSelectionPreview preview(Candidates{candidate(userLogs, safe, 0)});
    EXPECT_EQ(preview.categorySummaries, (std::vector<CleanupPreviewCategorySummary>{{userLogs, 1, 0}}));
}

TEST(CleanupSelectionPreview, TellsTheHighestRisk)
{
    Candidates candidates{candidate(userLogs, safe, 1)};
    EXPECT_EQ(CleanupSelectionPreview(candidates).highestRisk(), safe);
    EXPECT_FALSE(CleanupSelectionPreview(candidates).containsNonSafeItems());
    candidates.push_back(candidate(userLogs, caution, 1));
    EXPECT_EQ(CleanupSelectionPreview(candidates).highestRisk(), caution);
    EXPECT_TRUE(CleanupSelectionPreview(candidates).containsNonSafeItems());
    candidates.push_back(candidate(userLogs, manualReview, 1));
    EXPECT_EQ(CleanupSelectionPreview(candidates).highestRisk(), manualReview);
    EXPECT_TRUE(CleanupSelectionPreview(Candidates{candidates.back()}).containsNonSafeItems());
}

TEST(CleanupSelectionPreviewDeathTest, EndsTheProgramWhereSizesOverflow)
{
    const Candidates huge{
        candidate(userLogs, safe, std::numeric_limits<std::int64_t>::max()), candidate(userLogs, safe, 1)};
    EXPECT_DEATH((void)CleanupSelectionPreview(huge), "overflowed");
}

TEST(CleanupSafetyBreakdown, CountsEverySafety)
{
    const CleanupSafetyBreakdown breakdown(Candidates{
        candidate(userLogs, caution, 0), candidate(userLogs, manualReview, 0), candidate(userLogs, caution, 0)});
    EXPECT_EQ(breakdown.safeCount, 0);
    EXPECT_EQ(breakdown.cautionCount, 2);
    EXPECT_EQ(breakdown.manualReviewCount, 1);
}

} // namespace CleanerCore
