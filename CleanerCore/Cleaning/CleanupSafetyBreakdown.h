#pragma once

#include "CleanerCore/Scan/CleanupCandidate.h"

#include <cstdint>
#include <span>

namespace CleanerCore {

/// How many candidates there are of each safety.
struct CleanupSafetyBreakdown {
    CleanupSafetyBreakdown() = default;
    explicit CleanupSafetyBreakdown(std::span<const CleanupCandidate> candidates);

    void add(CleanupSafety safety);
    /// A candidate of this safety was added before.
    void remove(CleanupSafety safety);

    std::int64_t safeCount = 0;
    std::int64_t cautionCount = 0;
    std::int64_t manualReviewCount = 0;

    friend bool operator==(const CleanupSafetyBreakdown&, const CleanupSafetyBreakdown&) = default;

private:
    std::int64_t& count(CleanupSafety safety);
};

} // namespace CleanerCore
