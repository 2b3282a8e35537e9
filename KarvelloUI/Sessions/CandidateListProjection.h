#pragma once

#include "CleanerCore/Scan/CleanupCandidate.h"
#include "KarvelloUI/Copy/Vocabulary/CandidateListGroupingMode.h"
#include "KarvelloUI/Sessions/CandidateListTextProvider.h"
#include "KarvelloUI/Sessions/CandidateSearchKeys.h"
#include "KarvelloUI/Sessions/CandidateSearchTexts.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloUI {

/// What the list of candidates shows at the moment. None of it touches the selection.
struct CandidateListFilters {
    std::string searchText = {};
    std::optional<CleanerCore::CleanupCategory> category = {};
    std::optional<CleanerCore::CleanupSafety> safety = {};
    CandidateListGroupingMode groupingMode = CandidateListGroupingMode::flat;

    friend bool operator==(const CandidateListFilters&, const CandidateListFilters&) = default;
};

/// A part of the list, never empty.
struct CandidateListSection {
    /// "flat.all", or "category." or "safety." and the raw value.
    std::string id;
    /// Empty for the only section of a list that is not grouped.
    std::string title;
    /// Positions in the report, ascending.
    std::vector<std::uint32_t> candidates;

    friend bool operator==(const CandidateListSection&, const CandidateListSection&) = default;
};

/// From a report to the rows of its list. Pure functions, for any thread.
namespace CandidateListProjection {

/// The sections of what passes all filters, in the order of the enumeration that groups them, within a section in the
/// order of the report. `keys` and `texts` are those of `candidates`.
[[nodiscard]] std::vector<CandidateListSection> sections(std::span<const CleanerCore::CleanupCandidate> candidates,
    const CandidateSearchKeys& keys, const CandidateSearchTexts& texts, const CandidateListFilters& filters);
/// The same, for those who ask once.
[[nodiscard]] std::vector<CandidateListSection> sections(std::span<const CleanerCore::CleanupCandidate> candidates,
    const CandidateListFilters& filters, const CandidateListTextProvider& textProvider);

/// Whether each word of `searchText` occurs in the candidate's path or name or in one of the texts shown with it,
/// capitals and accents making no difference. Without a word everything matches.
[[nodiscard]] bool matchesSearch(const CleanerCore::CleanupCandidate& candidate, std::string_view searchText,
    const CandidateListTextProvider& textProvider);

} // namespace CandidateListProjection

} // namespace KarvelloUI
