#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "CleanerCore/Insights/SystemResourceSnapshot.h"
#include "KarvelloUI/Advisors/DiskCapacitySnapshot.h"
#include "KarvelloUI/Advisors/MacAccessPolicy.h"
#include "KarvelloUI/Advisors/StorageReviewFigures.h"
#include "KarvelloUI/Controls/MetricTile.h"
#include "KarvelloUI/Dashboard/DashboardWords.h"
#include "KarvelloUI/Screens/Home/HomeRows.h"
#include "KarvelloUI/Sessions/CleanerViewModel.h"
#include "KarvelloUI/Stores/SystemMetricHistory.h"

#include <cstdint>
#include <span>
#include <vector>

/// What the panels of the home screen show, of values alone. None of these goes through a report.
namespace KarvelloUI::HomeFigures {

/// What the four steps tell of.
struct Progress {
    CleanerViewModel::Phase phase = CleanerViewModel::Phase::idle;
    /// Of the scan that runs.
    int percentage = 0;
    /// Of the report on show.
    std::int64_t candidateCount = 0;
    double secondsSinceScan = 0;
    std::int64_t recordedMoveCount = 0;
    bool isLogLoaded = false;
    bool canRestore = false;

    /// A scan has ended, and its report is on show.
    [[nodiscard]] bool hasReport() const;
};

[[nodiscard]] HomeHero hero(
    const DiskCapacitySnapshot& disk, std::int64_t reclaimableBytes, const DashboardWords& words);
/// Processors, memory and heat. A snapshot that was never taken has no figures.
[[nodiscard]] std::vector<MetricTile> metrics(const CleanerCore::SystemResourceSnapshot& snapshot,
    const SystemMetricHistory& history, const DashboardWords& words);
/// Those before the current one are done. There is one current step, or none while there is nothing to do.
[[nodiscard]] std::vector<HomeFlowStep> flow(const Progress& progress, const DashboardWords& words);
[[nodiscard]] std::vector<HomeCoachCard> coach(const StorageReviewFigures& figures, const DiskCapacitySnapshot& disk,
    const MacAccessPolicy& access, const DashboardWords& words);
[[nodiscard]] std::vector<HomeTimelinePoint> timeline(const DiskCapacitySnapshot& disk,
    const StorageReviewFigures& figures, std::span<const CleanerCore::CleanupAuditEntry> log,
    const DashboardWords& words);
/// How many cleans of the log moved something to the Trash.
[[nodiscard]] std::int64_t recordedMoveCount(std::span<const CleanerCore::CleanupAuditEntry> log);

} // namespace KarvelloUI::HomeFigures
