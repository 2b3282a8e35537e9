#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"

#include <fmt/format.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloUI {

using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupAuditSource;

struct TrashedFile {
    std::string path;
    std::int64_t bytes = 0;

    friend bool operator==(const TrashedFile&, const TrashedFile&) = default;
};

/// Ids whose order is that of the numbers.
[[nodiscard]] inline Platform::UUID auditId(int number)
{
    return *Platform::UUID::fromString(fmt::format("00000000-0000-4000-8000-{:012}", number));
}

[[nodiscard]] inline CleanerCore::CleanedItem cleanedItemOf(const TrashedFile& file)
{
    CleanerCore::CleanedItem item;
    item.candidate = CleanerCore::CleanupCandidate({.url = Platform::FileURL(file.path), .sizeBytes = file.bytes});
    item.destinationURL = Platform::FileURL("/home/ada/.local/share/Trash/files").appending(file.path);
    return item;
}

/// The entry of a clean that moved these files, as it is before it is stored.
[[nodiscard]] inline CleanupAuditEntry moveOf(int number, double date, const std::vector<TrashedFile>& files,
    CleanupAuditSource source = CleanupAuditSource::cleanupDashboard)
{
    CleanerCore::CleanResult result;
    std::vector<CleanerCore::CleanupCandidate> requested;
    for (const TrashedFile& file : files) {
        result.cleanedItems.push_back(cleanedItemOf(file));
        requested.push_back(result.cleanedItems.back().candidate);
    }
    auto entry = CleanupAuditEntry::clean(
        result, CleanerCore::CleaningMode::moveToTrash, requested, source, Platform::Date{date});
    entry.id = auditId(number);
    return entry;
}

/// The entry of a restore that put these files back, as it is before it is stored.
[[nodiscard]] inline CleanupAuditEntry restoreOf(int number, double date, const std::vector<TrashedFile>& files,
    CleanupAuditSource source = CleanupAuditSource::cleanupDashboard)
{
    CleanerCore::RestoreResult result;
    std::vector<CleanerCore::CleanedItem> requested;
    for (const TrashedFile& file : files) {
        requested.push_back(cleanedItemOf(file));
        result.restoredItems.push_back({requested.back(), Platform::FileURL(file.path)});
    }
    auto entry = CleanupAuditEntry::restore(result, requested, source, Platform::Date{date});
    entry.id = auditId(number);
    return entry;
}

/// As the log has them.
[[nodiscard]] inline std::vector<CleanupAuditEntry> stored(const std::vector<CleanupAuditEntry>& entries)
{
    CleanerCore::ReportExportRedactionContext context;
    std::vector<CleanupAuditEntry> safe;
    for (const CleanupAuditEntry& entry : entries) {
        safe.push_back(entry.storageSafe(context));
    }
    return safe;
}

} // namespace KarvelloUI
