#include "KarvelloCLI/HistoryTable.h"

#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/TableLayout.h"
#include "KarvelloCLI/Words.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

namespace KarvelloCLI {

namespace {

using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupAuditSource;

/// On fewer columns each entry takes two lines.
constexpr std::size_t kLeastColumnsForHistory = 80;

/// The columns, by their places in a row.
struct HistoryColumn {
    enum Place : std::size_t { date, operation, source, asked, done, failed, size, end, entryId, count };

    static bool isNumber(std::size_t column) { return column >= asked && column <= size; }
};

using HistoryRow = std::array<std::string, HistoryColumn::count>;

std::string nameOf(CleanupAuditSource source)
{
    switch (source) {
    case CleanupAuditSource::cleanupDashboard:
        return say("cleanup");
    case CleanupAuditSource::macInsights:
        return say("insights");
    case CleanupAuditSource::iOSSandbox:
        break;
    }
    return say("sandbox");
}

HistoryRow rowOf(const CleanupAuditEntry& entry, const TextStyle& style)
{
    return {localTime(entry.occurredAt), catalogue().auditOperationName(entry.operation), nameOf(entry.source),
        std::to_string(entry.requestedItemCount), std::to_string(entry.succeededItemCount),
        std::to_string(entry.failedItemCount), style.size(entry.affectedBytes),
        entry.wasCancelled ? say("cancelled") : std::string(), entry.id.string()};
}

std::string wideTable(const std::vector<HistoryRow>& rows, const TextStyle& style)
{
    const HistoryRow titles{say("Date"), say("Operation"), say("Source"), say("Asked"), say("Done"), say("Failed"),
        say("Size"), "", say("Entry")};
    const std::size_t shown =
        style.columns >= kVeryWideTable ? std::size_t{HistoryColumn::count} : std::size_t{HistoryColumn::entryId};
    std::array<std::size_t, HistoryColumn::count> widths{};
    for (std::size_t column = 0; column < shown; ++column) {
        widths[column] = columnsOf(titles[column]);
        for (const HistoryRow& row : rows) {
            widths[column] = std::max(widths[column], columnsOf(row[column]));
        }
    }
    const auto line = [&](const HistoryRow& row) {
        std::string text;
        for (std::size_t column = 0; column < shown; ++column) {
            if (widths[column] == 0) {
                continue;
            }
            text += text.empty() ? "" : kColumnGap;
            const TerminalText cell(row[column]);
            text +=
                HistoryColumn::isNumber(column) ? cell.paddedLeft(widths[column]) : cell.paddedRight(widths[column]);
        }
        return text.substr(0, text.find_last_not_of(' ') + 1);
    };
    std::string text = style.painter(Ink::quiet, line(titles)) + "\n";
    for (const HistoryRow& row : rows) {
        text += line(row);
        text += '\n';
    }
    return text;
}

std::string narrowTable(const std::vector<HistoryRow>& rows)
{
    std::string text;
    for (const HistoryRow& row : rows) {
        text += fmt::format("{}  {}  {}{}{}\n  {}\n", row[HistoryColumn::date], row[HistoryColumn::operation],
            row[HistoryColumn::source], row[HistoryColumn::end].empty() ? "" : kColumnGap, row[HistoryColumn::end],
            say("{} asked, {} done, {} failed, {}", row[HistoryColumn::asked], row[HistoryColumn::done],
                row[HistoryColumn::failed], row[HistoryColumn::size]));
    }
    return text;
}

} // namespace

std::string historyTable(std::span<const CleanupAuditEntry> entries, const TextStyle& style)
{
    if (entries.empty()) {
        return style.paragraph(say("Nothing has been cleaned or restored yet."));
    }
    std::vector<HistoryRow> rows;
    for (const CleanupAuditEntry& entry : entries) {
        rows.push_back(rowOf(entry, style));
    }
    return style.columns >= kLeastColumnsForHistory ? wideTable(rows, style) : narrowTable(rows);
}

} // namespace KarvelloCLI
