#include "CleanerCore/Cleaning/CleanupSafetyBreakdown.h"

namespace CleanerCore {

CleanupSafetyBreakdown::CleanupSafetyBreakdown(std::span<const CleanupCandidate> candidates)
{
    for (const auto& candidate : candidates) {
        add(candidate.safety);
    }
}

void CleanupSafetyBreakdown::add(CleanupSafety safety)
{
    switch (safety) {
    case CleanupSafety::safe:
        ++safeCount;
        return;
    case CleanupSafety::caution:
        ++cautionCount;
        return;
    case CleanupSafety::manualReview:
        ++manualReviewCount;
        return;
    }
}

} // namespace CleanerCore
