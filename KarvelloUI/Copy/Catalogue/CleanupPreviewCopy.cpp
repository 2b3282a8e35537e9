#include "KarvelloUI/Copy/CleanupCopy.h"

#include <fmt/ranges.h>
#include <ranges>
#include <vector>

namespace KarvelloUI {

using CleanerCore::CleanupPreviewCategorySummary;
using CleanerCore::CleanupSafety;
using CleanerCore::CleanupSafetyBreakdown;
using CleanerCore::CleanupSelectionPreview;

std::string CleanupCopy::cleanupPreviewSummary(const CleanupSelectionPreview& preview) const
{
    if (preview.count == 0) {
        return text("선택한 항목이 없습니다. 항목을 선택하면 정리하기 전에 검토 요약을 볼 수 있습니다.",
            "No selected items. Select items to see the review summary before cleanup.");
    }
    return own("Review confidence levels and categories before moving {} ({}) to Trash.",
        cleanupPreviewItemCount(preview.count), byteSize(preview.bytes));
}

std::string CleanupCopy::cleanupPreviewItemCount(std::int64_t itemCount) const
{
    return itemCount == 1 ? text("항목 1개", "1 item") : sentence("항목 {}개", "{} items", itemCount);
}

std::string CleanupCopy::cleanupPreviewCategoryLine(const CleanupPreviewCategorySummary& summary) const
{
    return joinedParts(
        {categoryName(summary.category), cleanupPreviewItemCount(summary.count), byteSize(summary.bytes)});
}

std::string CleanupCopy::cleanupPreviewMoreCategories(std::int64_t categoryCount) const
{
    return categoryCount == 1 ? text("카테고리 1개 더", "1 more category")
                              : sentence("카테고리 {}개 더", "{} more categories", categoryCount);
}

std::string CleanupCopy::cleanupPreviewConfidenceSummary(const CleanupSafetyBreakdown& breakdown) const
{
    std::vector<std::string> counts;
    for (const auto& [safety, count] :
        {std::pair{CleanupSafety::safe, breakdown.safeCount}, {CleanupSafety::caution, breakdown.cautionCount},
            {CleanupSafety::manualReview, breakdown.manualReviewCount}}) {
        if (count > 0) {
            counts.push_back(confidenceCountText(safety, count));
        }
    }
    return counts.empty()
        ? text("항목을 선택하면 신뢰 수준 요약이 표시됩니다.", "No confidence summary until items are selected.")
        : joinedParts(counts);
}

std::string CleanupCopy::confidenceCountText(CleanupSafety safety, std::int64_t itemCount) const
{
    const auto label = [&] {
        switch (safety) {
        case CleanupSafety::safe:
            return text("안전", "Safe");
        case CleanupSafety::caution:
            return text("검토", "Review");
        case CleanupSafety::manualReview:
            return text("수동", "Manual");
        }
        return std::string();
    }();
    return fmt::format("{} {}", label, itemCount);
}

std::string CleanupCopy::cleanupPreviewConfirmationSuffix(const CleanupSelectionPreview& preview) const
{
    const auto categories = preview.categorySummaries
        | std::views::transform(
            [this](const CleanupPreviewCategorySummary& summary) { return categoryName(summary.category); });
    return sentence("미리보기: {} ({}). 정리는 항목을 휴지통으로 이동하기만 합니다.",
        "Preview: {} ({}). Cleanup moves items to Trash only.",
        cleanupPreviewConfidenceSummary(preview.safetyBreakdown), fmt::format("{}", fmt::join(categories, ", ")));
}

std::string CleanupCopy::selectedTitle() const
{
    return text("선택됨", "Selected");
}

std::string CleanupCopy::selectedSubtitle(std::int64_t itemCount) const
{
    return counted(itemCount, "항목 {}개가 휴지통으로 이동됩니다", "{} item will be moved to Trash",
        "{} items will be moved to Trash", itemCount);
}

std::string CleanupCopy::selectedSummary(std::int64_t itemCount, std::int64_t bytes, std::int64_t hiddenCount) const
{
    const std::string size = byteSize(bytes);
    if (hiddenCount <= 0) {
        return sentence("{}개 선택됨 · {}", "{} selected · {}", itemCount, size);
    }
    if (hiddenCount == 1) {
        return sentence(
            "{}개 선택됨 · {} · 숨겨진 항목 1개 포함", "{} selected · {} · includes 1 hidden item", itemCount, size);
    }
    return sentence("{}개 선택됨 · {} · 숨겨진 항목 {}개 포함", "{} selected · {} · includes {} hidden items",
        itemCount, size, hiddenCount);
}

std::string CleanupCopy::hiddenSelectionConfirmationWarning(std::int64_t hiddenCount) const
{
    if (hiddenCount == 1) {
        return text("현재 필터 때문에 보이지 않는 선택 항목 1개가 포함되어 있습니다. 휴지통으로 이동하기 전에 필터를 "
                    "조정해 숨겨진 항목을 확인하고 선택을 해제하거나, 정리를 취소하세요.",
            "1 hidden selected item is included because of the current filters. Adjust filters to reveal and deselect "
            "hidden items, or cancel cleanup before moving items to Trash.");
    }
    return sentence("현재 필터 때문에 보이지 않는 선택 항목 {}개가 포함되어 있습니다. 휴지통으로 이동하기 전에 필터를 "
                    "조정해 숨겨진 항목을 확인하고 선택을 해제하거나, 정리를 취소하세요.",
        "{} hidden selected items are included because of the current filters. Adjust filters to reveal and deselect "
        "hidden items, or cancel cleanup before moving items to Trash.",
        hiddenCount);
}

std::string CleanupCopy::confirmMoveTitle() const
{
    return text("선택한 항목을 휴지통으로 이동할까요?", "Move selected items to Trash?");
}

std::string CleanupCopy::confirmMoveMessage(std::int64_t itemCount, std::int64_t bytes) const
{
    return counted(itemCount,
        "선택한 항목 {}개({})를 휴지통으로 이동합니다. 적극 스캔 항목과 주의, 수동 검토 항목은 실행 중인 앱이나 개발 "
        "도구에 영향을 줄 수 있습니다. 경로를 검토한 뒤에만 계속하세요.",
        "This will move {} selected item ({}) to Trash. Aggressive, caution, and manual-review items can affect "
        "running apps or developer tools. Continue only after reviewing paths.",
        "This will move {} selected items ({}) to Trash. Aggressive, caution, and manual-review items can affect "
        "running apps or developer tools. Continue only after reviewing paths.",
        itemCount, byteSize(bytes));
}

std::string CleanupCopy::confirmMovePreviewMessage(
    const CleanupSelectionPreview& preview, std::int64_t hiddenCount) const
{
    std::string message =
        confirmMoveMessage(preview.count, preview.bytes) + "\n\n" + cleanupPreviewConfirmationSuffix(preview);
    if (hiddenCount > 0) {
        message += "\n\n" + hiddenSelectionConfirmationWarning(hiddenCount);
    }
    return message;
}

std::string CleanupCopy::confirmDuplicateExtrasMoveMessage(std::int64_t itemCount, std::int64_t bytes) const
{
    return counted(itemCount,
        "선택한 중복 추가 사본 {}개({})를 휴지통으로 이동합니다. 유지할 파일은 선택되지 않은 채로 남습니다. 경로를 "
        "검토한 뒤에만 계속하세요.",
        "This will move {} selected duplicate extra ({}) to Trash. Keeper files remain unselected; continue only "
        "after reviewing paths.",
        "This will move {} selected duplicate extras ({}) to Trash. Keeper files remain unselected; continue only "
        "after reviewing paths.",
        itemCount, byteSize(bytes));
}

std::string CleanupCopy::confirmDeleteTitle() const
{
    return text("선택한 항목을 영구적으로 삭제할까요?", "Permanently delete selected items?");
}

std::string CleanupCopy::confirmDeleteMessage(std::int64_t itemCount, std::int64_t bytes) const
{
    return counted(itemCount,
        "선택한 항목 {}개({})를 영구적으로 삭제합니다. 파일은 휴지통으로 이동되지 않으며 이 앱에서 복원할 수 없습니다.",
        "This will permanently delete {} selected item ({}). The files will not be moved to Trash and cannot be "
        "restored from this app.",
        "This will permanently delete {} selected items ({}). The files will not be moved to Trash and cannot be "
        "restored from this app.",
        itemCount, byteSize(bytes));
}

std::string CleanupCopy::deleteSelectedAppCache() const
{
    return text("선택한 앱 캐시 삭제", "Delete Selected App Cache");
}

} // namespace KarvelloUI
