#pragma once

#include "KarvelloUI/Sessions/CleanerViewModel.h"

#include <utility>

namespace KarvelloUI {

/// What a scan brings, made ready for the screen where it ran.
struct CleanerViewModel::PreparedScan {
    PreparedScan(ScanOperationResult result, const std::unordered_set<std::string>& ignored)
        : scanned(std::move(result.scanned))
        , index(std::make_shared<CandidateIndex>(std::move(result.report)))
        , visible(index)
    {
        for (const auto& candidate : index->candidates()) {
            if (ignored.contains(candidate.id)) {
                hidden.insert(candidate.id);
            }
        }
        if (!hidden.empty()) {
            visible = std::make_shared<CandidateIndex>(index->reportWithout(hidden));
        }
    }

    ActiveScan scanned;
    std::shared_ptr<const CandidateIndex> index;
    /// Those that were ignored when the scan began, and the report without them.
    std::unordered_set<std::string> hidden;
    std::shared_ptr<const CandidateIndex> visible;
};

/// What a clean or a restore brings. One that was cancelled before it began did nothing.
struct CleanerViewModel::CleanRun {
    CleanerCore::CleanResult result;
    bool hasBegun = true;
    /// The report that was on show, and what is left of it.
    std::shared_ptr<const CandidateIndex> before = {};
    std::shared_ptr<const CandidateIndex> after = {};
};

struct CleanerViewModel::RestoreRun {
    CleanerCore::RestoreResult result;
    bool hasBegun = true;
};

} // namespace KarvelloUI
