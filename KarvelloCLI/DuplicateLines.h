#pragma once

#include "CleanerCore/Insights/DuplicateFileGroup.h"
#include "KarvelloCLI/CandidateRows.h"
#include "KarvelloCLI/TextStyle.h"

#include <span>
#include <string>
#include <vector>

namespace KarvelloCLI {

/// Why a copy is the one to keep, as a sentence goes on behind "because".
[[nodiscard]] std::string keeperReasons(const CleanerCore::DuplicateKeeperRecommendation& recommendation);

/// Sets of duplicates: what the extra copies hold, the copy to keep and why, the others. `rows` has the first copies of
/// the first groups, keepers first; how much more there is is told in one line each.
[[nodiscard]] std::string duplicateLines(std::span<const CleanerCore::DuplicateFileGroup> groups,
    std::span<const std::vector<CandidateRow>> rows, const TextStyle& style);

} // namespace KarvelloCLI
