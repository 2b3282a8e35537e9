#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"

#include <cstdint>
#include <span>
#include <vector>

/// What a session shows of the log while writes of it are under way.
namespace CleanerCore::AuditEntryRetention {

/// The order of the log: the newest first, and of two of one moment the one with the greater text of its id.
[[nodiscard]] bool comesFirst(const CleanupAuditEntry& left, const CleanupAuditEntry& right);

/// In the log's order, of each id the one that stands first in `entries`, and at most `limit` of them (below 0: none).
[[nodiscard]] std::vector<CleanupAuditEntry> limited(std::vector<CleanupAuditEntry> entries, std::int64_t limit);

/// What to show once the log has answered the append of `appendedEntry` with what it holds. Entries that were recorded
/// since then stay: the answer cannot have them yet.
[[nodiscard]] std::vector<CleanupAuditEntry> reconciledAfterAppend(std::vector<CleanupAuditEntry> persistedEntries,
    std::span<const CleanupAuditEntry> currentEntries, const CleanupAuditEntry& appendedEntry);

} // namespace CleanerCore::AuditEntryRetention
