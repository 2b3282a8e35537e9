#include "KarvelloUI/Sessions/RestoreCenter.h"

#include <algorithm>
#include <iterator>

namespace KarvelloUI::RestoreCenter {

using CleanerCore::CleanedItem;
using CleanerCore::CleanResult;
using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupAuditOperation;
using CleanerCore::CleanupRestoreCenterSnapshot;

bool isRestorable(const CleanedItem& item)
{
    return item.destinationURL.has_value() && item.restoreSourceIdentity.has_value();
}

bool hasRestorableItems(const std::optional<CleanResult>& result)
{
    return result && std::ranges::any_of(result->cleanedItems, isRestorable);
}

std::vector<CleanedItem> restorableItems(
    const CleanResult& result, const std::set<std::string, std::less<>>& candidateIDs)
{
    std::vector<CleanedItem> items;
    std::ranges::copy_if(result.cleanedItems, std::back_inserter(items),
        [&](const CleanedItem& item) { return isRestorable(item) && candidateIDs.contains(item.candidate.id); });
    return items;
}

const CleanupAuditEntry* latestTrashMoveAuditEntry(std::span<const CleanupAuditEntry> entries)
{
    const auto isOfReview = [](const CleanupAuditEntry& entry, CleanupAuditOperation operation) {
        return entry.operation == operation && entry.source == CleanerCore::CleanupAuditSource::cleanupDashboard;
    };
    const auto restore = std::ranges::find_if(
        entries, [&](const auto& entry) { return isOfReview(entry, CleanupAuditOperation::restore); });
    const auto clean = std::ranges::find_if(entries, [&](const CleanupAuditEntry& entry) {
        return isOfReview(entry, CleanupAuditOperation::clean)
            && std::ranges::any_of(entry.cleanedItems, [](const auto& item) { return item.destinationURL.has_value(); })
            && (restore == entries.end() || entry.occurredAt > restore->occurredAt);
    });
    return clean == entries.end() ? nullptr : &*clean;
}

CleanupRestoreCenterSnapshot snapshot(
    const std::optional<CleanResult>& lastCleanResult, std::span<const CleanupAuditEntry> entries)
{
    const auto* const entry = lastCleanResult ? nullptr : latestTrashMoveAuditEntry(entries);
    return entry != nullptr ? CleanupRestoreCenterSnapshot(*entry) : CleanupRestoreCenterSnapshot(lastCleanResult);
}

} // namespace KarvelloUI::RestoreCenter
