#pragma once

#include "CleanerCore/Cleaning/CleanResult.h"
#include "CleanerCore/Cleaning/CleaningMode.h"
#include "CleanerCore/Cleaning/RestoreResult.h"
#include "CleanerCore/Export/ReportExportRedactionContext.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/RawValue.h"
#include "Platform/Base/UUID.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace CleanerCore {

enum class CleanupAuditOperation : std::uint8_t { clean, restore };
/// `iOSSandbox` is written by no flow of this application; the reader accepts it.
enum class CleanupAuditSource : std::uint8_t { cleanupDashboard, macInsights, iOSSandbox };

/// What one clean or one attempt to restore did. The lists are bounded by the record itself, whoever makes it; the
/// counts are not reduced to match.
struct CleanupAuditEntry {
    static constexpr std::size_t cleanedItemLimit = 20;
    static constexpr std::size_t kSampleLimit = 5;

    Platform::UUID id = {};
    Platform::Date occurredAt = {};
    CleanupAuditOperation operation = CleanupAuditOperation::clean;
    CleanupAuditSource source = CleanupAuditSource::cleanupDashboard;
    /// Absent for a restore.
    std::optional<CleaningMode> mode = {};
    std::int64_t requestedItemCount = 0;
    std::int64_t requestedBytes = 0;
    std::int64_t succeededItemCount = 0;
    std::int64_t failedItemCount = 0;
    std::int64_t affectedBytes = 0;
    bool wasCancelled = false;
    std::vector<std::string> samplePaths = {};
    std::vector<std::string> failureReasons = {};
    /// What makes a restore possible.
    std::vector<CleanedItem> cleanedItems = {};

    static CleanupAuditEntry clean(const CleanResult& result, CleaningMode mode,
        std::span<const CleanupCandidate> requestedCandidates, CleanupAuditSource source, Platform::Date occurredAt);
    static CleanupAuditEntry restore(const RestoreResult& result, std::span<const CleanedItem> requestedItems,
        CleanupAuditSource source, Platform::Date occurredAt);

    /// A copy that may be stored: no paths but those that a restore needs. Entries of one write share a context.
    [[nodiscard]] CleanupAuditEntry storageSafe(ReportExportRedactionContext& context) const;
    [[nodiscard]] CleanupAuditEntry storageSafeForAuditPersistence() const;
    /// With each list cut to its bound.
    [[nodiscard]] CleanupAuditEntry normalized() &&;

    friend bool operator==(const CleanupAuditEntry&, const CleanupAuditEntry&) = default;
};

} // namespace CleanerCore

template <>
struct Platform::RawValues<CleanerCore::CleanupAuditOperation> {
    static constexpr std::array<std::string_view, 2> names{"clean", "restore"};
};

template <>
struct Platform::RawValues<CleanerCore::CleanupAuditSource> {
    static constexpr std::array<std::string_view, 3> names{"cleanupDashboard", "macInsights", "iOSSandbox"};
};
