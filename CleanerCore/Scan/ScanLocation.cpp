#include "CleanerCore/Scan/ScanLocation.h"

#include <utility>

namespace CleanerCore {

ScanLocation::ScanLocation(Fields fields)
    : rootURL(std::move(fields.rootURL))
    , category(fields.category)
    , displayName(fields.displayName ? std::move(*fields.displayName) : std::string(rootURL.lastPathComponent()))
    , depth(fields.depth)
    , isSelectedByDefault(fields.isSelectedByDefault)
    , safety(fields.safety)
    // Written so that what is no number becomes 0, too.
    , minimumModificationAge(fields.minimumModificationAge > 0 ? fields.minimumModificationAge : 0)
    , includesHiddenFiles(fields.includesHiddenFiles)
    , includesPackageDescendants(fields.includesPackageDescendants)
    , appCacheContext(std::move(fields.appCacheContext))
{
}

std::vector<Platform::FileURL> rootURLs(std::span<const ScanLocation> locations)
{
    std::vector<Platform::FileURL> urls;
    urls.reserve(locations.size());
    for (const auto& location : locations) {
        urls.push_back(location.rootURL);
    }
    return urls;
}

} // namespace CleanerCore
