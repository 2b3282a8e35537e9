#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "CleanerCore/Cleaning/CleanResult.h"
#include "CleanerCore/Cleaning/RestoreResult.h"
#include "KarvelloCLI/Options.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/UUID.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace KarvelloCLI {

/// An item that the log keeps, and why it cannot be put back, as far as that can be told without moving it.
struct RecordedItem {
    CleanerCore::CleanedItem item;
    std::optional<std::string> obstacle;
};

/// A clean of the log.
struct RecordedClean {
    Platform::UUID entry;
    Platform::Date occurredAt;
    /// How many items it moved; the log need not have kept all of them.
    std::int64_t movedCount = 0;
    std::vector<RecordedItem> items;
    /// How many of its items are left out here, since a newer clean moved them once more to the same place.
    std::int64_t repeatedCount = 0;
};

/// What the log keeps for a restore, the newest clean first.
class RestoreCatalog {
public:
    /// Tells what a restore of items would do, without doing it.
    using Rehearse = std::function<CleanerCore::RestoreResult(std::span<const CleanerCore::CleanedItem>)>;

    /// What of a catalog is to go back.
    struct Selection {
        std::vector<CleanerCore::CleanedItem> items;
        /// Sentences on what was asked for and cannot be done.
        std::vector<std::string> complaints;
    };

    /// `entries` come the newest first; those that are of no clean, or keep no item, are left out.
    RestoreCatalog(std::span<const CleanerCore::CleanupAuditEntry> entries, const Rehearse& rehearse);

    [[nodiscard]] const std::vector<RecordedClean>& cleans() const { return m_cleans; }

    [[nodiscard]] Selection everything() const;
    /// An id that several cleans have means the newest of its items that can be put back.
    [[nodiscard]] Selection named(std::span<const std::string> ids) const;

private:
    std::vector<RecordedClean> m_cleans;
};

/// The sum of the sizes, or nothing for sizes that no disk has: the log is a file that anything may have written.
[[nodiscard]] std::optional<std::int64_t> totalBytes(std::span<const CleanerCore::CleanedItem> items);

} // namespace KarvelloCLI
