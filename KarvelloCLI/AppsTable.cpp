#include "KarvelloCLI/AppsTexts.h"

#include "CleanerCore/Export/ReportExportText.h"
#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/Words.h"

#include <algorithm>
#include <array>

namespace KarvelloCLI {

namespace {

using CleanerCore::ReportExportPrivacyMode;
using CleanerCore::ResourceReliefProtectionReason;

constexpr std::string_view kGap = "  ";
/// There is room for the number of the process, and for all that there is to tell.
constexpr std::size_t kWide = 76;
constexpr std::size_t kVeryWide = 120;
constexpr std::size_t kNarrowestText = 10;

enum Column : std::size_t { cpu, memory, share, process, processes, running, quit, name, identifier, columnCount };

using Row = std::array<TerminalText, columnCount>;

bool isBackground(const AppsRow& row)
{
    return row.candidate.eligibility.reason == ResourceReliefProtectionReason::notUserVisible;
}

bool isNumber(std::size_t column)
{
    return column <= running;
}

std::vector<std::size_t> columnsFor(std::size_t width)
{
    if (width >= kVeryWide) {
        return {cpu, memory, share, process, processes, running, name, identifier, quit};
    }
    return width >= kWide ? std::vector<std::size_t>{cpu, memory, process, running, name, quit}
                          : std::vector<std::size_t>{cpu, memory, name, quit};
}

std::string sizeOf(std::optional<std::uint64_t> bytes, const TextStyle& style)
{
    return bytes ? style.size(*bytes) : "-";
}

Row titles()
{
    return {TerminalText(say("CPU")), TerminalText(say("Memory")), TerminalText(say("Share")), TerminalText("PID"),
        TerminalText(say("Processes")), TerminalText(say("Running")), TerminalText(say("Quit")),
        TerminalText(say("Name")), TerminalText(say("Identifier"))};
}

Row rowOf(const AppsRow& row, Platform::Date now, CleanerCore::ReportExportText& words, const TextStyle& style)
{
    const auto& candidate = row.candidate;
    const bool isRedacted = words.privacyMode() == ReportExportPrivacyMode::redacted;
    // A full table shows the bytes themselves, which the terminal's text makes harmless.
    const auto shownName = isRedacted ? words.name(candidate.displayName, "application") : candidate.displayName;
    const auto rawIdentifier = candidate.bundleIdentifier.value_or("");
    const auto shownIdentifier =
        isRedacted && candidate.bundleIdentifier ? words.identifier(rawIdentifier, "application") : rawIdentifier;
    return {TerminalText(percentage(candidate.usage.cpuFractionOfTotalCapacity)),
        TerminalText(sizeOf(candidate.usage.residentMemoryBytes, style)),
        TerminalText(percentage(candidate.usage.memoryFractionOfPhysicalMemory)),
        TerminalText(std::to_string(candidate.processIdentifier)), TerminalText(std::to_string(row.processCount)),
        TerminalText(candidate.launchDate ? shortAge(now.secondsSince(*candidate.launchDate)) : "-"),
        TerminalText(quitWords(candidate.eligibility)), TerminalText(shownName), TerminalText(shownIdentifier)};
}

std::string tableOf(const std::vector<Row>& rows, const TextStyle& style)
{
    const auto columns = columnsFor(style.columns);
    const Row heads = titles();
    std::array<std::size_t, columnCount> widths{};
    std::size_t taken = kGap.size() * (columns.size() - 1);
    for (const auto column : columns) {
        widths[column] = heads[column].columns();
        for (const Row& row : rows) {
            widths[column] = std::max(widths[column], row[column].columns());
        }
        taken += widths[column];
    }
    // Names give way first, then the identifiers, and in the narrowest of windows the words.
    for (const std::size_t column : {name, identifier, quit}) {
        const bool isShown = std::ranges::find(columns, column) != columns.end();
        const std::size_t excess = taken > style.columns ? taken - style.columns : 0;
        if (isShown && widths[column] > kNarrowestText) {
            const std::size_t cut = std::min(excess, widths[column] - kNarrowestText);
            widths[column] -= cut;
            taken -= cut;
        }
    }
    const auto line = [&](const Row& row) {
        std::string text;
        for (const auto column : columns) {
            const auto cell = row[column].elidedInMiddle(widths[column]);
            text += text.empty() ? "" : kGap;
            text += isNumber(column) ? cell.paddedLeft(widths[column]) : cell.paddedRight(widths[column]);
        }
        return text.substr(0, text.find_last_not_of(' ') + 1);
    };
    std::string text = style.painter(Ink::quiet, line(heads)) + "\n";
    for (const Row& row : rows) {
        text += line(row) + "\n";
    }
    return text;
}

} // namespace

std::string appsTable(std::span<const AppsRow> rows, Platform::Date now, bool isRedacted, const TextStyle& style)
{
    std::vector<const AppsRow*> shown;
    std::size_t background = 0;
    for (const AppsRow& row : rows) {
        if (isBackground(row) && !style.isVerbose) {
            ++background;
        } else {
            shown.push_back(&row);
        }
    }
    std::ranges::stable_sort(shown, std::ranges::greater{},
        [](const AppsRow* row) { return row->candidate.usage.residentMemoryBytes.value_or(0); });

    CleanerCore::ReportExportText words(isRedacted ? ReportExportPrivacyMode::redacted : ReportExportPrivacyMode::full);
    std::vector<Row> cells;
    cells.reserve(shown.size());
    for (const AppsRow* const row : shown) {
        cells.push_back(rowOf(*row, now, words, style));
    }
    std::string text = style.painter(Ink::title, say("Running applications: {}", localTime(now))) + "\n\n";
    text += cells.empty() ? style.paragraph(say("No application that the desktop knows is running."))
                          : tableOf(cells, style);
    text += '\n';
    if (background > 0) {
        text += style.paragraph(counted(background, "{} more program in the background; --verbose lists them.",
            "{} more programs in the background; --verbose lists them."));
    }
    const bool isAnyAllowed = std::ranges::any_of(shown, [](const AppsRow* row) {
        return row->candidate.eligibility.reason == ResourceReliefProtectionReason::sandboxUnavailable;
    });
    text += style.paragraph(say("CPU is of all processors together. Nobody was asked to quit."), 0, Ink::quiet);
    if (isAnyAllowed) {
        text += style.paragraph(
            say("“Not from here”: it may be asked, but only a program on the desktop can reach its windows."), 0,
            Ink::quiet);
    }
    return text;
}

} // namespace KarvelloCLI
