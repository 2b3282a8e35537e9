#pragma once

#include "CleanerCore/Insights/DuplicateFileGroup.h"
#include "CleanerCore/Insights/DuplicateKeeperRecommendation.h"
#include "CleanerCore/Insights/FileInsight.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <ranges>
#include <string>
#include <unordered_set>
#include <vector>

namespace KarvelloUI {

enum class DuplicateReviewFileRole : std::uint8_t { keeper, extra };

/// How many of a group's selectable extras are selected; `unavailable` where none can be.
enum class DuplicateGroupSelectionState : std::uint8_t { unavailable, none, partial, all };

/// The ids that a session lets the user select, and those that are. Both outlive the call that they are given to.
struct DuplicateReviewSelection {
    const std::unordered_set<std::string>& selectableFileIDs;
    const std::unordered_set<std::string>& selectedIDs;
};

/// One row of a group. The file is one of the group's.
struct DuplicateReviewFilePresentation {
    const CleanerCore::FileInsight* file = nullptr;
    DuplicateReviewFileRole role = DuplicateReviewFileRole::extra;
    bool isSelectable = false;
    bool isSelected = false;
    /// The group's, on the row of the file that it recommends.
    std::shared_ptr<const CleanerCore::DuplicateKeeperRecommendation> keeperRecommendation = {};

    [[nodiscard]] const std::string& id() const { return file->id; }
    [[nodiscard]] bool isExtra() const { return role == DuplicateReviewFileRole::extra; }
    /// A keeper is neither of these.
    [[nodiscard]] bool isSelectableExtra() const { return isExtra() && isSelectable; }
    [[nodiscard]] bool isSelectedExtra() const { return isSelectableExtra() && isSelected; }

    friend bool operator==(const DuplicateReviewFilePresentation&, const DuplicateReviewFilePresentation&) = default;
};

/// A group as it is reviewed. It refers to the group, which outlives it and does not change.
struct DuplicateReviewGroupPresentation {
    using Row = DuplicateReviewFilePresentation;

    const CleanerCore::DuplicateFileGroup* group = nullptr;
    /// One for each file, in the group's order.
    std::vector<Row> rows = {};
    std::int64_t totalExtraBytes = 0;
    std::int64_t selectableExtraBytes = 0;
    std::int64_t selectedExtraBytes = 0;
    DuplicateGroupSelectionState selectionState = DuplicateGroupSelectionState::unavailable;
    std::shared_ptr<const CleanerCore::DuplicateKeeperRecommendation> keeperRecommendation = {};

    [[nodiscard]] const std::string& id() const { return group->id; }
    /// Nothing for a group without one.
    [[nodiscard]] const Row* keeper() const;
    /// Views of `rows`, in their order.
    [[nodiscard]] auto extras() const { return rows | std::views::filter(&Row::isExtra); }
    [[nodiscard]] auto selectableExtras() const { return rows | std::views::filter(&Row::isSelectableExtra); }
    [[nodiscard]] auto selectedExtras() const { return rows | std::views::filter(&Row::isSelectedExtra); }

    friend bool operator==(const DuplicateReviewGroupPresentation&, const DuplicateReviewGroupPresentation&) = default;
};

[[nodiscard]] DuplicateReviewGroupPresentation makeDuplicateReviewGroupPresentation(
    const CleanerCore::DuplicateFileGroup& group, const DuplicateReviewSelection& selection);

/// Adds the group's selectable extras to `selectedIDs`, and gives the ids that were not there before.
std::vector<std::string> selectDuplicateExtras(
    const DuplicateReviewGroupPresentation& group, std::unordered_set<std::string>& selectedIDs);
/// Removes the group's extras from `selectedIDs`, and gives the ids that were there.
std::vector<std::string> clearDuplicateGroupSelection(
    const DuplicateReviewGroupPresentation& group, std::unordered_set<std::string>& selectedIDs);

} // namespace KarvelloUI
