#pragma once

#include "CleanerCore/Insights/MacStorageInsightReport.h"
#include "CleanerCore/Scan/ScanReport.h"
#include "KarvelloUI/Advisors/DiskCapacitySnapshot.h"
#include "KarvelloUI/Advisors/MacAccessPolicy.h"
#include "KarvelloUI/Advisors/StorageRecommendation.h"
#include "KarvelloUI/Advisors/StorageReviewFigures.h"
#include "KarvelloUI/Copy/AppLanguage.h"

#include <vector>

namespace KarvelloUI::SmartCleanupCoach {

/// What to review first: one to three recommendations, the best first.
///
/// Each kind has a band of priorities of its own. What is told in bytes adds a point for each whole GiB, 20 at most, so
/// the kind decides first and the size only within a band. Without a scan there are no findings, and without access to
/// the home folder that is what is recommended; the suggestion to scan stands alone.
[[nodiscard]] std::vector<StorageRecommendation> recommendations(const CleanerCore::ScanReport& cleanupReport,
    const CleanerCore::MacStorageInsightReport& insightReport, const DiskCapacitySnapshot& diskSnapshot,
    const MacAccessPolicy& accessPolicy, AppLanguage language);
/// The same of figures that are known: no report is gone through.
[[nodiscard]] std::vector<StorageRecommendation> recommendations(const StorageReviewFigures& figures,
    const DiskCapacitySnapshot& diskSnapshot, const MacAccessPolicy& accessPolicy, AppLanguage language);

} // namespace KarvelloUI::SmartCleanupCoach
