#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "CleanerCore/Insights/MacStorageInsightReport.h"
#include "CleanerCore/Scan/ScanReport.h"
#include "KarvelloUI/Advisors/DiskCapacitySnapshot.h"
#include "KarvelloUI/Advisors/StorageReviewFigures.h"
#include "KarvelloUI/Copy/Vocabulary/MacDashboardSection.h"
#include "KarvelloUI/Copy/Vocabulary/StorageTrendTimelinePointKind.h"
#include "Platform/Base/Date.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace KarvelloUI {

/// The small story of the disk: what is free, what the latest scans estimate, what lies in the Trash, what was really
/// recovered. A move to the Trash is not recovered space, and no estimate is added to anything.
struct StorageTrendTimeline {
    struct Action {
        MacDashboardSection destination = MacDashboardSection::cleanup;

        friend bool operator==(const Action&, const Action&) = default;
    };

    struct Point {
        using Kind = StorageTrendTimelinePointKind;

        /// Of its own in one timeline, and the same in the next for the same matter.
        std::string id = {};
        Kind kind = Kind::currentStorage;
        std::int64_t bytes = 0;
        /// The used bytes of `currentStorage`, what is left of the estimate of `recoveredSpace`, the same as `bytes` for
        /// `movedToTrashPending`; else 0.
        std::int64_t secondaryBytes = 0;
        /// Absent for what is told of the present.
        std::optional<Platform::Date> occurredAt = {};
        std::optional<CleanerCore::CleanupAuditSource> source = {};
        std::int64_t itemCount = 0;
        std::optional<Action> action = {};

        friend bool operator==(const Point&, const Point&) = default;
    };

    /// The present first: the disk, whether it is low, the latest cleanup scan, the largest find of the latest insight
    /// scan. Then up to three cleans, the latest first, less what has gone back (`auditReportsLessRestores`). Neither the
    /// order of the entries nor equal dates change the result.
    static StorageTrendTimeline of(const DiskCapacitySnapshot& diskSnapshot,
        const CleanerCore::ScanReport& cleanupReport, const CleanerCore::MacStorageInsightReport& insightReport,
        std::span<const CleanerCore::CleanupAuditEntry> auditEntries);
    /// The same of figures that are known: no report is gone through.
    static StorageTrendTimeline of(const DiskCapacitySnapshot& diskSnapshot, const StorageReviewFigures& figures,
        std::span<const CleanerCore::CleanupAuditEntry> auditEntries);

    std::vector<Point> points;

    friend bool operator==(const StorageTrendTimeline&, const StorageTrendTimeline&) = default;
};

} // namespace KarvelloUI
