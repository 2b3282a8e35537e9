#include "KarvelloUI/Advisors/StorageTrendTimeline.h"

#include "KarvelloUI/Advisors/AuditReports.h"

#include <fmt/format.h>

#include <algorithm>
#include <tuple>

namespace KarvelloUI {

namespace {

using CleanerCore::CleanupStorageImpactReport;
using Point = StorageTrendTimeline::Point;
using Kind = StorageTrendTimelinePointKind;

constexpr std::size_t kMostAuditPoints = 3;

std::optional<StorageTrendTimeline::Action> actionOf(const std::optional<StorageReviewTarget>& target)
{
    return target ? std::optional(StorageTrendTimeline::Action{target->section}) : std::nullopt;
}

/// The later first. The ids settle what nothing else does.
bool prefersRecentAuditPoint(const AuditReport& left, const AuditReport& right)
{
    const auto figures = [](const CleanupStorageImpactReport& report) {
        return std::tie(report.succeededItemCount, report.affectedBytes, report.expectedBytes);
    };
    if (left.report.occurredAt != right.report.occurredAt) {
        return left.report.occurredAt > right.report.occurredAt;
    }
    if (left.report.source != right.report.source) {
        return left.report.source < right.report.source;
    }
    if (figures(left.report) != figures(right.report)) {
        return figures(left.report) > figures(right.report);
    }
    return left.id > right.id;
}

std::optional<Point> auditTimelinePoint(const AuditReport& audit)
{
    const CleanupStorageImpactReport& report = audit.report;
    Point point{.occurredAt = report.occurredAt, .source = report.source, .itemCount = report.succeededItemCount};
    if (const std::int64_t recovered = report.actualRecoveredBytes(); recovered >= 1) {
        point.id = fmt::format("audit-recovered-{}", audit.id.string());
        point.kind = Kind::recoveredSpace;
        point.bytes = recovered;
        point.secondaryBytes = report.remainingExpectedBytes();
        return point;
    }
    if (const std::int64_t pending = report.pendingRecoveryBytes(); pending >= 1) {
        point.id = fmt::format("audit-trash-{}", audit.id.string());
        point.kind = Kind::movedToTrashPending;
        point.bytes = pending;
        point.secondaryBytes = pending;
        return point;
    }
    return std::nullopt;
}

std::vector<Point> auditTimelinePoints(std::span<const CleanerCore::CleanupAuditEntry> entries, std::size_t limit)
{
    auto reports = auditReportsLessRestores(entries);
    std::ranges::sort(reports, prefersRecentAuditPoint);
    std::vector<Point> points;
    for (const AuditReport& report : reports) {
        if (points.size() == limit) {
            break;
        }
        if (auto point = auditTimelinePoint(report)) {
            points.push_back(*std::move(point));
        }
    }
    return points;
}

} // namespace

StorageTrendTimeline StorageTrendTimeline::of(const DiskCapacitySnapshot& diskSnapshot,
    const CleanerCore::ScanReport& cleanupReport, const CleanerCore::MacStorageInsightReport& insightReport,
    std::span<const CleanerCore::CleanupAuditEntry> auditEntries)
{
    return of(diskSnapshot, StorageReviewFigures::of(cleanupReport, insightReport), auditEntries);
}

StorageTrendTimeline StorageTrendTimeline::of(const DiskCapacitySnapshot& diskSnapshot,
    const StorageReviewFigures& figures, std::span<const CleanerCore::CleanupAuditEntry> auditEntries)
{
    StorageTrendTimeline timeline;
    if (diskSnapshot.totalBytes >= 1) {
        timeline.points.push_back({.id = "current-storage",
            .kind = Kind::currentStorage,
            .bytes = diskSnapshot.freeBytes,
            .secondaryBytes = diskSnapshot.usedBytes()});
    }
    if (diskSnapshot.isLow()) {
        timeline.points.push_back({.id = "low-disk-reminder",
            .kind = Kind::lowDiskReminder,
            .bytes = diskSnapshot.freeBytes,
            .action = actionOf(figures.largestReviewTarget())});
    }
    if (figures.reclaimableBytes >= 1) {
        timeline.points.push_back({.id = "cleanup-scan-estimate",
            .kind = Kind::cleanupScanEstimate,
            .bytes = figures.reclaimableBytes,
            .itemCount = figures.candidateCount,
            .action = Action{MacDashboardSection::cleanup}});
    }
    if (const auto opportunity = figures.largestInsightOpportunity()) {
        timeline.points.push_back({.id = fmt::format("insight-review-{}", Platform::rawValue(opportunity->section)),
            .kind = Kind::insightReviewOpportunity,
            .bytes = opportunity->bytes,
            .itemCount = opportunity->itemCount,
            .action = actionOf(opportunity)});
    }
    auto auditPoints = auditTimelinePoints(auditEntries, kMostAuditPoints);
    std::ranges::move(auditPoints, std::back_inserter(timeline.points));
    return timeline;
}

} // namespace KarvelloUI
