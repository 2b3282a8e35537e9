#include "KarvelloCLI/RestoreCatalog.h"

#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/TerminalText.h"

#include <unordered_set>
#include <utility>

namespace KarvelloCLI {

using CleanerCore::CleanedItem;
using CleanerCore::CleanupAuditEntry;

namespace {

bool keepsItems(const CleanupAuditEntry& entry)
{
    return entry.operation == CleanerCore::CleanupAuditOperation::clean && !entry.cleanedItems.empty();
}

} // namespace

RestoreCatalog::RestoreCatalog(std::span<const CleanupAuditEntry> entries, const Rehearse& rehearse)
{
    std::vector<CleanedItem> all;
    std::unordered_set<std::string> takenPlaces;
    for (const CleanupAuditEntry& entry : entries) {
        if (!keepsItems(entry)) {
            continue;
        }
        RecordedClean clean{
            .entry = entry.id, .occurredAt = entry.occurredAt, .movedCount = entry.succeededItemCount, .items = {}};
        for (const CleanedItem& item : entry.cleanedItems) {
            if (item.destinationURL && !takenPlaces.insert(item.destinationURL->path()).second) {
                ++clean.repeatedCount;
                continue;
            }
            clean.items.push_back({.item = item, .obstacle = std::nullopt});
            all.push_back(item);
        }
        m_cleans.push_back(std::move(clean));
    }

    // What failed comes in the order of the items.
    const CleanerCore::RestoreResult rehearsed = rehearse(all);
    auto failed = rehearsed.failedItems.begin();
    for (RecordedClean& clean : m_cleans) {
        for (RecordedItem& recorded : clean.items) {
            if (failed != rehearsed.failedItems.end() && failed->cleanedItem == recorded.item) {
                recorded.obstacle = failed->reason;
                ++failed;
            }
        }
    }
}

RestoreCatalog::Selection RestoreCatalog::everything() const
{
    Selection selection;
    for (const RecordedClean& clean : m_cleans) {
        for (const RecordedItem& recorded : clean.items) {
            if (!recorded.obstacle) {
                selection.items.push_back(recorded.item);
            }
        }
    }
    return selection;
}

RestoreCatalog::Selection RestoreCatalog::named(std::span<const std::string> ids) const
{
    Selection selection;
    std::unordered_set<std::string> done;
    for (const std::string& id : ids) {
        if (!done.insert(id).second) {
            continue;
        }
        const RecordedItem* found = nullptr;
        for (const RecordedClean& clean : m_cleans) {
            for (const RecordedItem& recorded : clean.items) {
                const bool isBetter = found == nullptr || (found->obstacle && !recorded.obstacle);
                if (recorded.item.candidate.id == id && isBetter) {
                    found = &recorded;
                }
            }
        }
        if (found == nullptr) {
            selection.complaints.push_back(say("The log keeps no item with the id “{}”.", TerminalText(id).string()));
        } else if (found->obstacle) {
            selection.complaints.push_back(
                TerminalText(sayReason(*found->obstacle), TerminalText::Kind::sentence).string());
        } else {
            selection.items.push_back(found->item);
        }
    }
    return selection;
}

std::optional<std::int64_t> totalBytes(std::span<const CleanedItem> items)
{
    std::int64_t sum = 0;
    for (const CleanedItem& item : items) {
        if (__builtin_add_overflow(sum, item.candidate.sizeBytes, &sum)) {
            return std::nullopt;
        }
    }
    return sum;
}

} // namespace KarvelloCLI
