#pragma once

#include "CleanerCore/Cleaning/CleanupPreviewCategorySummary.h"
#include "CleanerCore/Cleaning/CleanupSafetyBreakdown.h"
#include "CleanerCore/Cleaning/CleanupSelectionPreview.h"
#include "CleanerCore/Scan/CleanupCandidate.h"
#include "Platform/Base/RawValue.h"

#include <array>

namespace CleanerCore {

/// The sums of a selection that changes candidate by candidate.
class CleanupSelectionTotals {
public:
    void add(const CleanupCandidate& candidate);
    /// The candidate was added before.
    void remove(const CleanupCandidate& candidate);

    [[nodiscard]] CleanupSelectionPreview preview() const;

private:
    CleanupPreviewCategorySummary& summary(CleanupCategory category);

    CleanupSafetyBreakdown m_safetyBreakdown;
    std::array<CleanupPreviewCategorySummary, Platform::allCases<CleanupCategory>().size()> m_summaries;
};

} // namespace CleanerCore
