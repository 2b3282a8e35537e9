#include "CleanerCore/Scan/CleanupCandidate.h"

#include "CleanerCore/Scan/ItemIdentifier.h"

#include <algorithm>
#include <utility>

namespace CleanerCore {

bool CleanupManualReviewPolicy::requires_(
    CleanupCategory category, CleanupSafety safety, bool requiresManualReviewBySource)
{
    return requiresManualReviewBySource || safety == CleanupSafety::manualReview
        || requiresManualReviewByDefault(category);
}

CleanupCandidate::CleanupCandidate(Fields fields)
    : id(makeId(fields.category, fields.url))
    , url(std::move(fields.url))
    , displayName(fields.displayName ? std::move(*fields.displayName) : std::string(url.lastPathComponent()))
    , category(fields.category)
    , sizeBytes(std::max<std::int64_t>(fields.sizeBytes, 0))
    , lastModified(fields.lastModified)
    , resourceIdentity(std::move(fields.resourceIdentity))
    , isSelectedByDefault(fields.isSelectedByDefault)
    , safety(fields.safety)
    , requiresManualReviewBySource(fields.requiresManualReviewBySource)
    , appCacheContext(std::move(fields.appCacheContext))
{
}

std::string CleanupCandidate::makeId(CleanupCategory category, const Platform::FileURL& url)
{
    return itemIdentifier(Platform::rawValue(category), url);
}

CleanupRecommendationReason CleanupCandidate::recommendationReason() const
{
    return CleanerCore::recommendationReason(category);
}

bool CleanupCandidate::requiresManualReview() const
{
    return CleanupManualReviewPolicy::requires_(category, safety, requiresManualReviewBySource);
}

CleanupCandidate CleanupCandidate::withAppCacheContext(std::optional<AppCacheContext> context) const
{
    return CleanupCandidate({
        .url = url,
        .displayName = displayName,
        .category = category,
        .sizeBytes = sizeBytes,
        .lastModified = lastModified,
        .resourceIdentity = resourceIdentity,
        .isSelectedByDefault = isSelectedByDefault,
        .safety = safety,
        .requiresManualReviewBySource = requiresManualReviewBySource,
        .appCacheContext = std::move(context),
    });
}

} // namespace CleanerCore
