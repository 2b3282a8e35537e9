#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "CleanerCore/Cleaning/CleaningMode.h"
#include "Platform/Base/Date.h"

#include <cstdint>
#include <optional>

namespace CleanerCore {

/// How much space a clean recovered. A move to the Trash frees nothing until the Trash is emptied, so its bytes are
/// pending; a clean of unknown mode claims neither.
struct CleanupStorageImpactReport {
    /// What a report is made from; negative counts and sizes become 0.
    struct Fields {
        CleanupAuditSource source = CleanupAuditSource::cleanupDashboard;
        std::optional<CleaningMode> mode = {};
        Platform::Date occurredAt = {};
        std::int64_t requestedItemCount = 0;
        std::int64_t succeededItemCount = 0;
        std::int64_t failedItemCount = 0;
        std::int64_t expectedBytes = 0;
        std::int64_t affectedBytes = 0;
        bool wasCancelled = false;
    };

    explicit CleanupStorageImpactReport(const Fields& fields);
    /// Nothing for an entry that is not of a clean.
    static std::optional<CleanupStorageImpactReport> fromAuditEntry(const CleanupAuditEntry& auditEntry);

    CleanupAuditSource source;
    std::optional<CleaningMode> mode;
    Platform::Date occurredAt;
    std::int64_t requestedItemCount;
    std::int64_t succeededItemCount;
    std::int64_t failedItemCount;
    std::int64_t expectedBytes;
    std::int64_t affectedBytes;
    bool wasCancelled;

    [[nodiscard]] std::int64_t outcomeBytes() const { return affectedBytes; }
    [[nodiscard]] std::int64_t movedToTrashBytes() const { return affectedBytesOf(CleaningMode::moveToTrash); }
    [[nodiscard]] std::int64_t pendingRecoveryBytes() const { return movedToTrashBytes(); }
    [[nodiscard]] std::int64_t storageRecoveredBytes() const
    {
        return affectedBytesOf(CleaningMode::deletePermanently);
    }
    [[nodiscard]] std::int64_t actualRecoveredBytes() const { return storageRecoveredBytes(); }
    /// Not below 0.
    [[nodiscard]] std::int64_t remainingExpectedBytes() const;
    /// 0 to 1; nothing where no bytes were expected.
    [[nodiscard]] std::optional<double> outcomeFraction() const;

    friend bool operator==(const CleanupStorageImpactReport&, const CleanupStorageImpactReport&) = default;

private:
    [[nodiscard]] std::int64_t affectedBytesOf(CleaningMode wanted) const { return mode == wanted ? affectedBytes : 0; }
};

} // namespace CleanerCore
