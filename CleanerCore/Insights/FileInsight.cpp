#include "CleanerCore/Insights/FileInsight.h"

#include "CleanerCore/Scan/ItemIdentifier.h"

#include <algorithm>
#include <utility>

namespace CleanerCore {

FileInsight::FileInsight(Fields fields)
    : id(itemIdentifier(Platform::rawValue(fields.kind), fields.url))
    , url(std::move(fields.url))
    , displayName(url.lastPathComponent())
    , parentPath(url.deletingLastPathComponent().path())
    , sizeBytes(std::max<std::int64_t>(fields.sizeBytes, 0))
    , lastModified(fields.lastModified)
    , resourceIdentity(std::move(fields.resourceIdentity))
    , kind(fields.kind)
    , detail(std::move(fields.detail))
    , safety(fields.safety)
{
}

CleanupCandidate FileInsight::cleanupCandidate(CleanupCategory category) const
{
    return CleanupCandidate({
        .url = url,
        .displayName = displayName,
        .category = category,
        .sizeBytes = sizeBytes,
        .lastModified = lastModified,
        .resourceIdentity = resourceIdentity,
        .isSelectedByDefault = false,
        .safety = safety,
        .requiresManualReviewBySource = false,
        .appCacheContext = std::nullopt,
    });
}

} // namespace CleanerCore
