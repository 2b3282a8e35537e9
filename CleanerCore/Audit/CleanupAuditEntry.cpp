#include "CleanerCore/Audit/CleanupAuditEntry.h"

#include "Platform/Base/CheckedMath.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <ranges>
#include <utility>

namespace CleanerCore {

namespace {

constexpr std::string_view kFailureReasonLabel = "audit-failure-reason";

std::int64_t summedBytes(const auto& items, auto candidateOf)
{
    std::int64_t sum = 0;
    for (const auto& item : items) {
        sum = Platform::checkedAdd(sum, std::invoke(candidateOf, item).sizeBytes);
    }
    return sum;
}

const CleanupCandidate& candidateOfRestored(const RestoredCleanedItem& item)
{
    return item.cleanedItem.candidate;
}

std::vector<std::string> sampleOf(const auto& items, auto textOf)
{
    std::vector<std::string> sample;
    for (const auto& item : items | std::views::take(CleanupAuditEntry::kSampleLimit)) {
        sample.push_back(std::invoke(textOf, item));
    }
    return sample;
}

void cut(auto& list, std::size_t limit)
{
    if (list.size() > limit) {
        list.erase(list.begin() + static_cast<std::ptrdiff_t>(limit), list.end());
    }
}

} // namespace

CleanupAuditEntry CleanupAuditEntry::clean(const CleanResult& result, CleaningMode mode,
    std::span<const CleanupCandidate> requestedCandidates, CleanupAuditSource source, Platform::Date occurredAt)
{
    CleanupAuditEntry entry{
        .id = Platform::UUID::random(),
        .occurredAt = occurredAt,
        .operation = CleanupAuditOperation::clean,
        .source = source,
        .mode = mode,
        .requestedItemCount = std::ssize(requestedCandidates),
        .requestedBytes = summedBytes(requestedCandidates, std::identity()),
        .succeededItemCount = std::ssize(result.cleanedItems),
        .failedItemCount = std::ssize(result.failedItems),
        .affectedBytes = result.reclaimedBytes(),
        .wasCancelled = result.wasCancelled,
        .samplePaths = sampleOf(result.cleanedItems, [](const CleanedItem& item) { return item.candidate.url.path(); }),
        .failureReasons = sampleOf(result.failedItems, &FailedCleanItem::reason),
        .cleanedItems = {},
    };
    std::ranges::copy(result.cleanedItems | std::views::take(cleanedItemLimit), std::back_inserter(entry.cleanedItems));
    return entry;
}

CleanupAuditEntry CleanupAuditEntry::restore(const RestoreResult& result, std::span<const CleanedItem> requestedItems,
    CleanupAuditSource source, Platform::Date occurredAt)
{
    return {
        .id = Platform::UUID::random(),
        .occurredAt = occurredAt,
        .operation = CleanupAuditOperation::restore,
        .source = source,
        .mode = std::nullopt,
        .requestedItemCount = std::ssize(requestedItems),
        .requestedBytes = summedBytes(requestedItems, &CleanedItem::candidate),
        .succeededItemCount = std::ssize(result.restoredItems),
        .failedItemCount = std::ssize(result.failedItems),
        .affectedBytes = summedBytes(result.restoredItems, candidateOfRestored),
        .wasCancelled = result.wasCancelled,
        .samplePaths =
            sampleOf(result.restoredItems, [](const RestoredCleanedItem& item) { return item.restoredURL.path(); }),
        .failureReasons = sampleOf(result.failedItems, &FailedRestoreItem::reason),
        .cleanedItems = {},
    };
}

CleanupAuditEntry CleanupAuditEntry::storageSafe(ReportExportRedactionContext& context) const
{
    CleanupAuditEntry safe{
        .id = id,
        .occurredAt = occurredAt,
        .operation = operation,
        .source = source,
        .mode = mode,
        .requestedItemCount = requestedItemCount,
        .requestedBytes = requestedBytes,
        .succeededItemCount = succeededItemCount,
        .failedItemCount = failedItemCount,
        .affectedBytes = affectedBytes,
        .wasCancelled = wasCancelled,
        .samplePaths = {},
        .failureReasons = sampleOf(
            failureReasons, [&](const std::string& reason) { return context.freeText(reason, kFailureReasonLabel); }),
        .cleanedItems = {},
    };
    if (operation == CleanupAuditOperation::clean && mode != CleaningMode::deletePermanently) {
        std::ranges::copy(cleanedItems | std::views::filter([](const CleanedItem& item) {
            return item.destinationURL.has_value();
        }) | std::views::take(cleanedItemLimit),
            std::back_inserter(safe.cleanedItems));
    }
    return safe;
}

CleanupAuditEntry CleanupAuditEntry::storageSafeForAuditPersistence() const
{
    ReportExportRedactionContext context;
    return storageSafe(context);
}

CleanupAuditEntry CleanupAuditEntry::normalized() &&
{
    cut(samplePaths, kSampleLimit);
    cut(failureReasons, kSampleLimit);
    cut(cleanedItems, cleanedItemLimit);
    return std::move(*this);
}

} // namespace CleanerCore
