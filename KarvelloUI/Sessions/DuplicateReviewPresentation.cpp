#include "KarvelloUI/Sessions/DuplicateReviewPresentation.h"

#include "Platform/Base/CheckedMath.h"

#include <algorithm>
#include <utility>

namespace KarvelloUI {

namespace {

DuplicateGroupSelectionState selectionState(std::ptrdiff_t selectable, std::ptrdiff_t selected)
{
    if (selectable == 0) {
        return DuplicateGroupSelectionState::unavailable;
    }
    if (selected == 0) {
        return DuplicateGroupSelectionState::none;
    }
    return selected == selectable ? DuplicateGroupSelectionState::all : DuplicateGroupSelectionState::partial;
}

template <typename Rows>
std::int64_t bytesOf(Rows rows)
{
    std::int64_t bytes = 0;
    for (const auto& row : rows) {
        bytes = Platform::checkedAdd(bytes, row.file->sizeBytes);
    }
    return bytes;
}

} // namespace

const DuplicateReviewFilePresentation* DuplicateReviewGroupPresentation::keeper() const
{
    const auto found = std::ranges::find(rows, DuplicateReviewFileRole::keeper, &Row::role);
    return found == rows.end() ? nullptr : &*found;
}

DuplicateReviewGroupPresentation makeDuplicateReviewGroupPresentation(
    const CleanerCore::DuplicateFileGroup& group, const DuplicateReviewSelection& selection)
{
    DuplicateReviewGroupPresentation presentation;
    presentation.group = &group;
    if (auto recommendation = group.keeperRecommendation()) {
        presentation.keeperRecommendation =
            std::make_shared<const CleanerCore::DuplicateKeeperRecommendation>(*std::move(recommendation));
    }
    const auto& recommendation = presentation.keeperRecommendation;
    const auto* const keeper = group.keeper();
    presentation.rows.reserve(group.files.size());
    for (const auto& file : group.files) {
        presentation.rows.push_back({.file = &file,
            .role = keeper != nullptr && keeper->id == file.id ? DuplicateReviewFileRole::keeper
                                                               : DuplicateReviewFileRole::extra,
            .isSelectable = selection.selectableFileIDs.contains(file.id),
            .isSelected = selection.selectedIDs.contains(file.id),
            .keeperRecommendation =
                recommendation != nullptr && recommendation->keeperID == file.id ? recommendation : nullptr});
    }
    presentation.totalExtraBytes = bytesOf(presentation.extras());
    presentation.selectableExtraBytes = bytesOf(presentation.selectableExtras());
    presentation.selectedExtraBytes = bytesOf(presentation.selectedExtras());
    presentation.selectionState = selectionState(
        std::ranges::distance(presentation.selectableExtras()), std::ranges::distance(presentation.selectedExtras()));
    return presentation;
}

std::vector<std::string> selectDuplicateExtras(
    const DuplicateReviewGroupPresentation& group, std::unordered_set<std::string>& selectedIDs)
{
    std::vector<std::string> changed;
    for (const auto& row : group.selectableExtras()) {
        if (selectedIDs.insert(row.id()).second) {
            changed.push_back(row.id());
        }
    }
    return changed;
}

std::vector<std::string> clearDuplicateGroupSelection(
    const DuplicateReviewGroupPresentation& group, std::unordered_set<std::string>& selectedIDs)
{
    std::vector<std::string> changed;
    for (const auto& row : group.extras()) {
        if (selectedIDs.erase(row.id()) > 0) {
            changed.push_back(row.id());
        }
    }
    return changed;
}

} // namespace KarvelloUI
