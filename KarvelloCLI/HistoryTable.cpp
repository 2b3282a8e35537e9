#include "KarvelloCLI/HistoryTable.h"

#include "KarvelloCLI/Say.h"
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

constexpr std::size_t kWide = 80;
/// There is room for the ids of entries.
constexpr std::size_t kVeryWide = 120;
constexpr std::string_view kGap = "  ";

enum Column : std::size_t { date, operation, source, asked, done, failed, size, end, entryId, columnCount };

using Row = std::array<std::string, columnCount>;

bool isNumber(std::size_t column)
{
    return column >= asked && column <= size;
}

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

Row rowOf(const CleanupAuditEntry& entry, const TextStyle& style)
{
    return {localTime(entry.occurredAt), catalogue().auditOperationName(entry.operation), nameOf(entry.source),
        std::to_string(entry.requestedItemCount), std::to_string(entry.succeededItemCount),
        std::to_string(entry.failedItemCount), style.size(entry.affectedBytes),
        entry.wasCancelled ? say("cancelled") : std::string(), entry.id.string()};
}

std::string wideTable(const std::vector<Row>& rows, const TextStyle& style)
{
    const Row titles{say("Date"), say("Operation"), say("Source"), say("Asked"), say("Done"), say("Failed"),
        say("Size"), "", say("Entry")};
    const std::size_t shown = style.columns >= kVeryWide ? std::size_t{columnCount} : std::size_t{entryId};
    std::array<std::size_t, columnCount> widths{};
    for (std::size_t column = 0; column < shown; ++column) {
        widths[column] = columnsOf(titles[column]);
        for (const Row& row : rows) {
            widths[column] = std::max(widths[column], columnsOf(row[column]));
        }
    }
    const auto line = [&](const Row& row) {
        std::string text;
        for (std::size_t column = 0; column < shown; ++column) {
            if (widths[column] == 0) {
                continue;
            }
            text += text.empty() ? "" : kGap;
            const TerminalText cell(row[column]);
            text += isNumber(column) ? cell.paddedLeft(widths[column]) : cell.paddedRight(widths[column]);
        }
        return text.substr(0, text.find_last_not_of(' ') + 1);
    };
    std::string text = style.painter(Ink::quiet, line(titles)) + "\n";
    for (const Row& row : rows) {
        text += line(row);
        text += '\n';
    }
    return text;
}

std::string narrowTable(const std::vector<Row>& rows)
{
    std::string text;
    for (const Row& row : rows) {
        text +=
            fmt::format("{}  {}  {}{}{}\n  {}\n", row[date], row[operation], row[source], row[end].empty() ? "" : kGap,
                row[end], say("{} asked, {} done, {} failed, {}", row[asked], row[done], row[failed], row[size]));
    }
    return text;
}

} // namespace

std::string historyTable(std::span<const CleanupAuditEntry> entries, const TextStyle& style)
{
    if (entries.empty()) {
        return style.paragraph(say("Nothing has been cleaned or restored yet."));
    }
    std::vector<Row> rows;
    for (const CleanupAuditEntry& entry : entries) {
        rows.push_back(rowOf(entry, style));
    }
    return style.columns >= kWide ? wideTable(rows, style) : narrowTable(rows);
}

} // namespace KarvelloCLI
