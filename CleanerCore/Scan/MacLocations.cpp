#include "CleanerCore/Scan/MacLocations.h"

#include "CleanerCore/Scan/ContainerCacheLocations.h"
#include "CleanerCore/Scan/LocationAges.h"

#include <array>
#include <iterator>
#include <string>
#include <string_view>

namespace CleanerCore {

namespace {

using Platform::DirectoryHint;
using Platform::FileURL;

struct StandardRow {
    std::string_view path;
    CleanupCategory category;
    std::string_view displayName;
    bool isSelectedByDefault;
    CleanupSafety safety;
};

constexpr std::array kStandardRows{
    StandardRow{"Library/Caches", CleanupCategory::userCaches, "~/Library/Caches", true, CleanupSafety::safe},
    StandardRow{"Library/Logs", CleanupCategory::userLogs, "~/Library/Logs", true, CleanupSafety::safe},
    StandardRow{"Library/Developer/Xcode/DerivedData", CleanupCategory::xcodeDerivedData, "Xcode DerivedData", false,
        CleanupSafety::caution},
    StandardRow{"Library/Developer/CoreSimulator/Caches", CleanupCategory::simulatorCaches, "Simulator Caches", false,
        CleanupSafety::caution},
};

struct ContainersRow {
    std::string_view base;
    CacheFolders caches;
};

constexpr std::array kContainerRows{
    ContainersRow{
        "Library/Containers", {"Data/Library/Caches", CleanupCategory::appContainerCaches, "App Container Cache"}},
    ContainersRow{
        "Library/Group Containers", {"Library/Caches", CleanupCategory::groupContainerCaches, "Group Container Cache"}},
    ContainersRow{"Library/Developer/CoreSimulator/Devices",
        {"data/Library/Caches", CleanupCategory::simulatorCaches, "Simulator Device Cache"}},
};

} // namespace

std::vector<ScanLocation> standardMacLocations(const FileURL& homeDirectory)
{
    std::vector<ScanLocation> locations;
    locations.reserve(kStandardRows.size());
    for (const auto& row : kStandardRows) {
        locations.emplace_back(ScanLocation::Fields{
            .rootURL = homeDirectory.appending(row.path, DirectoryHint::isFolder),
            .category = row.category,
            .displayName = std::string(row.displayName),
            .isSelectedByDefault = row.isSelectedByDefault,
            .safety = row.safety,
            .minimumModificationAge = kOneDay,
        });
    }
    return locations;
}

std::vector<ScanLocation> aggressiveMacLocations(
    const FileURL& homeDirectory, const Platform::FileManager& fileManager, const std::stop_token& stop)
{
    std::vector<ScanLocation> locations;
    for (auto& location : standardMacLocations(homeDirectory)) {
        locations.push_back(rebuiltForAggressiveScan(std::move(location)));
    }
    locations.emplace_back(ScanLocation::Fields{
        .rootURL = homeDirectory.appending("Library/Developer/Xcode/iOS DeviceSupport", DirectoryHint::isFolder),
        .category = CleanupCategory::xcodeDeviceSupport,
        .displayName = "Xcode iOS DeviceSupport",
        .isSelectedByDefault = false,
        .safety = CleanupSafety::manualReview,
        .minimumModificationAge = kOneDay,
        .includesHiddenFiles = true,
        .includesPackageDescendants = true,
    });
    for (const auto& row : kContainerRows) {
        if (stop.stop_requested()) {
            break;
        }
        const auto base = homeDirectory.appending(row.base, DirectoryHint::isFolder);
        auto caches = cacheLocations(base, row.caches, fileManager, stop);
        locations.insert(
            locations.end(), std::make_move_iterator(caches.begin()), std::make_move_iterator(caches.end()));
    }
    return locations;
}

ScanLocation rebuiltForAggressiveScan(ScanLocation location)
{
    location.isSelectedByDefault = false;
    if (location.safety == CleanupSafety::safe) {
        location.safety = CleanupSafety::caution;
    }
    location.minimumModificationAge = kNoAge;
    location.includesHiddenFiles = true;
    location.includesPackageDescendants = true;
    return location;
}

} // namespace CleanerCore
