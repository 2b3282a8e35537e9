#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore {

/// The durable record of what cleans and restores did: one small JSON file, an array of entries, the newest first. It
/// never grows past 1 MiB, tells no paths but those that a restore needs, and lets no damage stop a clean: a damaged
/// file is moved aside under a telling name, and the log goes on with what could be saved from it. No function reports
/// a failure.
///
/// Every function may be called from any thread and blocks until it is done; all stores of the process take turns.
/// Several processes take turns by a lock file beside the log. A process that does not get its turn within
/// two seconds (the holder must have been stopped, since a turn takes milliseconds) goes on without it where an entry
/// would be lost otherwise, and leaves the file alone where it would merely be tidied.
class CleanupAuditStore {
public:
    static constexpr std::int64_t defaultLimit = 100;
    static constexpr std::size_t kMaximumBytes = 1'048'576;

    /// `fileManager` must outlive the store. Nothing is touched.
    CleanupAuditStore(const Platform::FileManager& fileManager, Platform::FileURL fileURL)
        : m_fileManager(fileManager)
        , m_fileURL(std::move(fileURL))
    {
    }

    /// "Karvello/cleanup-audit-log.json" in the user's data folder.
    static Platform::FileURL defaultFileURL(const Platform::Environment& environment);

    /// The newest entries, at most `limit` of them. A file that is not in the form in which this store writes it (an
    /// older one with paths in it, one with bad elements) is rewritten in that form; one that cannot be read at all stays
    /// as it is. Makes no folder.
    [[nodiscard]] std::vector<CleanupAuditEntry> loadEntries(std::int64_t limit = defaultLimit) const;
    /// Adds an entry and keeps the newest `limit`; what the log holds then is the answer, even if it could not be
    /// written. A limit below 1 empties the log.
    std::vector<CleanupAuditEntry> append(const CleanupAuditEntry& entry, std::int64_t limit = defaultLimit) const;
    void replaceEntries(std::vector<CleanupAuditEntry> entries, std::int64_t limit) const;

    [[nodiscard]] const Platform::FileURL& fileURL() const { return m_fileURL; }

private:
    enum class UnreadableFile : std::uint8_t { isLeft, isMovedAside };

    struct StorageReady {
        std::vector<CleanupAuditEntry> entries;
        std::string data;
    };

    /// Whether the file is byte for byte what a write of its entries would make of it.
    enum class LoadedState : std::uint8_t { asWritten, needsRewriting };

    struct Loaded {
        StorageReady ready;
        LoadedState state;
    };

    [[nodiscard]] static std::vector<CleanupAuditEntry> limited(
        std::vector<CleanupAuditEntry> entries, std::int64_t limit);
    [[nodiscard]] static std::optional<StorageReady> storageReadyEntriesAndData(
        std::vector<CleanupAuditEntry> entries, std::int64_t limit);

    [[nodiscard]] std::optional<Loaded> readForLoadUnlocked(std::int64_t limit) const;
    [[nodiscard]] std::vector<CleanupAuditEntry> entriesForAppendUnlocked(std::int64_t limit) const;
    [[nodiscard]] std::optional<std::string> readAuditDataUnlocked(UnreadableFile treatment) const;
    [[nodiscard]] std::optional<std::vector<CleanupAuditEntry>> decodeEntries(
        std::string_view bytes, UnreadableFile treatment) const;
    void preserveAuditLog(std::string_view reason) const;
    void makeFolder() const;
    void write(std::string_view data) const;
    [[nodiscard]] Platform::FileURL lockURL() const;

    const Platform::FileManager& m_fileManager;
    Platform::FileURL m_fileURL;
};

} // namespace CleanerCore
