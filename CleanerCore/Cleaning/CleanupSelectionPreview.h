#pragma once

#include "CleanerCore/Cleaning/CleanupPreviewCategorySummary.h"
#include "CleanerCore/Cleaning/CleanupSafetyBreakdown.h"
#include "CleanerCore/Scan/CleanupCandidate.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace CleanerCore {

/// What a clean of the selected candidates is about to do. Looks at nothing on disk.
struct CleanupSelectionPreview {
    CleanupSelectionPreview() = default;
    explicit CleanupSelectionPreview(std::span<const CleanupCandidate> candidates);

    std::int64_t count = 0;
    std::int64_t bytes = 0;
    CleanupSafetyBreakdown safetyBreakdown;
    /// The one with the most bytes first, those with as many by the raw value of the category.
    std::vector<CleanupPreviewCategorySummary> categorySummaries;

    [[nodiscard]] bool containsNonSafeItems() const;
    /// Nothing for an empty selection.
    [[nodiscard]] std::optional<CleanupSafety> highestRisk() const;

    friend bool operator==(const CleanupSelectionPreview&, const CleanupSelectionPreview&) = default;
};

} // namespace CleanerCore
