#pragma once

#include "CleanerCore/Scan/ScanLocation.h"
#include "CleanerCore/Scan/StorageScanner.h"
#include "Platform/Base/Date.h"

#include <cstdint>
#include <optional>

namespace CleanerCore {

/// What a location and the scanner's configuration say about the walk of one child.
struct InventoryRules {
    InventoryRules(
        const ScanLocation& location, const StorageScanner::Configuration& configuration, Platform::Date scanDate)
        : now(scanDate)
        , minimumModificationAge(location.minimumModificationAge)
        , includesHiddenFiles(location.includesHiddenFiles)
        , includesPackageDescendants(location.includesPackageDescendants)
        , maximumItems(configuration.maximumInventoryItemsPerCandidate)
        , progressInterval(configuration.inventoryProgressItemInterval)
    {
    }

    /// Whether a modification at `date` is too recent for the location. An unknown date counts as old.
    [[nodiscard]] bool isYoung(const std::optional<Platform::Date>& date) const
    {
        return date && minimumModificationAge > 0 && now.secondsSince(*date) < minimumModificationAge;
    }

    Platform::Date now;
    double minimumModificationAge = 0;
    bool includesHiddenFiles = false;
    bool includesPackageDescendants = false;
    std::int64_t maximumItems = 0;
    std::int64_t progressInterval = 0;
};

} // namespace CleanerCore
