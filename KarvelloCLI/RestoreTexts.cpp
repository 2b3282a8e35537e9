#include "KarvelloCLI/RestoreTexts.h"

#include "KarvelloCLI/ItemLines.h"
#include "KarvelloCLI/Words.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>
#include <utility>

namespace KarvelloCLI {

namespace {

using CleanerCore::CleanedItem;

ItemLines::Item lineOf(const CleanedItem& item, std::string words, const TextStyle& style)
{
    return {.size = style.size(item.candidate.sizeBytes), .age = {}, .words = std::move(words), .notes = {}};
}

std::string listed(const RecordedClean& clean, const Platform::FileManager& fileManager, const TextStyle& style)
{
    std::vector<ItemLines::Item> items;
    std::size_t gone = 0;
    for (const RecordedItem& recorded : clean.items) {
        const CleanedItem& item = recorded.item;
        const bool isGone = recorded.obstacle && item.destinationURL && !fileManager.attributes(*item.destinationURL);
        if (isGone && !style.isVerbose) {
            ++gone;
            continue;
        }
        ItemLines::Item line = lineOf(item, style.path(item.candidate.url), style);
        line.mark = recorded.obstacle ? "-" : " ";
        line.notes.push_back("id " + TerminalText(item.candidate.id).string());
        if (item.destinationURL) {
            line.notes.push_back((isGone ? "was at " : "now at ") + style.path(*item.destinationURL));
        }
        if (recorded.obstacle) {
            line.notes.push_back(
                style.painter(Ink::warning, TerminalText(*recorded.obstacle, TerminalText::Kind::sentence).string()));
        }
        items.push_back(std::move(line));
    }
    std::string text = style.painter(Ink::title, localTime(clean.occurredAt)) + "  "
        + style.painter(Ink::quiet, "entry " + clean.entry.string()) + "\n" + ItemLines(std::move(items)).text();
    if (gone > 0) {
        text += style.paragraph(
            fmt::format("{} no longer in the Trash.", gone == 1 ? "1 item is" : fmt::format("{} items are", gone)), 2);
    }
    if (const auto count = clean.repeatedCount; count > 0) {
        text += style.paragraph(fmt::format("{} cleaned once more, which is listed above.",
                                    count == 1 ? "1 item was" : fmt::format("{} items were", count)),
            2);
    }
    if (const auto kept = static_cast<std::int64_t>(clean.items.size()) + clean.repeatedCount;
        clean.movedCount > kept) {
        text += style.paragraph(fmt::format("The log kept {} of {} items; the others can be put back from the Trash of "
                                            "the desktop.",
                                    kept, clean.movedCount),
            2);
    }
    return text;
}

std::string section(std::string_view heading, Ink ink, std::vector<ItemLines::Item> items, const TextStyle& style)
{
    if (items.empty()) {
        return {};
    }
    const std::string count = counted(items.size(), "item");
    return fmt::format("{}: {}\n{}", style.painter(ink, heading), count, ItemLines(std::move(items)).text());
}

} // namespace

std::string restoreList(const RestoreCatalog& catalog, const Platform::FileManager& fileManager, const TextStyle& style)
{
    std::string text;
    for (const RecordedClean& clean : catalog.cleans()) {
        text += listed(clean, fileManager, style);
        text += '\n';
    }
    const auto restorable = catalog.everything().items;
    if (restorable.empty()) {
        return text + style.paragraph("Nothing that the log keeps can be put back.");
    }
    return text
        + style.paragraph(fmt::format(
            "{} can be put back: karvello-cli restore --id ID, or --all.", counted(restorable.size(), "item")));
}

std::string restorePreview(std::span<const CleanedItem> items, std::int64_t bytes, const TextStyle& style)
{
    std::vector<ItemLines::Item> lines;
    for (const CleanedItem& item : items) {
        lines.push_back(lineOf(item, style.path(item.candidate.url), style));
    }
    return fmt::format("{}: {}, {}\n{}", style.painter(Ink::title, "Back from the Trash to"),
        counted(items.size(), "item"), style.size(bytes), ItemLines(std::move(lines)).text());
}

std::string restoreQuestion(std::span<const CleanedItem> items, std::int64_t bytes, const TextStyle& style)
{
    return fmt::format("Put {} ({}) back?", counted(items.size(), "item"), style.size(bytes));
}

std::string restoreAccount(
    std::span<const CleanedItem> requested, const CleanerCore::RestoreResult& result, const TextStyle& style)
{
    std::vector<ItemLines::Item> back;
    back.reserve(result.restoredItems.size());
    for (const auto& restored : result.restoredItems) {
        back.push_back(lineOf(restored.cleanedItem, style.path(restored.restoredURL), style));
    }
    std::vector<ItemLines::Item> refused;
    for (const auto& failed : result.failedItems) {
        refused.push_back(lineOf(failed.cleanedItem, style.path(failed.cleanedItem.candidate.url), style));
        refused.back().notes.push_back(TerminalText(failed.reason, TerminalText::Kind::sentence).string());
    }
    // Items are dealt with in their order, so what was not reached stands at the end.
    std::vector<ItemLines::Item> left;
    for (const CleanedItem& item : requested.subspan(std::min(back.size() + refused.size(), requested.size()))) {
        left.push_back(lineOf(item, style.path(item.candidate.url), style));
    }
    const bool isNothing = back.empty();
    std::string text;
    for (const std::string& part : {section("Put back", Ink::safe, std::move(back), style),
             section("Refused or failed", Ink::warning, std::move(refused), style),
             section("Not reached, still in the Trash", Ink::warning, std::move(left), style),
             isNothing ? style.paragraph("Nothing was put back.") : std::string()}) {
        text += text.empty() || part.empty() ? part : "\n" + part;
    }
    return text;
}

} // namespace KarvelloCLI
