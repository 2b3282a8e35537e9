#pragma once

#include "CleanerCore/Insights/InsightConfiguration.h"
#include "CleanerCore/Insights/InsightScanOptions.h"
#include "CleanerCore/Insights/MacStorageInsightReport.h"
#include "CleanerCore/Insights/SystemResourceSnapshot.h"
#include "CleanerCore/Scan/SkippedItem.h"
#include "KarvelloUI/Sessions/ActiveScan.h"
#include "KarvelloUI/Sessions/SessionServices.h"

#include <functional>
#include <optional>
#include <stop_token>

namespace KarvelloUI {

/// The state of the machine now. Called on any thread.
using SystemSnapshotProvider = std::function<CleanerCore::SystemResourceSnapshot()>;

struct InsightScanRequest {
    /// Of the grant, where there is one.
    Platform::FileURL homeDirectory;
    std::optional<ResolvedHomeAccessBookmark> homeAccessBookmark = {};
    CleanerCore::InsightConfiguration configuration;
    SystemSnapshotProvider systemSnapshotProvider;
};

struct InsightScanOperationResult {
    CleanerCore::MacStorageInsightReport report;
    /// Where items of the report may be cleaned.
    ActiveScan scanned;
    /// Access to the home could not be opened; the report has what could be read in spite of that.
    std::optional<CleanerCore::SkippedItem> homeAccessSkippedItem = {};
};

/// One insight scan on the calling thread. After a stop the report holds what was found until then.
[[nodiscard]] InsightScanOperationResult performInsightScan(const SessionServices& services,
    const InsightScanRequest& request, const std::function<void(const CleanerCore::InsightScanProgress&)>& report,
    const std::stop_token& stop);

} // namespace KarvelloUI
