#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "CleanerCore/Cleaning/CleanResult.h"
#include "Platform/Base/Date.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace CleanerCore {

/// What a clean left in the Trash, and what of it may be put back. Looks at nothing on disk.
struct CleanupRestoreCenterSnapshot {
    /// Empty for no result.
    explicit CleanupRestoreCenterSnapshot(const std::optional<CleanResult>& cleanResult);
    /// Shows what happened and offers no restore by itself.
    explicit CleanupRestoreCenterSnapshot(const CleanupAuditEntry& auditEntry);

    /// Every cleaned item of the source. The two lists below keep its order.
    std::vector<CleanedItem> recentItems;
    /// Those of which the place in the Trash is known.
    std::vector<CleanedItem> trashMovedItems;
    /// Those of which the identity in the Trash is known, too: a restore refuses all others.
    std::vector<CleanedItem> restoreAuthorizedItems;
    std::int64_t failedItemCount = 0;
    bool wasCancelled = false;
    /// Both are absent for a result.
    std::optional<CleanupAuditSource> auditSource;
    std::optional<Platform::Date> recordedAt;
    bool allowsRestoreAttempts = false;

    /// The summed sizes of `trashMovedItems` and of `restoreAuthorizedItems`. The sizes may come from a file, so a sum
    /// beyond 64 bits stays at the limit.
    [[nodiscard]] std::int64_t trashMovedBytes() const;
    [[nodiscard]] std::int64_t restorableBytes() const;

    friend bool operator==(const CleanupRestoreCenterSnapshot&, const CleanupRestoreCenterSnapshot&) = default;

private:
    void takeItems(const std::vector<CleanedItem>& items);
};

} // namespace CleanerCore
