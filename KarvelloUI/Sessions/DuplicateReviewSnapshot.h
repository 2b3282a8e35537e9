#pragma once

#include "CleanerCore/Insights/DuplicateFileGroup.h"
#include "KarvelloUI/Sessions/DuplicateReviewPresentation.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace KarvelloUI {

/// All groups of a report as they are reviewed. A change of the selection costs work for the groups that it touches,
/// however many there are.
class DuplicateReviewSnapshot {
public:
    /// The groups of a report, which stay as they are. From a shared report: `{report, &report->duplicateGroups}`.
    using Groups = std::shared_ptr<const std::vector<CleanerCore::DuplicateFileGroup>>;
    using Files = std::vector<const CleanerCore::FileInsight*>;

    /// Of no group.
    DuplicateReviewSnapshot() = default;
    DuplicateReviewSnapshot(Groups source, const DuplicateReviewSelection& selection);

    /// In the order of the report.
    [[nodiscard]] const std::vector<DuplicateReviewGroupPresentation>& groups() const { return m_groups; }
    /// Nothing for an unknown id.
    [[nodiscard]] const DuplicateReviewGroupPresentation* groupByID(std::string_view groupID) const;
    [[nodiscard]] std::optional<std::size_t> groupIndexByID(std::string_view groupID) const;
    /// The position of the group that holds the file.
    [[nodiscard]] std::optional<std::size_t> groupIndexByFileID(std::string_view fileID) const;

    /// Of all groups, in their order.
    [[nodiscard]] const Files& files() const { return m_files; }
    [[nodiscard]] const Files& selectableFiles() const { return m_selectableFiles; }
    /// Put together for each call.
    [[nodiscard]] Files selectedFiles() const;

    [[nodiscard]] bool isSelectable(std::string_view fileID) const { return m_selectableIDs.contains(fileID); }
    [[nodiscard]] const std::unordered_set<std::string_view>& selectableIDs() const { return m_selectableIDs; }
    [[nodiscard]] const std::unordered_set<std::string_view>& selectedIDs() const { return m_selectedIDs; }
    [[nodiscard]] std::int64_t selectedBytes() const { return m_selectedBytes; }

    /// The selection changed for these files, at most. Gives the positions of the groups that were made anew.
    std::vector<std::size_t> refresh(
        std::span<const std::string> changedFileIDs, const DuplicateReviewSelection& selection);
    /// The same for those who do not know what changed.
    std::vector<std::size_t> refreshForSelectionDelta(const DuplicateReviewSelection& selection);

private:
    std::vector<std::size_t> replace(
        const std::unordered_set<std::size_t>& affected, const DuplicateReviewSelection& selection);
    void fillDerivedFields();
    void addSelected(const DuplicateReviewGroupPresentation& group);
    void removeSelected(const DuplicateReviewGroupPresentation& group);

    Groups m_source;
    std::vector<DuplicateReviewGroupPresentation> m_groups;
    Files m_files;
    Files m_selectableFiles;
    // The texts are those of the files and groups in `m_source`.
    std::unordered_set<std::string_view> m_selectableIDs;
    std::unordered_set<std::string_view> m_selectedIDs;
    std::unordered_map<std::string_view, std::size_t> m_indexByGroupID;
    std::unordered_map<std::string_view, std::size_t> m_indexByFileID;
    std::int64_t m_selectedBytes = 0;
};

} // namespace KarvelloUI
