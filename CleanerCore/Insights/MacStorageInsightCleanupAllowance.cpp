#include "CleanerCore/Insights/MacStorageInsightCleanupAllowance.h"

#include "CleanerCore/Safety/NoTouchPathPolicy.h"

#include <optional>

namespace CleanerCore {

namespace {

constexpr std::int64_t kMaximumValidationDescendantItems = 100'000;

} // namespace

MacStorageInsightCleanupAllowance::MacStorageInsightCleanupAllowance(
    std::span<const ScanLocation> allowedLocations, const Platform::FileManager& fileManager)
    : m_eligibilityPolicy(allowedLocations, fileManager, kMaximumValidationDescendantItems)
    , m_pathPolicy(rootURLs(allowedLocations), std::nullopt, fileManager)
{
}

bool MacStorageInsightCleanupAllowance::allows(
    const Platform::FileURL& url, const Platform::FileManager& fileManager) const
{
    return !NoTouchPathPolicy::isNoTouchPath(url)
        && m_eligibilityPolicy.mostSpecificLiveRoot(url.path(), fileManager).has_value()
        && m_pathPolicy.validate(url, fileManager).has_value();
}

} // namespace CleanerCore
