#include "CleanerCore/Cleaning/CleanupSelectionTotals.h"

#include <gtest/gtest.h>
#include <span>
#include <string_view>
#include <vector>

namespace CleanerCore {

namespace {

CleanupCandidate candidate(std::string_view path, CleanupCategory category, CleanupSafety safety, std::int64_t size)
{
    return CleanupCandidate(
        {.url = Platform::FileURL(path), .category = category, .sizeBytes = size, .safety = safety});
}

} // namespace

TEST(CleanupSelectionTotals, AreThePreviewOfWhatIsLeft)
{
    const std::vector<CleanupCandidate> candidates{
        candidate("/a", CleanupCategory::userLogs, CleanupSafety::safe, 5),
        candidate("/b", CleanupCategory::userCaches, CleanupSafety::caution, 7),
        candidate("/c", CleanupCategory::userCaches, CleanupSafety::manualReview, 9),
    };
    CleanupSelectionTotals totals;
    EXPECT_EQ(totals.preview(), CleanupSelectionPreview());
    for (const auto& added : candidates) {
        totals.add(added);
    }
    EXPECT_EQ(totals.preview(), CleanupSelectionPreview(candidates));
    EXPECT_EQ(totals.preview().bytes, 21);
    totals.remove(candidates[2]);
    EXPECT_EQ(totals.preview(), CleanupSelectionPreview(std::span(candidates).first(2)));
    EXPECT_EQ(totals.preview().safetyBreakdown.manualReviewCount, 0);
    totals.remove(candidates[0]);
    totals.remove(candidates[1]);
    EXPECT_EQ(totals.preview(), CleanupSelectionPreview());
}

} // namespace CleanerCore
