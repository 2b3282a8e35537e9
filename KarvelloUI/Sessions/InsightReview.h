#pragma once

#include "KarvelloUI/Sessions/DuplicateReviewSnapshot.h"
#include "KarvelloUI/Sessions/InsightIndex.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <unordered_set>
#include <vector>

namespace KarvelloUI {

/// The review side of an insights session, without its thread and its signals: a report, and what of it is selected,
/// which is never more than may be. A change of the selection costs work for the files that it changes and for the groups
/// of duplicates that hold them.
class InsightReview {
public:
    using Files = InsightIndex::Files;

    /// Keeps what of `selectedIDs` the report lets be selected; nothing is selected by itself.
    InsightReview(std::shared_ptr<const InsightIndex> index, std::unordered_set<std::string> selectedIDs);

    [[nodiscard]] const std::shared_ptr<const InsightIndex>& index() const { return m_index; }
    [[nodiscard]] const CleanerCore::MacStorageInsightReport& report() const { return m_index->report(); }
    [[nodiscard]] const DuplicateReviewSnapshot& duplicates() const { return m_duplicates; }
    [[nodiscard]] DuplicateReviewSelection selection() const
    {
        return {.selectableFileIDs = m_index->selectableFileIDs(), .selectedIDs = m_selectedIDs};
    }

    [[nodiscard]] const std::unordered_set<std::string>& selectedIDs() const { return m_selectedIDs; }
    [[nodiscard]] std::int64_t selectedCount() const { return static_cast<std::int64_t>(m_selectedIDs.size()); }
    [[nodiscard]] std::int64_t selectedBytes() const { return m_selectedBytes; }
    [[nodiscard]] bool isSelected(const std::string& id) const { return m_selectedIDs.contains(id); }
    [[nodiscard]] bool isSelectable(const std::string& id) const { return m_index->selectableFileIDs().contains(id); }

    [[nodiscard]] Files files(MacInsightFileSection section) const;
    [[nodiscard]] Files selectableFiles(MacInsightFileSection section) const;
    [[nodiscard]] Files selectedFiles(MacInsightFileSection section) const;

    /// What a change did.
    struct Outcome {
        bool isChanged = false;
        /// The positions of the groups of duplicates that are presented anew.
        std::vector<std::size_t> groups = {};
    };
    /// What cannot be selected, or is as wanted already, stays as it is. So in all of these.
    Outcome setSelected(const std::string& id, bool isSelected);
    Outcome selectAll(MacInsightFileSection section);
    Outcome clear(MacInsightFileSection section);
    Outcome selectDuplicateExtras(const DuplicateReviewGroupPresentation& group);
    Outcome clearDuplicateGroupSelection(const DuplicateReviewGroupPresentation& group);
    Outcome deselect(std::span<const std::string> ids);
    /// What of `ids` may be selected becomes the selection.
    void replaceSelection(const std::unordered_set<std::string>& ids);

private:
    Outcome refresh(std::span<const std::string> changedIDs);

    std::shared_ptr<const InsightIndex> m_index;
    std::unordered_set<std::string> m_selectedIDs;
    std::int64_t m_selectedBytes = 0;
    DuplicateReviewSnapshot m_duplicates;
};

} // namespace KarvelloUI
