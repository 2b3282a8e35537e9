#include "KarvelloCLI/CleanTexts.h"

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "CleanerCore/Cleaning/CleanupSelectionPreview.h"
#include "KarvelloCLI/ItemLines.h"
#include "KarvelloCLI/OwnerNote.h"
#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/Words.h"

#include <algorithm>
#include <cstdint>
#include <unordered_set>
#include <utility>
#include <vector>

namespace KarvelloCLI {

namespace {

using CleanerCore::CleanedItem;
using CleanerCore::CleanResult;
using CleanerCore::CleanupCandidate;
using CleanerCore::CleanupSafety;
using CleanerCore::CleanupSelectionPreview;
using CleanerCore::FailedCleanItem;

std::string countAndSize(std::int64_t count, std::int64_t bytes, const TextStyle& style)
{
    return say("{}, {}", itemCount(static_cast<std::size_t>(count)), style.size(bytes));
}

std::string countAndSize(std::span<const CleanupCandidate> candidates, const TextStyle& style)
{
    const CleanupSelectionPreview preview(candidates);
    return countAndSize(preview.count, preview.bytes, style);
}

std::vector<ItemLines::Item> kinds(const CleanupSelectionPreview& preview, const TextStyle& style)
{
    std::vector<ItemLines::Item> items;
    items.reserve(preview.categorySummaries.size());
    for (const auto& summary : preview.categorySummaries) {
        items.push_back({.size = style.size(summary.bytes),
            .age = {},
            .words = say(
                "{}: {}", sayReason(displayName(summary.category)), itemCount(static_cast<std::size_t>(summary.count))),
            .notes = {}});
    }
    return items;
}

std::string group(std::span<const CleanupCandidate> candidates, Platform::Date scannedAt, const TextStyle& style)
{
    std::vector<ItemLines::Item> items;
    for (const CleanupCandidate& candidate : candidates) {
        ItemLines::Item item{.mark = candidate.requiresManualReview() ? "!" : " ",
            .size = style.size(candidate.sizeBytes),
            .age = candidate.lastModified ? shortAge(scannedAt.secondsSince(*candidate.lastModified)) : "-",
            .words = style.path(candidate.url),
            .notes = {}};
        if (const auto note = ownerNote(candidate.appCacheContext, OwnerName::shown); !note.empty()) {
            item.notes.push_back(TerminalText(note).string());
        }
        items.push_back(std::move(item));
    }
    const CleanupSafety safety = candidates.front().safety;
    return headed(style.painter(inkOf(safety), sayReason(displayName(safety))), countAndSize(candidates, style),
        std::move(items));
}

std::string reviewNotice(std::span<const CleanupCandidate> candidates, const TextStyle& style)
{
    const auto count = std::ranges::count_if(candidates, &CleanupCandidate::requiresManualReview);
    if (count == 0) {
        return {};
    }
    return "\n"
        + style.paragraph("! "
                + counted(static_cast<std::size_t>(count),
                    "{} item needs your own review: only you can tell whether it may go.",
                    "{} items need your own review: only you can tell whether they may go."),
            0, Ink::manualReview);
}

/// A heading and its items, of which a text that is not verbose names the first.
std::string moved(std::span<const CleanedItem> cleaned, const CleanResult& result, const TextStyle& style)
{
    const std::size_t shown = style.isVerbose ? cleaned.size() : std::min(cleaned.size(), kShownMovedItems);
    std::vector<ItemLines::Item> items;
    for (const CleanedItem& item : cleaned.first(shown)) {
        ItemLines::Item line{.size = style.size(item.candidate.sizeBytes),
            .age = {},
            .words = style.path(item.candidate.url),
            .notes = {}};
        if (style.isVerbose && item.destinationURL) {
            line.notes.push_back(say("now at {}", style.path(*item.destinationURL)));
        }
        items.push_back(std::move(line));
    }
    std::string text = headed(style.painter(Ink::safe, say("Moved to the Trash")),
        countAndSize(static_cast<std::int64_t>(cleaned.size()), result.reclaimedBytes(), style), std::move(items));
    if (shown < cleaned.size()) {
        text += style.paragraph(counted(cleaned.size() - shown, "and {} more item; --verbose names each.",
                                    "and {} more items; --verbose names each."),
            2);
    }
    return text;
}

std::string refused(std::span<const FailedCleanItem> failed, const TextStyle& style)
{
    std::vector<CleanupCandidate> candidates;
    std::vector<ItemLines::Item> items;
    for (const FailedCleanItem& item : failed) {
        candidates.push_back(item.candidate);
        items.push_back({.size = style.size(item.candidate.sizeBytes),
            .age = {},
            .words = style.path(item.candidate.url),
            .notes = {TerminalText(sayReason(item.reason), TerminalText::Kind::sentence).string()}});
    }
    return headed(
        style.painter(Ink::warning, say("Refused or failed")), countAndSize(candidates, style), std::move(items));
}

std::string notReached(std::span<const CleanupCandidate> requested, const CleanResult& result, const TextStyle& style)
{
    std::unordered_set<std::string_view> reached;
    for (const CleanedItem& item : result.cleanedItems) {
        reached.insert(item.candidate.id);
    }
    for (const FailedCleanItem& item : result.failedItems) {
        reached.insert(item.candidate.id);
    }
    std::vector<CleanupCandidate> candidates;
    std::vector<ItemLines::Item> items;
    for (const CleanupCandidate& candidate : requested) {
        if (!reached.contains(candidate.id)) {
            candidates.push_back(candidate);
            items.push_back(
                {.size = style.size(candidate.sizeBytes), .age = {}, .words = style.path(candidate.url), .notes = {}});
        }
    }
    if (candidates.empty()) {
        return {};
    }
    return headed(style.painter(Ink::warning, say("Not reached, still in place")), countAndSize(candidates, style),
        std::move(items));
}

} // namespace

std::string cleanPreview(std::span<const CleanupCandidate> candidates, Platform::Date scannedAt, const TextStyle& style)
{
    const CleanupSelectionPreview preview(candidates);
    std::string text = headed(style.painter(Ink::title, say("To the Trash")),
        countAndSize(preview.count, preview.bytes, style), kinds(preview, style));
    const std::string notice = reviewNotice(candidates, style);
    // They come by safety.
    while (!candidates.empty()) {
        const auto end = std::ranges::find_if(candidates,
            [safety = candidates.front().safety](const CleanupCandidate& each) { return each.safety != safety; });
        const auto count = static_cast<std::size_t>(end - candidates.begin());
        text += '\n';
        text += group(candidates.first(count), scannedAt, style);
        candidates = candidates.subspan(count);
    }
    return text + notice;
}

std::string cleanQuestion(std::span<const CleanupCandidate> candidates, const TextStyle& style)
{
    const CleanupSelectionPreview preview(candidates);
    return say(
        "Move {} ({}) to the Trash?", itemCount(static_cast<std::size_t>(preview.count)), style.size(preview.bytes));
}

std::string cleanAccount(std::span<const CleanupCandidate> requested, const CleanResult& result, const TextStyle& style)
{
    std::string text;
    const auto append = [&text](const std::string& section) {
        text += text.empty() || section.empty() ? section : "\n" + section;
    };
    if (!result.cleanedItems.empty()) {
        append(moved(result.cleanedItems, result, style));
    }
    if (!result.failedItems.empty()) {
        append(refused(result.failedItems, style));
    }
    append(notReached(requested, result, style));
    if (result.cleanedItems.empty()) {
        append(style.paragraph(say("Nothing was moved to the Trash.")));
        return text;
    }
    append(style.paragraph(
        say("The space returns when the Trash is emptied. Until then, karvello-cli restore puts things back.")));
    const std::size_t kept = CleanerCore::CleanupAuditEntry::cleanedItemLimit;
    if (result.cleanedItems.size() > kept) {
        text += style.paragraph(
            say("The log keeps the first {} items of a clean; the others can be put back from the Trash of "
                "the desktop.",
                kept));
    }
    return text;
}

} // namespace KarvelloCLI
