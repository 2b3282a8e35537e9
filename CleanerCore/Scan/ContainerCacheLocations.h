#pragma once

#include "CleanerCore/Scan/CleanupCategory.h"
#include "CleanerCore/Scan/ScanLocation.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

#include <stop_token>
#include <string_view>
#include <vector>

namespace CleanerCore {

/// Where each folder of a folder of containers keeps its cache, and what that is called.
struct CacheFolders {
    /// Below the container.
    std::string_view relativePath;
    /// The categories of containers seed the context of each location with the container's name.
    CleanupCategory category;
    /// Stands before the container's name.
    std::string_view displayPrefix;
};

/// One location for each real folder in `base` that has a cache folder which may be touched, in the order of the file
/// system. A base that cannot be listed gives none.
[[nodiscard]] std::vector<ScanLocation> cacheLocations(const Platform::FileURL& base, const CacheFolders& caches,
    const Platform::FileManager& fileManager, const std::stop_token& stop);

} // namespace CleanerCore
