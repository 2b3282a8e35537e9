#include "KarvelloCLI/AuditLog.h"

#include "CleanerCore/Audit/LossyCleanupAuditEntryList.h"
#include "KarvelloCLI/Messages.h"
#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/TerminalText.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace KarvelloCLI {

namespace {

using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupAuditStore;
using CleanerCore::LossyCleanupAuditEntryList;

std::vector<CleanupAuditEntry> newest(std::vector<CleanupAuditEntry> entries, std::int64_t limit)
{
    std::ranges::sort(entries, [](const CleanupAuditEntry& left, const CleanupAuditEntry& right) {
        return std::tie(left.occurredAt, left.id) > std::tie(right.occurredAt, right.id);
    });
    if (entries.size() > static_cast<std::size_t>(limit)) {
        entries.resize(static_cast<std::size_t>(limit));
    }
    return entries;
}

} // namespace

AuditLogReading AuditLogReading::of(
    const CleanupAuditStore& store, const Platform::FileManager& fileManager, std::int64_t limit)
{
    const auto& log = store.fileURL();
    const std::string place = TerminalText(log.path()).string();
    AuditLogReading reading;
    const auto bytes = fileManager.readFile(log, CleanupAuditStore::kMaximumBytes);
    if (!bytes) {
        switch (bytes.error().kind) {
        case Platform::FileErrorKind::noSuchFile:
            break;
        case Platform::FileErrorKind::tooLarge:
            reading.complaint =
                say("The log is too large to be one of Karvello's; the next clean moves it aside: {}.", place);
            break;
        default:
            reading.complaint = say("The log could not be read; the next clean moves it aside: {}.", place);
            break;
        }
        return reading;
    }
    if (bytes->empty()) {
        return reading;
    }
    auto list = LossyCleanupAuditEntryList::read(*bytes);
    if (!list) {
        reading.complaint =
            say("The log is damaged, nothing in it can be read; the next clean moves it aside: {}.", place);
    } else if (list->completeness == LossyCleanupAuditEntryList::Completeness::lossy) {
        // The store would tidy the file, and what is unreadable to this program would be gone.
        reading.complaint = say("The log is damaged or of a newer version; what could be read is shown, and the next "
                                "clean keeps a copy: {}.",
            place);
        reading.entries = newest(std::move(list->entries), limit);
    } else {
        reading.entries = store.loadEntries(limit);
    }
    return reading;
}

Logged appendToAuditLog(
    const CleanupAuditStore& store, const CleanupAuditEntry& entry, const Platform::FileManager& fileManager)
{
    std::ignore = store.append(entry.storageSafeForAuditPersistence(), CleanupAuditStore::defaultLimit);
    const auto entries = AuditLogReading::of(store, fileManager).entries;
    if (std::ranges::find(entries, entry.id, &CleanupAuditEntry::id) != entries.end()) {
        return Logged::yes;
    }
    printMessage(
        say("This run could not be logged: {}. History does not show it, and restore does not know of its items.",
            TerminalText(store.fileURL().path()).string()));
    return Logged::no;
}

} // namespace KarvelloCLI
