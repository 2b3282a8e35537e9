#include "CleanerCore/Cleaning/CleanupStorageImpactReport.h"

#include <algorithm>

namespace CleanerCore {

namespace {

std::int64_t notNegative(std::int64_t value)
{
    return std::max<std::int64_t>(value, 0);
}

} // namespace

CleanupStorageImpactReport::CleanupStorageImpactReport(const Fields& fields)
    : source(fields.source)
    , mode(fields.mode)
    , occurredAt(fields.occurredAt)
    , requestedItemCount(notNegative(fields.requestedItemCount))
    , succeededItemCount(notNegative(fields.succeededItemCount))
    , failedItemCount(notNegative(fields.failedItemCount))
    , expectedBytes(notNegative(fields.expectedBytes))
    , affectedBytes(notNegative(fields.affectedBytes))
    , wasCancelled(fields.wasCancelled)
{
}

std::optional<CleanupStorageImpactReport> CleanupStorageImpactReport::fromAuditEntry(
    const CleanupAuditEntry& auditEntry)
{
    if (auditEntry.operation != CleanupAuditOperation::clean) {
        return std::nullopt;
    }
    return CleanupStorageImpactReport({
        .source = auditEntry.source,
        .mode = auditEntry.mode,
        .occurredAt = auditEntry.occurredAt,
        .requestedItemCount = auditEntry.requestedItemCount,
        .succeededItemCount = auditEntry.succeededItemCount,
        .failedItemCount = auditEntry.failedItemCount,
        .expectedBytes = auditEntry.requestedBytes,
        .affectedBytes = auditEntry.affectedBytes,
        .wasCancelled = auditEntry.wasCancelled,
    });
}

std::int64_t CleanupStorageImpactReport::remainingExpectedBytes() const
{
    return std::max<std::int64_t>(expectedBytes - affectedBytes, 0);
}

std::optional<double> CleanupStorageImpactReport::outcomeFraction() const
{
    if (expectedBytes < 1) {
        return std::nullopt;
    }
    return std::min(static_cast<double>(affectedBytes) / static_cast<double>(expectedBytes), 1.0);
}

} // namespace CleanerCore
