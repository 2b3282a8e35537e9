#include "CleanerCore/Cleaning/CleanupSelectionPreview.h"

#include "CleanerCore/Cleaning/CleanupSelectionTotals.h"

namespace CleanerCore {

CleanupSelectionPreview::CleanupSelectionPreview(std::span<const CleanupCandidate> candidates)
{
    CleanupSelectionTotals totals;
    for (const auto& candidate : candidates) {
        totals.add(candidate);
    }
    *this = totals.preview();
}

bool CleanupSelectionPreview::containsNonSafeItems() const
{
    return safetyBreakdown.cautionCount > 0 || safetyBreakdown.manualReviewCount > 0;
}

std::optional<CleanupSafety> CleanupSelectionPreview::highestRisk() const
{
    if (safetyBreakdown.manualReviewCount > 0) {
        return CleanupSafety::manualReview;
    }
    if (safetyBreakdown.cautionCount > 0) {
        return CleanupSafety::caution;
    }
    return safetyBreakdown.safeCount > 0 ? std::optional(CleanupSafety::safe) : std::nullopt;
}

} // namespace CleanerCore
