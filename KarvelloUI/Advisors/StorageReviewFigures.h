#pragma once

#include "CleanerCore/Insights/MacStorageInsightReport.h"
#include "CleanerCore/Scan/ScanReport.h"
#include "KarvelloUI/Copy/Vocabulary/MacDashboardSection.h"

#include <cstdint>
#include <optional>

namespace KarvelloUI {

/// A screen and how much there is to review on it.
struct StorageReviewTarget {
    MacDashboardSection section = MacDashboardSection::cleanup;
    /// At least 1.
    std::int64_t bytes = 0;
    std::int64_t itemCount = 0;

    friend bool operator==(const StorageReviewTarget&, const StorageReviewTarget&) = default;
};

/// How much the latest scans found to review, in bytes. A sum beyond the range ends the program.
struct StorageReviewFigures {
    std::int64_t largeFileBytes = 0;
    std::int64_t largeFileCount = 0;
    std::int64_t downloadBytes = 0;
    std::int64_t downloadCount = 0;
    std::int64_t duplicateWastedBytes = 0;
    /// The extra copies, without the ones to keep.
    std::int64_t duplicateExtraCount = 0;
    std::int64_t duplicateGroupCount = 0;
    std::int64_t reclaimableBytes = 0;
    std::int64_t candidateCount = 0;
    /// What both scans skipped for want of a permission.
    std::int64_t blockedItemCount = 0;

    static StorageReviewFigures of(
        const CleanerCore::ScanReport& cleanupReport, const CleanerCore::MacStorageInsightReport& insightReport);

    /// The largest of large files, downloads and cleanup, and of equal ones the first in this order. Copies are no
    /// target: one of each stays.
    [[nodiscard]] std::optional<StorageReviewTarget> largestReviewTarget() const;
    /// The largest of large files, downloads and duplicates, and of equal ones the first in this order.
    [[nodiscard]] std::optional<StorageReviewTarget> largestInsightOpportunity() const;

    friend bool operator==(const StorageReviewFigures&, const StorageReviewFigures&) = default;
};

} // namespace KarvelloUI
