#include "KarvelloUI/Sessions/ActiveScan.h"

#include "CleanerCore/Scan/StorageScanner.h"

#include <utility>

namespace KarvelloUI {

ActiveScan ActiveScan::none(const Platform::FileManager& fileManager)
{
    return of({}, fileManager, std::nullopt);
}

ActiveScan ActiveScan::of(std::vector<CleanerCore::ScanLocation> locations, const Platform::FileManager& fileManager,
    std::optional<Platform::FileURL> homeDirectory)
{
    const auto limit = CleanerCore::StorageScanner::Configuration::standard().maximumInventoryItemsPerCandidate;
    CleanerCore::CleanupEligibilityPolicy policy(locations, fileManager, limit, homeDirectory);
    return {.locations = std::move(locations),
        .cleanupEligibilityPolicy = std::move(policy),
        .homeDirectory = std::move(homeDirectory)};
}

} // namespace KarvelloUI
