#pragma once

#include "CleanerCore/Cleaning/CleanupSelectionPreview.h"
#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "KarvelloUI/Sessions/CandidateIndex.h"
#include "KarvelloUI/Sessions/CandidateListProjection.h"
#include "KarvelloUI/Sessions/CandidateSelection.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace KarvelloUI {

/// A selection as it stood when a confirmation was shown.
struct CandidateSelectionSnapshot {
    std::unordered_set<std::string> ids;
    std::int64_t count = 0;
    std::int64_t bytes = 0;
    bool containsNonSafe = false;
    /// How many of them the list did not show.
    std::int64_t hiddenSelectedCount = 0;

    friend bool operator==(const CandidateSelectionSnapshot&, const CandidateSelectionSnapshot&) = default;
};

/// The review side of a cleanup session, without its thread and its signals: the report on show, what of it is selected
/// and what of it the list shows. Selecting and showing are separate: no filter changes the selection.
class CandidateReview {
public:
    enum class Filters : std::uint8_t {
        /// Those that nothing of the report passes are dropped, the search text stays.
        reconcile,
        /// All are dropped. The grouping mode stays.
        reset,
    };

    /// Every change of the report goes through here. The selection keeps what the new report still holds. A report
    /// without candidates resets the filters in any case.
    void apply(std::shared_ptr<const CandidateIndex> index, Filters filters);

    [[nodiscard]] const CandidateIndex& index() const { return m_selection.index(); }
    [[nodiscard]] const CleanerCore::ScanReport& report() const { return index().report(); }

    [[nodiscard]] CandidateSelection& selection() { return m_selection; }
    [[nodiscard]] const CandidateSelection& selection() const { return m_selection; }

    [[nodiscard]] const CandidateListFilters& filters() const { return m_filters; }
    void setFilters(CandidateListFilters filters) { m_filters = std::move(filters); }

    /// What the list shows in the language of `copy`. The words of the last language are kept until the report changes.
    [[nodiscard]] std::vector<CandidateListSection> visibleCandidateSections(const KarvelloCopy& copy);
    [[nodiscard]] std::unordered_set<std::string> visibleCandidateIDs(const KarvelloCopy& copy);

    /// Without visible ids nothing counts as hidden.
    [[nodiscard]] CandidateSelectionSnapshot selectionSnapshot(
        const std::unordered_set<std::string>* visibleCandidateIDs = nullptr) const;
    [[nodiscard]] std::int64_t hiddenSelectedCandidateCount(
        const std::unordered_set<std::string>* visibleCandidateIDs) const;
    /// What cleaning the snapshot, or without one the selection, would do; ids that the report does not know are left out.
    [[nodiscard]] CleanerCore::CleanupSelectionPreview cleanupPreview(const CandidateSelectionSnapshot* snapshot) const;

private:
    CandidateSelection m_selection;
    CandidateListFilters m_filters;
    struct Words {
        AppLanguage language;
        CandidateSearchTexts texts;
    };
    std::optional<Words> m_words;
};

} // namespace KarvelloUI
