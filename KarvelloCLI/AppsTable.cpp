#include "KarvelloCLI/AppsTexts.h"

#include "CleanerCore/Export/ReportExportText.h"
#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/TableLayout.h"
#include "KarvelloCLI/Words.h"

#include <algorithm>
#include <array>

namespace KarvelloCLI {

namespace {

using CleanerCore::ReportExportPrivacyMode;
using CleanerCore::ResourceReliefProtectionReason;

constexpr std::size_t kNarrowestText = 10;

/// The columns, by their places in a row.
struct AppsColumn {
    enum Place : std::size_t { cpu, memory, share, process, processes, running, quit, name, identifier, count };

    static bool isNumber(std::size_t column) { return column <= running; }
};

using AppsCells = std::array<TerminalText, AppsColumn::count>;

bool isBackground(const AppsRow& row)
{
    return row.candidate.eligibility.reason == ResourceReliefProtectionReason::notUserVisible;
}

std::vector<std::size_t> columnsFor(std::size_t width)
{
    using enum AppsColumn::Place;
    if (width >= kVeryWideTable) {
        return {cpu, memory, share, process, processes, running, name, identifier, quit};
    }
    return width >= kWideTable ? std::vector<std::size_t>{cpu, memory, process, running, name, quit}
                               : std::vector<std::size_t>{cpu, memory, name, quit};
}

std::string sizeOf(std::optional<std::uint64_t> bytes, const TextStyle& style)
{
    return bytes ? style.size(*bytes) : "-";
}

AppsCells titles()
{
    return {TerminalText(say("CPU")), TerminalText(say("Memory")), TerminalText(say("Share")), TerminalText("PID"),
        TerminalText(say("Processes")), TerminalText(say("Running")), TerminalText(say("Quit")),
        TerminalText(say("Name")), TerminalText(say("Identifier"))};
}

AppsCells rowOf(const AppsRow& row, Platform::Date now, CleanerCore::ReportExportText& words, const TextStyle& style)
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

std::string tableOf(const std::vector<AppsCells>& rows, const TextStyle& style)
{
    const auto columns = columnsFor(style.columns);
    const AppsCells heads = titles();
    std::array<std::size_t, AppsColumn::count> widths{};
    std::size_t taken = kColumnGap.size() * (columns.size() - 1);
    for (const auto column : columns) {
        widths[column] = heads[column].columns();
        for (const AppsCells& row : rows) {
            widths[column] = std::max(widths[column], row[column].columns());
        }
        taken += widths[column];
    }
    // Names give way first, then the identifiers, and in the narrowest of windows the words.
    for (const std::size_t column : {AppsColumn::name, AppsColumn::identifier, AppsColumn::quit}) {
        const bool isShown = std::ranges::find(columns, column) != columns.end();
        const std::size_t excess = taken > style.columns ? taken - style.columns : 0;
        if (isShown && widths[column] > kNarrowestText) {
            const std::size_t cut = std::min(excess, widths[column] - kNarrowestText);
            widths[column] -= cut;
            taken -= cut;
        }
    }
    const auto line = [&](const AppsCells& row) {
        std::string text;
        for (const auto column : columns) {
            const auto cell = row[column].elidedInMiddle(widths[column]);
            text += text.empty() ? "" : kColumnGap;
            text += AppsColumn::isNumber(column) ? cell.paddedLeft(widths[column]) : cell.paddedRight(widths[column]);
        }
        return text.substr(0, text.find_last_not_of(' ') + 1);
    };
    std::string text = style.painter(Ink::quiet, line(heads)) + "\n";
    for (const AppsCells& row : rows) {
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
    std::vector<AppsCells> cells;
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
