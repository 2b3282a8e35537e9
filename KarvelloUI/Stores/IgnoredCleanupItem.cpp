#include "KarvelloUI/Stores/IgnoredCleanupItem.h"

#include "Platform/Base/TextOrder.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace KarvelloUI {

namespace {

using CleanerCore::CleanupCategory;

constexpr auto kDurations = Platform::allCases<CleanupIgnoreDuration>();

bool mayStayHidden(const CleanerCore::CleanupCandidate& candidate)
{
    if (candidate.requiresManualReviewBySource || candidate.safety == CleanerCore::CleanupSafety::manualReview) {
        return false;
    }
    switch (candidate.category) {
    case CleanupCategory::userCaches:
    case CleanupCategory::userLogs:
    case CleanupCategory::xcodeDerivedData:
    case CleanupCategory::simulatorCaches:
    case CleanupCategory::appSandboxCaches:
    case CleanupCategory::appContainerCaches:
    case CleanupCategory::groupContainerCaches:
    case CleanupCategory::xcodeDeviceSupport:
    case CleanupCategory::temporaryFiles:
        return true;
    case CleanupCategory::developerToolCaches:
    case CleanupCategory::packageManagerCaches:
    case CleanupCategory::buildArchives:
    case CleanupCategory::customFolder:
        return false;
    }
    return false;
}

} // namespace

std::optional<Platform::Date> expirationDate(CleanupIgnoreDuration duration, Platform::Date from)
{
    constexpr double secondsPerDay = 86'400;
    switch (duration) {
    case CleanupIgnoreDuration::oneDay:
        return from.addingSeconds(secondsPerDay);
    case CleanupIgnoreDuration::oneWeek:
        return from.addingSeconds(7 * secondsPerDay);
    case CleanupIgnoreDuration::untilShownAgain:
        break;
    }
    return std::nullopt;
}

std::span<const CleanupIgnoreDuration> availableIgnoreDurations(const CleanerCore::CleanupCandidate& candidate)
{
    return std::span(kDurations).first(mayStayHidden(candidate) ? 3 : 2);
}

CleanupIgnoreDuration defaultIgnoreDuration(const CleanerCore::CleanupCandidate& candidate)
{
    return availableIgnoreDurations(candidate).back();
}

IgnoredCleanupItem::IgnoredCleanupItem(
    const CleanerCore::CleanupCandidate& candidate, Platform::Date ignored, CleanupIgnoreDuration chosen)
    : id(candidate.id)
    , displayName(candidate.displayName)
    , path(candidate.url.path())
    , category(candidate.category)
    , sizeBytes(candidate.sizeBytes)
    , ignoredAt(ignored)
    , duration(chosen)
    , expiresAt(expirationDate(chosen, ignored))
{
}

void sortIgnoredItems(std::vector<IgnoredCleanupItem>& items)
{
    std::stable_sort(items.begin(), items.end(), [](const IgnoredCleanupItem& left, const IgnoredCleanupItem& right) {
        if (left.ignoredAt != right.ignoredAt) {
            return left.ignoredAt > right.ignoredAt;
        }
        return Platform::Text::localizedStandardCompare(left.path, right.path) < 0;
    });
}

std::vector<IgnoredCleanupItem> activeIgnoredItems(std::span<const IgnoredCleanupItem> items, Platform::Date now)
{
    std::vector<IgnoredCleanupItem> active;
    std::copy_if(items.begin(), items.end(), std::back_inserter(active),
        [&](const IgnoredCleanupItem& item) { return item.isActive(now); });
    return active;
}

std::vector<IgnoredCleanupItem> addingIgnoredItem(
    std::span<const IgnoredCleanupItem> items, IgnoredCleanupItem added, Platform::Date now)
{
    auto list = activeIgnoredItems(items, now);
    std::erase_if(list, [&](const IgnoredCleanupItem& item) { return item.id == added.id; });
    list.push_back(std::move(added));
    sortIgnoredItems(list);
    return list;
}

} // namespace KarvelloUI
