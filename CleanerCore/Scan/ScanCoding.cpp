#include "CleanerCore/Scan/ScanCoding.h"

#include <string>
#include <utility>

namespace Platform {

void JSONFields<CleanerCore::CleanupCandidate>::normalize(CleanerCore::CleanupCandidate& candidate)
{
    auto storedId = std::move(candidate.id);
    candidate = candidate.withAppCacheContext(std::move(candidate.appCacheContext));
    candidate.id = std::move(storedId);
}

void JSONFields<CleanerCore::ScanLocation>::normalize(CleanerCore::ScanLocation& location)
{
    location = CleanerCore::ScanLocation({
        .rootURL = std::move(location.rootURL),
        .category = location.category,
        .displayName = std::move(location.displayName),
        .depth = location.depth,
        .isSelectedByDefault = location.isSelectedByDefault,
        .safety = location.safety,
        .minimumModificationAge = location.minimumModificationAge,
        .includesHiddenFiles = location.includesHiddenFiles,
        .includesPackageDescendants = location.includesPackageDescendants,
        .appCacheContext = std::move(location.appCacheContext),
    });
}

} // namespace Platform
