#include "CleanerCore/Scan/ChildDecision.h"

#include "CleanerCore/Scan/DirectoryInventory.h"
#include "CleanerCore/Scan/StorageScannerSkipReason.h"

namespace CleanerCore {

using Platform::DirectoryHint;
using Platform::FileURL;

ChildOutcome ChildDecision::decide(const Platform::ItemReference& child, InventoryEvents& events) const
{
    if (m_stop.stop_requested()) {
        return {};
    }
    FileURL url = child.url();
    const auto skip = [&url](std::string_view reason) { return SkippedItem{std::move(url), std::string(reason)}; };

    const auto values = m_fileManager.resourceValues(child);
    if (!values) {
        return skip(values.error().localizedDescription());
    }
    if (values->isSymbolicLink.value_or(false)) {
        return skip(StorageScannerSkipReason::symbolicLink);
    }
    const auto state = m_rootState.descend(url.lastPathComponent());
    if (state.isNoTouch() || values->isOnOtherVolume) {
        return skip(StorageScannerSkipReason::noTouchPath);
    }
    const bool isDirectory = values->isDirectory.value_or(false);
    const bool topYoung = m_rules.isYoung(values->contentModificationDate);
    if (!isDirectory && topYoung) {
        return skip(StorageScannerSkipReason::recentlyModified);
    }
    url = std::move(url).withHint(isDirectory ? DirectoryHint::isFolder : DirectoryHint::isFile);

    // A young folder is walked all the same, without sizes: protected contents are the better reason to show.
    const auto sizes = topYoung ? SizeCollection::omit : SizeCollection::collect;
    const auto inventory =
        DirectoryInventory::take(child, *values, state, sizes, m_rules, m_fileManager, events, m_stop);
    if (m_stop.stop_requested()) {
        return {};
    }
    if (inventory.noTouchDescendantURL) {
        return skip(StorageScannerSkipReason::noTouchDescendant);
    }
    if (inventory.exceededItemLimit) {
        return skip(StorageScannerSkipReason::inventoryItemLimitExceeded);
    }
    if (topYoung || inventory.containsRecentlyModifiedItem || m_rules.isYoung(inventory.latestModificationDate)) {
        return skip(StorageScannerSkipReason::recentlyModified);
    }
    if (inventory.byteSize < 1) {
        return skip(StorageScannerSkipReason::emptyItem);
    }
    return candidate(child, url, inventory.byteSize, inventory.latestModificationDate);
}

CleanupCandidate ChildDecision::candidate(const Platform::ItemReference& child, const FileURL& url,
    std::int64_t byteSize, std::optional<Platform::Date> lastModified) const
{
    return CleanupCandidate(CleanupCandidate::Fields{
        .url = url,
        .displayName = std::nullopt,
        .category = m_location.category,
        .sizeBytes = byteSize,
        .lastModified = lastModified,
        .resourceIdentity = FileResourceIdentity::captureIfAvailable(child, m_fileManager),
        .isSelectedByDefault = m_location.isSelectedByDefault,
        .safety = m_location.safety,
        .requiresManualReviewBySource = false,
        .appCacheContext = m_location.appCacheContext,
    });
}

} // namespace CleanerCore
