#pragma once

#include "Platform/Base/FileURL.h"

#include <cstdint>
#include <optional>

namespace CleanerCore {

/// One report on a running scan.
struct StorageScanProgress {
    /// Negative counts become 0, and the fraction is brought into 0 to 1 (what is no number becomes 0).
    [[nodiscard]] StorageScanProgress normalized() const;
    /// No URL, all counts 0, no total for the location, fraction 0.
    static StorageScanProgress empty() { return {}; }

    std::optional<Platform::FileURL> currentURL = {};
    std::int64_t completedLocations = 0;
    std::int64_t totalLocations = 0;
    std::int64_t completedItems = 0;
    std::int64_t completedItemsInCurrentLocation = 0;
    std::optional<std::int64_t> totalItemsInCurrentLocation = {};
    std::int64_t foundCandidates = 0;
    std::int64_t skippedItems = 0;
    /// 0 to 1. It moves only between locations.
    double fractionCompleted = 0;

    /// The fraction in whole percent, rounded to the nearest.
    [[nodiscard]] int percentage() const;

    friend bool operator==(const StorageScanProgress&, const StorageScanProgress&) = default;
};

} // namespace CleanerCore
