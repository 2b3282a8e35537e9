#include "CleanerCore/Audit/CleanupAuditStore.h"

#include "CleanerCore/Audit/AuditEntryRetention.h"
#include "CleanerCore/Audit/CleanupAuditCoding.h"
#include "CleanerCore/Audit/LossyCleanupAuditEntryList.h"
#include "Platform/Files/FileLock.h"
#include "Platform/Files/SetAside.h"
#include "Platform/Services/UserDirectories.h"

#include <algorithm>
#include <chrono>
#include <fmt/format.h>
#include <mutex>
#include <tuple>
#include <utility>

namespace CleanerCore {

namespace {

using Platform::FileErrorKind;
using Platform::FileLock;
using Platform::FileLockFailure;

constexpr std::string_view kOversized = "oversized";
constexpr std::string_view kUnreadable = "unreadable";
constexpr std::string_view kUndecodable = "undecodable";

constexpr std::chrono::milliseconds kLockWait{2000};

std::mutex& turnOfThisProcess()
{
    static std::mutex mutex;
    return mutex;
}

/// How many of the first entries fit into a file. Each is encoded once, alone.
std::size_t countThatFits(const std::vector<CleanupAuditEntry>& entries)
{
    // Alone, an entry stands between two brackets and two line feeds; in a longer array a comma and a line feed come
    // with it, and what is left over belongs to the array.
    constexpr std::size_t sharedBytes = 2;
    std::size_t bytes = sharedBytes;
    std::size_t count = 0;
    for (const auto& entry : entries) {
        const auto alone = Platform::encodeJSON(std::vector{entry});
        if (!alone) {
            break;
        }
        bytes += alone->size() - sharedBytes;
        if (bytes > CleanupAuditStore::kMaximumBytes) {
            break;
        }
        ++count;
    }
    return count;
}

} // namespace

Platform::FileURL CleanupAuditStore::defaultFileURL(const Platform::Environment& environment)
{
    return Platform::dataDirectoryForCurrentUser(environment).appending("Karvello/cleanup-audit-log.json");
}

std::vector<CleanupAuditEntry> CleanupAuditStore::loadEntries(std::int64_t limit) const
{
    if (limit < 1) {
        return {};
    }
    const std::lock_guard turn(turnOfThisProcess());
    auto loaded = readForLoadUnlocked(limit);
    if (loaded && loaded->state == LoadedState::needsRewriting) {
        // Only who has the turn may write what it read: another process may have appended since.
        const auto lock = FileLock::acquire(lockURL(), kLockWait);
        if (lock || lock.error() == FileLockFailure::unavailable) {
            loaded = readForLoadUnlocked(limit);
            if (loaded && loaded->state == LoadedState::needsRewriting) {
                write(loaded->ready.data);
            }
        }
    }
    return loaded ? limited(std::move(loaded->ready.entries), limit) : std::vector<CleanupAuditEntry>();
}

std::vector<CleanupAuditEntry> CleanupAuditStore::append(const CleanupAuditEntry& entry, std::int64_t limit) const
{
    const std::lock_guard turn(turnOfThisProcess());
    makeFolder(); // The lock file lies in it.
    // Without the turn the entry is written all the same. Leaving it out would lose it for certain; writing it loses
    // one only if another process writes within the same milliseconds.
    const auto lock = FileLock::acquire(lockURL(), kLockWait);
    std::vector<CleanupAuditEntry> entries;
    if (limit >= 1) {
        entries = entriesForAppendUnlocked(limit);
        entries.insert(entries.begin(), entry);
    }
    auto ready = storageReadyEntriesAndData(std::move(entries), limit);
    if (!ready) {
        return {};
    }
    write(ready->data);
    return std::move(ready->entries);
}

void CleanupAuditStore::replaceEntries(std::vector<CleanupAuditEntry> entries, std::int64_t limit) const
{
    const std::lock_guard turn(turnOfThisProcess());
    const auto ready = storageReadyEntriesAndData(std::move(entries), limit);
    if (!ready) {
        return;
    }
    makeFolder();
    const auto lock = FileLock::acquire(lockURL(), kLockWait);
    write(ready->data);
}

std::vector<CleanupAuditEntry> CleanupAuditStore::limited(std::vector<CleanupAuditEntry> entries, std::int64_t limit)
{
    std::ranges::stable_sort(entries, AuditEntryRetention::comesFirst);
    const auto kept = static_cast<std::size_t>(std::max<std::int64_t>(limit, 0));
    if (entries.size() > kept) {
        entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(kept), entries.end());
    }
    return entries;
}

std::optional<CleanupAuditStore::StorageReady> CleanupAuditStore::storageReadyEntriesAndData(
    std::vector<CleanupAuditEntry> entries, std::int64_t limit)
{
    ReportExportRedactionContext context;
    StorageReady ready;
    ready.entries = limited(std::move(entries), limit);
    for (auto& entry : ready.entries) {
        entry = entry.storageSafe(context);
    }
    auto data = Platform::encodeJSON(ready.entries);
    if (data && data->size() > kMaximumBytes) {
        const auto kept = static_cast<std::ptrdiff_t>(countThatFits(ready.entries));
        ready.entries.erase(ready.entries.begin() + kept, ready.entries.end());
        data = Platform::encodeJSON(ready.entries);
    }
    if (!data) {
        return std::nullopt;
    }
    ready.data = *std::move(data);
    return ready;
}

std::optional<CleanupAuditStore::Loaded> CleanupAuditStore::readForLoadUnlocked(std::int64_t limit) const
{
    const auto bytes = readAuditDataUnlocked(UnreadableFile::isLeft);
    auto entries = bytes && !bytes->empty() ? decodeEntries(*bytes, UnreadableFile::isLeft) : std::nullopt;
    // A small read must not shorten the history.
    auto ready =
        entries ? storageReadyEntriesAndData(*std::move(entries), std::max(limit, defaultLimit)) : std::nullopt;
    if (!ready) {
        return std::nullopt;
    }
    const auto state = ready->data == *bytes ? LoadedState::asWritten : LoadedState::needsRewriting;
    return Loaded{*std::move(ready), state};
}

std::vector<CleanupAuditEntry> CleanupAuditStore::entriesForAppendUnlocked(std::int64_t limit) const
{
    const auto bytes = readAuditDataUnlocked(UnreadableFile::isMovedAside);
    if (!bytes || bytes->empty()) {
        return {};
    }
    auto entries = decodeEntries(*bytes, UnreadableFile::isMovedAside);
    if (!entries) {
        preserveAuditLog(kUndecodable);
        return {};
    }
    return limited(*std::move(entries), limit);
}

std::optional<std::string> CleanupAuditStore::readAuditDataUnlocked(UnreadableFile treatment) const
{
    const auto failure = [&](std::string_view reason) {
        if (treatment == UnreadableFile::isMovedAside) {
            preserveAuditLog(reason);
        }
        return std::nullopt;
    };
    // A link that leads nowhere is something at this path, too: replacing it would lose it.
    const auto values = m_fileManager.resourceValues(m_fileURL);
    if (!values) {
        return values.error().kind == FileErrorKind::noSuchFile ? std::nullopt : failure(kUnreadable);
    }
    if (values->fileSize.value_or(0) > std::int64_t{kMaximumBytes}) {
        return failure(kOversized);
    }
    auto bytes = m_fileManager.readFile(m_fileURL, kMaximumBytes);
    if (!bytes) {
        return failure(bytes.error().kind == FileErrorKind::tooLarge ? kOversized : kUnreadable);
    }
    return *std::move(bytes);
}

std::optional<std::vector<CleanupAuditEntry>> CleanupAuditStore::decodeEntries(
    std::string_view bytes, UnreadableFile treatment) const
{
    auto list = LossyCleanupAuditEntryList::read(bytes);
    if (!list) {
        return std::nullopt;
    }
    if (list->completeness == LossyCleanupAuditEntryList::Completeness::lossy
        && treatment == UnreadableFile::isMovedAside) {
        preserveAuditLog(kUndecodable);
    }
    return std::move(list->entries);
}

void CleanupAuditStore::preserveAuditLog(std::string_view reason) const
{
    std::ignore = Platform::setAside(m_fileManager, m_fileURL, reason);
}

void CleanupAuditStore::makeFolder() const
{
    std::ignore = m_fileManager.createDirectory(m_fileURL.deletingLastPathComponent());
}

void CleanupAuditStore::write(std::string_view data) const
{
    std::ignore = m_fileManager.writeAtomically(data, m_fileURL);
}

Platform::FileURL CleanupAuditStore::lockURL() const
{
    return m_fileURL.deletingLastPathComponent().appending(fmt::format("{}.lock", m_fileURL.lastPathComponent()));
}

} // namespace CleanerCore
