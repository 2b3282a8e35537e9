#include "KarvelloUI/Copy/CleanupCopy.h"

#include <fmt/ranges.h>
#include <ranges>

namespace KarvelloUI {

using CleanerCore::CleanupCategory;
using CleanerCore::CleanupScanMode;

std::string CleanupCopy::cleanupReviewCadenceStatus(
    CleanupReviewCadenceStatusKind kind, std::int64_t daysUntilNextReview) const
{
    switch (kind) {
    case CleanupReviewCadenceStatusKind::disabled:
        return text("검토 주기가 꺼져 있습니다.", "Review cadence is off.");
    case CleanupReviewCadenceStatusKind::notStarted:
        return text(
            "검토를 한 번 마치면 다음 알림이 계산됩니다.", "Complete one review to calculate the next reminder.");
    case CleanupReviewCadenceStatusKind::due:
        return text("안전 검토를 할 때가 되었습니다. 선택하기 전에 후보를 검토하세요.",
            "Safety review is due. Review candidates before choosing anything.");
    case CleanupReviewCadenceStatusKind::upcoming:
        return ownCount(daysUntilNextReview, "Next review in {} day.", "Next review in {} days.");
    }
    return {};
}

std::string CleanupCopy::cleanupReviewProfileName(CleanupReviewProfileID profile) const
{
    switch (profile) {
    case CleanupReviewProfileID::balanced:
        return text("균형 검토", "Balanced review");
    case CleanupReviewProfileID::downloads:
        return text("다운로드 검토", "Downloads review");
    case CleanupReviewProfileID::developerCaches:
        return text("개발자 캐시", "Developer caches");
    }
    return {};
}

std::string CleanupCopy::cleanupReviewProfileSummary(
    CleanupScanMode mode, std::span<const CleanupCategory> categories, std::int64_t ignoredCount) const
{
    const auto names =
        categories | std::views::transform([this](CleanupCategory category) { return categoryName(category); });
    return counted(ignoredCount, "{} 스캔 · {} · 무시하거나 미룬 항목 {}개 반영",
        "{} scan · {} · respects {} ignored/snoozed item", "{} scan · {} · respects {} ignored/snoozed items",
        scanModeName(mode), fmt::format("{}", fmt::join(names, ", ")), ignoredCount);
}

std::string CleanupCopy::cleanupReviewProfileGuardrail(CleanupScanMode mode) const
{
    return mode == CleanupScanMode::standard
        ? text("저장된 프로필은 스캔 위치를 넓히지 않습니다.", "Saved profiles do not widen scan roots.")
        : text("적극 검토에서도 항목을 자동으로 선택하지 않습니다.",
              "Aggressive review still does not auto-select items.");
}

} // namespace KarvelloUI
