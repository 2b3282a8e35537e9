#include "KarvelloUI/Copy/CleanupCopy.h"

namespace KarvelloUI {

std::string CleanupCopy::cleanupCandidatesTitle() const
{
    return text("정리 후보", "Cleanup Candidates");
}

std::string CleanupCopy::candidateListSearchPrompt() const
{
    return own("Search candidates");
}

std::string CleanupCopy::candidateListCategoryFilterTitle() const
{
    return own("Category");
}

std::string CleanupCopy::candidateListAllCategoriesFilter() const
{
    return own("All categories");
}

std::string CleanupCopy::candidateListSafetyFilterTitle() const
{
    return text("안전 등급", "Safety");
}

std::string CleanupCopy::candidateListAllSafetyFilter() const
{
    return own("All safety levels");
}

std::string CleanupCopy::candidateListGroupingTitle() const
{
    return own("Group by");
}

std::string CleanupCopy::candidateListGroupingModeName(CandidateListGroupingMode mode) const
{
    switch (mode) {
    case CandidateListGroupingMode::flat:
        return own("No grouping");
    case CandidateListGroupingMode::category:
        return candidateListCategoryFilterTitle();
    case CandidateListGroupingMode::safety:
        return candidateListSafetyFilterTitle();
    }
    return {};
}

std::string CleanupCopy::noCleanupCandidatesTitle() const
{
    return text("정리 후보 없음", "No cleanup candidates");
}

std::string CleanupCopy::noCleanupCandidatesDescription() const
{
    return text("안전한 기본 위치가 비어 있거나, 최근에 수정된 항목이라 건너뛰었습니다.",
        "The safe default locations are empty or recently modified items were skipped.");
}

std::string CleanupCopy::noFilteredCleanupCandidatesTitle() const
{
    return text("표시할 항목 없음", "No items to show");
}

std::string CleanupCopy::noFilteredCleanupCandidatesDescription() const
{
    return own("No cleanup candidate matches the search and filters. Change them to see more.");
}

std::string CleanupCopy::visibleCleanupCandidatesSummary(std::int64_t visibleCount, std::int64_t totalCount) const
{
    return visibleCount == totalCount ? cleanupPreviewItemCount(totalCount)
                                      : sentence("항목 {1}개 중 {0}개 표시", "{} / {} items", visibleCount, totalCount);
}

std::string CleanupCopy::selectAll() const
{
    return text("모두 선택", "Select All");
}

std::string CleanupCopy::clearSelection() const
{
    return text("선택 해제", "Clear");
}

std::string CleanupCopy::selectVisibleCandidates() const
{
    return own("Select Visible");
}

std::string CleanupCopy::clearVisibleSelection() const
{
    return own("Clear Visible");
}

std::string CleanupCopy::partialSelectionCaption() const
{
    return text("일부 선택됨", "Some selected");
}

std::string CleanupCopy::bulkSelectionAccessibilityValue(std::int64_t selectedCount, std::int64_t totalCount) const
{
    if (selectedCount <= 0) {
        return text("선택된 항목 없음", "No items selected");
    }
    return selectedCount < totalCount ? text("일부 항목 선택됨", "Some items selected")
                                      : text("모든 항목 선택됨", "All items selected");
}

std::string CleanupCopy::visibleBulkSelectionAccessibilityValue(
    std::int64_t selectedCount, std::int64_t visibleCount) const
{
    const std::string state = bulkSelectionAccessibilityValue(selectedCount, visibleCount);
    return sentence("{0}, 표시된 항목 {2}개 중 {1}개", "{0}, {1} / {2}", state, selectedCount, visibleCount);
}

std::string CleanupCopy::selectionState(bool isSelected) const
{
    return isSelected ? selectedTitle() : text("선택되지 않음", "Not selected");
}

std::string CleanupCopy::openInFinder() const
{
    return text("Finder에서 보기", "Show in Finder");
}

std::string CleanupCopy::moveSelectedToTrash() const
{
    return text("선택 항목을 휴지통으로 이동", "Move Selected to Trash");
}

} // namespace KarvelloUI
