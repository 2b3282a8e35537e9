#include "CleanerCore/Scan/ContainerCacheLocations.h"

#include "CleanerCore/Safety/NoTouchPathPolicy.h"
#include "CleanerCore/Scan/LocationAges.h"
#include "CleanerCore/Scan/RealFolder.h"

#include <optional>
#include <string>

namespace CleanerCore {

namespace {

std::optional<AppCacheContext> seededContext(CleanupCategory category, std::string_view containerName)
{
    switch (category) {
    case CleanupCategory::appContainerCaches:
        return AppCacheContext::seed(AppCacheContainerKind::appContainer, containerName);
    case CleanupCategory::groupContainerCaches:
        return AppCacheContext::seed(AppCacheContainerKind::groupContainer, containerName);
    default:
        return std::nullopt;
    }
}

} // namespace

std::vector<ScanLocation> cacheLocations(const Platform::FileURL& base, const CacheFolders& caches,
    const Platform::FileManager& fileManager, const std::stop_token& stop)
{
    std::vector<ScanLocation> locations;
    const auto containers = fileManager.contentsOfDirectory(base);
    if (!containers) {
        return locations;
    }
    for (const auto& container : *containers) {
        if (stop.stop_requested() || !isRealFolder(container, fileManager)) {
            continue;
        }
        const auto cacheURL = container.appending(caches.relativePath, Platform::DirectoryHint::isFolder);
        if (NoTouchPathPolicy::isNoTouchPath(cacheURL) || !fileManager.directoryExists(cacheURL)) {
            continue;
        }
        const auto name = container.lastPathComponent();
        locations.emplace_back(ScanLocation::Fields{
            .rootURL = cacheURL,
            .category = caches.category,
            .displayName = std::string(caches.displayPrefix) + ": " + std::string(name),
            .isSelectedByDefault = false,
            .safety = CleanupSafety::manualReview,
            .minimumModificationAge = kNoAge,
            .includesHiddenFiles = true,
            .includesPackageDescendants = true,
            .appCacheContext = seededContext(caches.category, name),
        });
    }
    return locations;
}

} // namespace CleanerCore
