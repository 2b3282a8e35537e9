#include "KarvelloUI/Sessions/MacInsightsViewModel.h"

#include <algorithm>
#include <iterator>
#include <utility>

// Selecting files and reviewing groups of duplicates: the side of the session that a person works on.
namespace KarvelloUI {

using CleanerCore::DuplicateFileGroup;
using CleanerCore::FileInsight;

MacInsightsViewModel::Files MacInsightsViewModel::selectableFiles(MacInsightFileSection section) const
{
    return m_review.selectableFiles(section);
}

bool MacInsightsViewModel::isSelectable(const FileInsight& file) const
{
    return m_review.isSelectable(file.id);
}

void MacInsightsViewModel::setSelected(const FileInsight& file, bool isSelected)
{
    noteSelection(m_review.setSelected(file.id, isSelected));
    publish();
}

void MacInsightsViewModel::selectAll(MacInsightFileSection section)
{
    noteSelection(m_review.selectAll(section));
    publish();
}

void MacInsightsViewModel::clearSelection(MacInsightFileSection section)
{
    noteSelection(m_review.clear(section));
    publish();
}

void MacInsightsViewModel::noteSelection(InsightReview::Outcome outcome)
{
    if (outcome.isChanged) {
        noteChange(Change::selection);
    }
    if (!outcome.groups.empty()) {
        std::ranges::move(outcome.groups, std::back_inserter(m_changedDuplicateGroups));
        noteChange(Change::duplicateReviewGroups);
    }
}

const std::vector<DuplicateReviewGroupPresentation>& MacInsightsViewModel::duplicateReviewGroups() const
{
    return m_review.duplicates().groups();
}

const std::vector<DuplicateFileGroup>& MacInsightsViewModel::duplicateGroupsForReview() const
{
    return report().duplicateGroups;
}

qint64 MacInsightsViewModel::duplicateFileCount() const
{
    return std::ssize(m_review.duplicates().files());
}

qint64 MacInsightsViewModel::duplicateSelectableCount() const
{
    return std::ssize(m_review.duplicates().selectableFiles());
}

qint64 MacInsightsViewModel::duplicateSelectedCount() const
{
    return std::ssize(m_review.duplicates().selectedIDs());
}

qint64 MacInsightsViewModel::duplicateSelectedBytes() const
{
    return m_review.duplicates().selectedBytes();
}

DuplicateReviewGroupPresentation MacInsightsViewModel::duplicateReviewGroupPresentation(
    const DuplicateFileGroup& group) const
{
    const auto* const known = m_review.duplicates().groupByID(group.id);
    return known != nullptr ? *known : makeDuplicateReviewGroupPresentation(group, m_review.selection());
}

void MacInsightsViewModel::selectDuplicateExtras(const DuplicateFileGroup& group)
{
    noteSelection(m_review.selectDuplicateExtras(duplicateReviewGroupPresentation(group)));
    publish();
}

void MacInsightsViewModel::clearDuplicateGroupSelection(const DuplicateFileGroup& group)
{
    noteSelection(m_review.clearDuplicateGroupSelection(duplicateReviewGroupPresentation(group)));
    publish();
}

bool MacInsightsViewModel::isDuplicateKeeper(const FileInsight& file) const
{
    const auto& duplicates = m_review.duplicates();
    const auto position = duplicates.groupIndexByFileID(file.id);
    const auto* const keeper = position ? duplicates.groups()[*position].keeper() : nullptr;
    return keeper != nullptr && keeper->id() == file.id;
}

const CleanerCore::DuplicateKeeperRecommendation* MacInsightsViewModel::duplicateKeeperRecommendation(
    const FileInsight& file) const
{
    const auto& duplicates = m_review.duplicates();
    const auto position = duplicates.groupIndexByFileID(file.id);
    return position ? duplicates.groups()[*position].keeperRecommendation.get() : nullptr;
}

} // namespace KarvelloUI
