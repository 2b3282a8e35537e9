#pragma once

#include "CleanerCore/Cleaning/CleanupSelectionPreview.h"
#include "CleanerCore/Cleaning/CleanupSelectionTotals.h"
#include "CleanerCore/Scan/CleanupCandidate.h"
#include "KarvelloUI/Sessions/CandidateIndex.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace KarvelloUI {

/// The candidates of a report that the user has selected, seen or not, with their sums kept up to date: a change of one
/// candidate costs the same however many there are.
class CandidateSelection {
public:
    CandidateSelection();

    /// Another report: what it still holds of the selection stays selected.
    void setIndex(std::shared_ptr<const CandidateIndex> index);
    [[nodiscard]] const CandidateIndex& index() const { return *m_index; }
    [[nodiscard]] const std::shared_ptr<const CandidateIndex>& sharedIndex() const { return m_index; }

    /// Whether anything changed. An unknown id changes nothing.
    bool setSelected(std::string_view id, bool isSelected);
    bool setSelected(std::uint32_t position, bool isSelected);
    bool setSelected(std::span<const std::uint32_t> positions, bool isSelected);
    void selectAll();
    void clear();
    /// Those, and only those, that the scan selects by default.
    void selectDefaults();

    [[nodiscard]] bool isSelected(std::string_view id) const;
    [[nodiscard]] bool isSelected(std::uint32_t position) const { return m_isSelected[position]; }
    [[nodiscard]] bool areAllSelected() const;

    [[nodiscard]] std::int64_t count() const { return m_preview.count; }
    [[nodiscard]] std::int64_t bytes() const { return m_preview.bytes; }
    [[nodiscard]] bool containsNonSafe() const { return m_preview.containsNonSafeItems(); }
    [[nodiscard]] const CleanerCore::CleanupSelectionPreview& preview() const { return m_preview; }

    /// These two cost as much as there are selected candidates, the second in the order of the report.
    [[nodiscard]] std::unordered_set<std::string> ids() const;
    [[nodiscard]] std::vector<CleanerCore::CleanupCandidate> candidates() const;
    /// The selected candidates, in the order of the report.
    template <typename Visit>
    void forEach(Visit visit) const
    {
        for (std::uint32_t position = 0; position < m_isSelected.size(); ++position) {
            if (m_isSelected[position]) {
                visit(m_index->candidates()[position]);
            }
        }
    }

private:
    void select(std::vector<bool> isSelected);

    std::shared_ptr<const CandidateIndex> m_index;
    std::vector<bool> m_isSelected;
    CleanerCore::CleanupSelectionTotals m_totals;
    CleanerCore::CleanupSelectionPreview m_preview;
};

} // namespace KarvelloUI
