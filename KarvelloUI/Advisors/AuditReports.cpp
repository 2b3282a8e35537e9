#include "KarvelloUI/Advisors/AuditReports.h"

#include "KarvelloUI/Advisors/TrashLedger.h"

#include <algorithm>
#include <array>
#include <optional>
#include <tuple>

namespace KarvelloUI {

namespace {

using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupStorageImpactReport;

constexpr std::size_t kSourceCount = Platform::RawValues<CleanerCore::CleanupAuditSource>::names.size();

std::vector<const CleanupAuditEntry*> oldestFirst(std::span<const CleanupAuditEntry> entries)
{
    std::vector<const CleanupAuditEntry*> order;
    order.reserve(entries.size());
    for (const auto& entry : entries) {
        order.push_back(&entry);
    }
    std::ranges::stable_sort(order, {},
        [](const CleanupAuditEntry* entry) { return std::tie(entry->occurredAt, entry->operation, entry->id); });
    return order;
}

/// A clean, and the number of its move, if it left anything in the Trash.
struct RecordedClean {
    const CleanupAuditEntry* entry = nullptr;
    CleanupStorageImpactReport report;
    std::optional<std::size_t> move;
};

} // namespace

std::vector<AuditReport> auditReportsLessRestores(std::span<const CleanupAuditEntry> entries)
{
    std::array<TrashLedger, kSourceCount> ledgers;
    std::vector<RecordedClean> cleans;
    for (const CleanupAuditEntry* entry : oldestFirst(entries)) {
        TrashLedger& ledger = ledgers[static_cast<std::size_t>(entry->source)];
        const auto report = CleanupStorageImpactReport::fromAuditEntry(*entry);
        if (!report) {
            ledger.recordRestore(*entry);
            continue;
        }
        // A clean of unknown mode may well have been a move.
        const bool isMove = report->mode != CleanerCore::CleaningMode::deletePermanently;
        cleans.push_back({entry, *report, isMove ? std::optional(ledger.recordMove(*entry)) : std::nullopt});
    }

    std::vector<AuditReport> reports;
    for (auto& [entry, report, move] : cleans) {
        if (const auto left =
                move ? ledgers[static_cast<std::size_t>(entry->source)].whatIsLeft(*move) : std::nullopt) {
            if (*left == TrashLedger::Amount{}) {
                continue;
            }
            report.succeededItemCount = left->itemCount;
            report.affectedBytes = left->bytes;
        }
        reports.push_back({entry->id, report});
    }
    return reports;
}

} // namespace KarvelloUI
