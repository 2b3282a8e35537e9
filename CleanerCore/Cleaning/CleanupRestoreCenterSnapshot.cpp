#include "CleanerCore/Cleaning/CleanupRestoreCenterSnapshot.h"

#include "Platform/Base/CheckedMath.h"

#include <algorithm>
#include <iterator>

namespace CleanerCore {

namespace {

std::int64_t summedBytes(const std::vector<CleanedItem>& items)
{
    std::int64_t sum = 0;
    for (const auto& item : items) {
        sum = Platform::saturatingAdd(sum, item.candidate.sizeBytes);
    }
    return sum;
}

} // namespace

CleanupRestoreCenterSnapshot::CleanupRestoreCenterSnapshot(const std::optional<CleanResult>& cleanResult)
{
    if (!cleanResult) {
        return;
    }
    takeItems(cleanResult->cleanedItems);
    failedItemCount = std::ssize(cleanResult->failedItems);
    wasCancelled = cleanResult->wasCancelled;
    allowsRestoreAttempts = true;
}

CleanupRestoreCenterSnapshot::CleanupRestoreCenterSnapshot(const CleanupAuditEntry& auditEntry)
    : failedItemCount(std::max<std::int64_t>(auditEntry.failedItemCount, 0))
    , wasCancelled(auditEntry.wasCancelled)
    , auditSource(auditEntry.source)
    , recordedAt(auditEntry.occurredAt)
{
    takeItems(auditEntry.cleanedItems);
}

std::int64_t CleanupRestoreCenterSnapshot::trashMovedBytes() const
{
    return summedBytes(trashMovedItems);
}

std::int64_t CleanupRestoreCenterSnapshot::restorableBytes() const
{
    return summedBytes(restoreAuthorizedItems);
}

void CleanupRestoreCenterSnapshot::takeItems(const std::vector<CleanedItem>& items)
{
    recentItems = items;
    std::ranges::copy_if(items, std::back_inserter(trashMovedItems),
        [](const CleanedItem& item) { return item.destinationURL.has_value(); });
    std::ranges::copy_if(trashMovedItems, std::back_inserter(restoreAuthorizedItems),
        [](const CleanedItem& item) { return item.restoreSourceIdentity.has_value(); });
}

} // namespace CleanerCore
