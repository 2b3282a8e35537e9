#include "CleanerCore/Audit/AuditEntryRetention.h"

#include "CleanerCore/Audit/CleanupAuditStore.h"

#include <algorithm>
#include <compare>
#include <cstddef>
#include <iterator>
#include <set>
#include <utility>

namespace CleanerCore::AuditEntryRetention {

bool comesFirst(const CleanupAuditEntry& left, const CleanupAuditEntry& right)
{
    // A weak order even for dates that are no numbers, which sorting must not meet with "<".
    const auto order =
        std::weak_order(left.occurredAt.secondsSinceReferenceDate, right.occurredAt.secondsSinceReferenceDate);
    return order != 0 ? order > 0 : left.id > right.id;
}

std::vector<CleanupAuditEntry> limited(std::vector<CleanupAuditEntry> entries, std::int64_t limit)
{
    std::set<Platform::UUID> seen;
    std::erase_if(entries, [&](const auto& entry) { return !seen.insert(entry.id).second; });
    std::ranges::stable_sort(entries, comesFirst);
    const auto kept = static_cast<std::size_t>(std::max<std::int64_t>(limit, 0));
    if (entries.size() > kept) {
        entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(kept), entries.end());
    }
    return entries;
}

std::vector<CleanupAuditEntry> reconciledAfterAppend(std::vector<CleanupAuditEntry> persistedEntries,
    std::span<const CleanupAuditEntry> currentEntries, const CleanupAuditEntry& appendedEntry)
{
    std::vector<CleanupAuditEntry> entries;
    std::ranges::copy_if(currentEntries, std::back_inserter(entries), [&](const CleanupAuditEntry& entry) {
        return entry.id != appendedEntry.id && comesFirst(entry, appendedEntry)
            && std::ranges::find(persistedEntries, entry.id, &CleanupAuditEntry::id) == persistedEntries.end();
    });
    std::ranges::move(persistedEntries, std::back_inserter(entries));
    return limited(std::move(entries), CleanupAuditStore::defaultLimit);
}

} // namespace CleanerCore::AuditEntryRetention
