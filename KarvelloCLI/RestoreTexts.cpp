#include "KarvelloCLI/RestoreTexts.h"

#include "KarvelloCLI/ItemLines.h"
#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/Words.h"

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
            line.notes.push_back(isGone ? say("was at {}", style.path(*item.destinationURL))
                                        : say("now at {}", style.path(*item.destinationURL)));
        }
        if (recorded.obstacle) {
            line.notes.push_back(style.painter(
                Ink::warning, TerminalText(sayReason(*recorded.obstacle), TerminalText::Kind::sentence).string()));
        }
        items.push_back(std::move(line));
    }
    std::string text = style.painter(Ink::title, localTime(clean.occurredAt)) + "  "
        + style.painter(Ink::quiet, say("entry {}", clean.entry.string())) + "\n" + ItemLines(std::move(items)).text();
    if (gone > 0) {
        text += style.paragraph(
            counted(gone, "{} item is no longer in the Trash.", "{} items are no longer in the Trash."), 2);
    }
    if (const auto count = clean.repeatedCount; count > 0) {
        text += style.paragraph(
            counted(static_cast<std::size_t>(count), "{} item was cleaned once more, which is listed above.",
                "{} items were cleaned once more, which is listed above."),
            2);
    }
    if (const auto kept = static_cast<std::int64_t>(clean.items.size()) + clean.repeatedCount;
        clean.movedCount > kept) {
        text += style.paragraph(
            say("The log kept {} of {} items; the others can be put back from the Trash of the desktop.", kept,
                clean.movedCount),
            2);
    }
    return text;
}

std::string section(std::string_view heading, Ink ink, std::vector<ItemLines::Item> items, const TextStyle& style)
{
    if (items.empty()) {
        return {};
    }
    const std::string count = itemCount(items.size());
    return headed(style.painter(ink, heading), count, std::move(items));
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
        return text + style.paragraph(say("Nothing that the log keeps can be put back."));
    }
    return text
        + style.paragraph(counted(restorable.size(), "{} item can be put back: karvello-cli restore --id ID, or --all.",
            "{} items can be put back: karvello-cli restore --id ID, or --all."));
}

std::string restorePreview(std::span<const CleanedItem> items, std::int64_t bytes, const TextStyle& style)
{
    std::vector<ItemLines::Item> lines;
    for (const CleanedItem& item : items) {
        lines.push_back(lineOf(item, style.path(item.candidate.url), style));
    }
    return headed(style.painter(Ink::title, say("Back from the Trash to")),
        say("{}, {}", itemCount(items.size()), style.size(bytes)), std::move(lines));
}

std::string restoreQuestion(std::span<const CleanedItem> items, std::int64_t bytes, const TextStyle& style)
{
    return say("Put {} ({}) back?", itemCount(items.size()), style.size(bytes));
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
        refused.back().notes.push_back(TerminalText(sayReason(failed.reason), TerminalText::Kind::sentence).string());
    }
    // Items are dealt with in their order, so what was not reached stands at the end.
    std::vector<ItemLines::Item> left;
    for (const CleanedItem& item : requested.subspan(std::min(back.size() + refused.size(), requested.size()))) {
        left.push_back(lineOf(item, style.path(item.candidate.url), style));
    }
    const bool isNothing = back.empty();
    std::string text;
    for (const std::string& part : {section(say("Put back"), Ink::safe, std::move(back), style),
             section(say("Refused or failed"), Ink::warning, std::move(refused), style),
             section(say("Not reached, still in the Trash"), Ink::warning, std::move(left), style),
             isNothing ? style.paragraph(say("Nothing was put back.")) : std::string()}) {
        text += text.empty() || part.empty() ? part : "\n" + part;
    }
    return text;
}

} // namespace KarvelloCLI
