#include "CleanerCore/Scan/StorageProfiles.h"

#include "CleanerCore/Scan/DirectLocations.h"
#include "CleanerCore/Scan/LocationAges.h"
#include "CleanerCore/Scan/MacLocations.h"
#include "CleanerCore/Scan/XDGLocations.h"

#include <iterator>

namespace CleanerCore::StorageProfiles {

namespace {

using Platform::DirectoryHint;
using Platform::FileURL;

void append(std::vector<ScanLocation>& locations, std::vector<ScanLocation> more)
{
    locations.insert(locations.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

} // namespace

std::vector<ScanLocation> locations(CleanupScanMode mode, const FileURL& homeDirectory,
    const Platform::FileManager& fileManager, const Platform::Environment& environment, bool includesDirectDistribution,
    const std::stop_token& stop)
{
    if (fileManager.directoryExists(homeDirectory.appending("Library", DirectoryHint::isFolder))) {
        return macOSLocations(mode, homeDirectory, fileManager, includesDirectDistribution, stop);
    }
    return xdgLocations(mode, homeDirectory, fileManager, environment, includesDirectDistribution, stop);
}

std::vector<ScanLocation> macOSDefaultLocations(const FileURL& homeDirectory)
{
    return standardMacLocations(homeDirectory);
}

std::vector<ScanLocation> macOSLocations(CleanupScanMode mode, const FileURL& homeDirectory,
    const Platform::FileManager& fileManager, bool includesDirectDistribution, const std::stop_token& stop)
{
    switch (sanitized(mode, includesDirectDistribution)) {
    case CleanupScanMode::standard:
        break;
    case CleanupScanMode::aggressive:
        return aggressiveMacLocations(homeDirectory, fileManager, stop);
    case CleanupScanMode::direct: {
        auto all = aggressiveMacLocations(homeDirectory, fileManager, stop);
        append(all, directLocations(homeDirectory, fileManager, stop));
        return all;
    }
    }
    return standardMacLocations(homeDirectory);
}

std::vector<ScanLocation> xdgLocations(CleanupScanMode mode, const FileURL& homeDirectory,
    const Platform::FileManager& fileManager, const Platform::Environment& environment, bool includesDirectDistribution,
    const std::stop_token& stop)
{
    XDGLocations xdg(homeDirectory, fileManager, environment, stop);
    switch (sanitized(mode, includesDirectDistribution)) {
    case CleanupScanMode::standard:
        return xdg.standard();
    case CleanupScanMode::aggressive:
        return xdg.aggressive();
    case CleanupScanMode::direct:
        return xdg.direct();
    }
    return xdg.standard();
}

std::vector<ScanLocation> appSandboxLocations(
    const std::optional<FileURL>& cachesDirectory, const FileURL& temporaryDirectory)
{
    std::vector<ScanLocation> all;
    if (cachesDirectory) {
        all.emplace_back(ScanLocation::Fields{
            .rootURL = *cachesDirectory,
            .category = CleanupCategory::appSandboxCaches,
            .displayName = "App Caches",
            .isSelectedByDefault = true,
            .safety = CleanupSafety::safe,
            .minimumModificationAge = kNoAge,
            .includesHiddenFiles = true,
            .includesPackageDescendants = true,
        });
    }
    all.emplace_back(ScanLocation::Fields{
        .rootURL = FileURL::folder(temporaryDirectory.path()),
        .category = CleanupCategory::temporaryFiles,
        .displayName = "Temporary Files",
        .isSelectedByDefault = false,
        .safety = CleanupSafety::caution,
        .minimumModificationAge = kOneDay,
        .includesHiddenFiles = true,
        .includesPackageDescendants = true,
    });
    return all;
}

} // namespace CleanerCore::StorageProfiles
