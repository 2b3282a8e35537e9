#pragma once

#include "KarvelloUI/Sessions/MacInsightsViewModel.h"

namespace KarvelloUI {

/// What a scan brings, made ready for the screen where it ran.
struct MacInsightsViewModel::PreparedScan {
    InsightReview review;
    ActiveScan scanned;
    std::optional<CleanerCore::SkippedItem> homeAccessSkippedItem;
};

/// What a clean finds out before it begins.
struct MacInsightsViewModel::Eligibility {
    /// Selected, and no longer to be cleaned.
    std::vector<std::string> lostIDs;
    bool leavesSome = false;
};

/// What a clean brings.
struct MacInsightsViewModel::CleanRun {
    /// None if nothing was eligible: then there was no clean.
    std::vector<CleanerCore::CleanupCandidate> candidates;
    ConfirmedCleanRun run;
    /// What is left of the report, if the clean began.
    std::optional<InsightReview> review;
};

} // namespace KarvelloUI
