#pragma once

#include "CleanerCore/Scan/CleanupCandidate.h"
#include "KarvelloCLI/Options.h"

#include <span>
#include <string>
#include <vector>

namespace KarvelloCLI {

/// The candidates of a scan that a clean is asked for.
struct SelectedCandidates {
    /// In the order of the scan.
    std::vector<CleanerCore::CleanupCandidate> candidates;
    /// Ids that no candidate has, each once.
    std::vector<std::string> unknownIds;

    static SelectedCandidates of(std::span<const CleanerCore::CleanupCandidate> found, CleanSelection selection,
        std::span<const std::string> ids);
};

} // namespace KarvelloCLI
