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
    ++count(safety);
}

void CleanupSafetyBreakdown::remove(CleanupSafety safety)
{
    --count(safety);
}

std::int64_t& CleanupSafetyBreakdown::count(CleanupSafety safety)
{
    switch (safety) {
    case CleanupSafety::safe:
        return safeCount;
    case CleanupSafety::caution:
        return cautionCount;
    case CleanupSafety::manualReview:
        break;
    }
    return manualReviewCount;
}

} // namespace CleanerCore
