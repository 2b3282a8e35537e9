#include "KarvelloCLI/SkippedSummary.h"

#include "CleanerCore/Export/SkippedItemExportRow.h"
#include "KarvelloCLI/Say.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace KarvelloCLI {

namespace {

constexpr std::size_t kCountIndent = 2;
constexpr std::string_view kOpeningQuote = "“";
constexpr std::string_view kClosingQuote = "”";

/// The reason without the name that it quotes.
std::string withoutQuotedName(std::string_view reason)
{
    const std::size_t open = reason.find(kOpeningQuote);
    const std::size_t close = reason.rfind(kClosingQuote);
    if (open == std::string_view::npos || close == std::string_view::npos || close < open) {
        return std::string(reason);
    }
    return fmt::format("{}…{}", reason.substr(0, open + kOpeningQuote.size()), reason.substr(close));
}

std::size_t digits(std::size_t number)
{
    return std::to_string(number).size();
}

/// A count and what it counts, which goes on under itself where it is long.
std::string countedLine(std::size_t count, const TerminalText& words, std::size_t countWidth, std::size_t columns)
{
    const std::size_t taken = kCountIndent + countWidth + 2;
    std::string text = fmt::format("{:{}}{:>{}}  ", "", kCountIndent, count, countWidth);
    std::string separator;
    for (const TerminalText& line : words.wrapped(columns - taken)) {
        text += separator + line.string();
        separator = fmt::format("\n{:{}}", "", taken);
    }
    return text + "\n";
}

} // namespace

SkippedRow SkippedRow::of(const CleanerCore::SkippedItem& item, const HomePathAbbreviation& abbreviation, Paths paths,
    CleanerCore::ReportExportRedactionContext* redaction)
{
    using CleanerCore::SkippedItemExportRow;
    SkippedRow row{item.reason, {}};
    std::string path = item.url.path();
    if (redaction != nullptr) {
        path = redaction->path(path, SkippedItemExportRow::kLabel);
        row.reason = redaction->freeText(item.reason, SkippedItemExportRow::kReasonLabel);
    }
    if (paths == Paths::shown) {
        row.path = TerminalText(abbreviation.abbreviate(path));
    }
    return row;
}

SkippedSummary::SkippedSummary(std::span<const SkippedRow> rows)
    : m_count(rows.size())
{
    std::unordered_map<std::string, std::size_t> groupOfReason;
    for (const SkippedRow& row : rows) {
        const auto [entry, isNew] = groupOfReason.try_emplace(withoutQuotedName(row.reason), m_groups.size());
        if (isNew) {
            m_groups.push_back({TerminalText(sayReason(row.reason), TerminalText::Kind::sentence)});
        }
        Group& group = m_groups[entry->second];
        group.rows.push_back(&row);
        if (group.rows.size() == 2) {
            group.reason = TerminalText(sayReason(entry->first), TerminalText::Kind::sentence);
        }
    }
    std::ranges::sort(m_groups, [](const Group& left, const Group& right) {
        // All rows lie in one array, so the place of the first one tells which reason was met first.
        return left.rows.size() != right.rows.size() ? left.rows.size() > right.rows.size()
                                                     : left.rows.front() < right.rows.front();
    });
}

std::size_t SkippedSummary::itemsBehind(std::size_t shown) const
{
    std::size_t items = 0;
    for (const Group& group : std::span(m_groups).subspan(shown)) {
        items += group.rows.size();
    }
    return items;
}

std::string SkippedSummary::countsByReason(std::size_t columns, std::size_t mostReasons) const
{
    const std::size_t shown = std::min(m_groups.size(), mostReasons);
    const std::size_t rest = itemsBehind(shown);
    const std::size_t width = std::max(digits(rest), m_groups.empty() ? 0 : digits(m_groups.front().rows.size()));
    std::string text;
    for (const Group& group : std::span(m_groups).first(shown)) {
        text += countedLine(group.rows.size(), group.reason, width, columns);
    }
    if (rest > 0) {
        const TerminalText words(counted(m_groups.size() - shown, "for {} other reason", "for {} other reasons"));
        text += countedLine(rest, words, width, columns);
    }
    return text;
}

std::string SkippedSummary::everyItem(std::size_t columns) const
{
    const std::size_t width = m_groups.empty() ? 0 : digits(m_groups.front().rows.size());
    const std::string indent(kCountIndent + width + 2, ' ');
    std::string text;
    for (const Group& group : m_groups) {
        text += countedLine(group.rows.size(), group.reason, width, columns);
        for (const SkippedRow* const row : group.rows) {
            text += indent + row->path.elidedInMiddle(columns - indent.size()).string() + "\n";
        }
    }
    return text;
}

} // namespace KarvelloCLI
