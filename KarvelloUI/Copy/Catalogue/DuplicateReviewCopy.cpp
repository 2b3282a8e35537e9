#include "KarvelloUI/Copy/KarvelloCopy.h"

#include <vector>

namespace KarvelloUI {

using CleanerCore::DuplicateKeeperRecommendation;
using CleanerCore::DuplicateKeeperRecommendationReason;

std::string KarvelloCopy::duplicateReviewCenterSubtitle(std::int64_t groupCount, std::int64_t fileCount) const
{
    return counted(groupCount, "중복 그룹 {}개 · 파일 {}개", "{} duplicate group · {} files",
        "{} duplicate groups · {} files", groupCount, fileCount);
}

std::string KarvelloCopy::duplicateGroupTitle(std::int64_t number, std::int64_t copyCount) const
{
    return sentence("중복 그룹 {} · 사본 {}개", "Duplicate group {} · {} copies", number, copyCount);
}

std::string KarvelloCopy::duplicateGroupByteSummary(std::int64_t extraBytes, std::int64_t selectableBytes) const
{
    return sentence("추가 사본 총 크기 {} · 현재 선택 가능 {}", "Total extra-copy bytes {} · currently selectable {}",
        byteSize(extraBytes), byteSize(selectableBytes));
}

std::string KarvelloCopy::duplicateGroupSelectionSummary(
    std::int64_t selectedCount, std::int64_t selectableCount, std::int64_t extraCount) const
{
    if (selectableCount <= 0) {
        return counted(extraCount, "추가 사본 {}개 · 현재 선택할 수 있는 사본 없음",
            "{} extra copy · none currently selectable", "{} extra copies · none currently selectable", extraCount);
    }
    if (selectedCount <= 0) {
        return counted(extraCount, "선택 0개 / 선택 가능 {}개 · 추가 사본 {}개",
            "0 selected / {} selectable · {} extra copy", "0 selected / {} selectable · {} extra copies",
            selectableCount, extraCount);
    }
    if (selectedCount < selectableCount) {
        return sentence("일부 선택: {} / 선택 가능 {}개 · 추가 사본 {}개",
            "Partially selected: {} / {} selectable · {} extra copies", selectedCount, selectableCount, extraCount);
    }
    return sentence("선택 가능한 추가 사본 {}개 모두 선택 · 추가 사본 {}개",
        "All {} selectable extras selected · {} extra copies", selectableCount, extraCount);
}

std::string KarvelloCopy::duplicateSelectedExtrasSubtitle(std::int64_t selectedCount) const
{
    return selectedCount == 1
        ? text("선택한 추가 사본 1개를 휴지통으로 이동합니다", "1 selected extra will be moved to Trash")
        : sentence("선택한 추가 사본 {}개를 휴지통으로 이동합니다", "{} selected extras will be moved to Trash",
              selectedCount);
}

std::string KarvelloCopy::duplicateKeeperReasonName(DuplicateKeeperRecommendationReason reason) const
{
    switch (reason) {
    case DuplicateKeeperRecommendationReason::preferredLocation:
        return text("우선하는 폴더", "preferred folder");
    case DuplicateKeeperRecommendationReason::olderModificationDate:
        return text("더 오래된 사본", "older copy");
    case DuplicateKeeperRecommendationReason::deterministicPathTieBreak:
        return text("고정된 경로 순서", "stable path order");
    }
    return {};
}

std::string KarvelloCopy::duplicateKeeperRecommendationSummary(
    const DuplicateKeeperRecommendation& recommendation) const
{
    std::vector<std::string> reasons;
    reasons.reserve(recommendation.reasons.size());
    for (const auto reason : recommendation.reasons) {
        reasons.push_back(duplicateKeeperReasonName(reason));
    }
    return around(joinedParts(reasons), "유지할 파일 추천 이유: {}", "Keeper recommendation: {}");
}

} // namespace KarvelloUI
