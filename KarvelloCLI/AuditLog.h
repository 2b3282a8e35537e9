#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "CleanerCore/Audit/CleanupAuditStore.h"
#include "Platform/Files/FileManager.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace KarvelloCLI {

/// What the log holds, and what is wrong with it.
struct AuditLogReading {
    /// The newest first.
    std::vector<CleanerCore::CleanupAuditEntry> entries;
    /// A sentence for the user. Absent: the log is sound, or there is none yet.
    std::optional<std::string> complaint;

    /// At most `limit` entries. A damaged log stays as it is: its loss is for a person to see first.
    static AuditLogReading of(const CleanerCore::CleanupAuditStore& store, const Platform::FileManager& fileManager,
        std::int64_t limit = CleanerCore::CleanupAuditStore::defaultLimit);
};

enum class Logged : std::uint8_t { yes, no };

/// Adds an entry in the form for storage, and sees to it that it is there; if not, tells the user.
Logged appendToAuditLog(const CleanerCore::CleanupAuditStore& store, const CleanerCore::CleanupAuditEntry& entry,
    const Platform::FileManager& fileManager);

} // namespace KarvelloCLI
