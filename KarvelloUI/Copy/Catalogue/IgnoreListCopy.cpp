#include "KarvelloUI/Copy/CleanupCopy.h"

namespace KarvelloUI {

std::string CleanupCopy::ignoreCleanupCandidate() const
{
    return text("후보 미루기/숨기기", "Snooze/Hide Candidate");
}

std::string CleanupCopy::cleanupIgnoreDurationTitle(CleanupIgnoreDuration duration) const
{
    switch (duration) {
    case CleanupIgnoreDuration::oneDay:
        return text("1일 동안 미루기", "Snooze for 1 day");
    case CleanupIgnoreDuration::oneWeek:
        return text("1주 동안 미루기", "Snooze for 1 week");
    case CleanupIgnoreDuration::untilShownAgain:
        return text("다시 표시할 때까지 숨기기", "Hide until shown again");
    }
    return {};
}

std::string CleanupCopy::ignoredCandidatesTitle() const
{
    return text("무시 목록", "Ignore List");
}

std::string CleanupCopy::ignoredCandidatesDescription() const
{
    return text("미루거나 숨긴 정리 후보입니다. 이 기기의 정리 검토 화면에서만 걸러지며, 파일을 삭제하거나 정리하지 "
                "않습니다. 목록에서 항목을 빼거나 미룬 기간이 끝나면 다음 스캔에서 다시 나타날 수 있습니다.",
        "Snoozed or hidden cleanup candidates. This only filters cleanup review surfaces on this device; it does not "
        "delete or clean files. Remove an item or wait for its snooze to expire and it can appear again on the next "
        "scan.");
}

std::string CleanupCopy::ignoredCandidatesEmpty() const
{
    return text("무시한 정리 후보가 없습니다.", "No ignored cleanup candidates.");
}

std::string CleanupCopy::ignoredCandidatesSummary(std::int64_t itemCount) const
{
    return sentence(
        "숨긴 {1} {0}개", "{} hidden {}", itemCount, itemCount == 1 ? text("항목", "item") : text("항목", "items"));
}

std::string CleanupCopy::ignoredCandidateDurationDescription(
    CleanupIgnoreDuration duration, std::string_view expiresAt) const
{
    if (duration == CleanupIgnoreDuration::untilShownAgain) {
        return text("다시 표시할 때까지 이 기기의 정리 검토에서 숨깁니다.",
            "Locally hidden from cleanup review until you show it again.");
    }
    return expiresAt.empty()
        ? text("이 기기의 정리 검토에서 잠시 숨깁니다.", "Temporarily hidden from cleanup review on this device.")
        : around(expiresAt, "{}까지 이 기기의 정리 검토에서 숨깁니다.", "Locally hidden from cleanup review until {}.");
}

std::string CleanupCopy::showIgnoredCandidateAgain() const
{
    return text("다시 표시", "Show Again");
}

std::string CleanupCopy::clearIgnoredCandidates() const
{
    return text("무시 목록 비우기", "Clear Ignore List");
}

std::string CleanupCopy::cleanupIgnoreLoadFailedMessage(std::string_view reason) const
{
    return around(engineSentence(reason),
        "무시한 정리 항목을 불러오지 못했습니다. 저장된 무시 목록을 백업하고 초기화했습니다: {}",
        "Could not load ignored cleanup items. The saved ignore list was backed up and reset: {}");
}

std::string CleanupCopy::cleanupIgnoreSaveFailedMessage(std::string_view reason) const
{
    return around(engineSentence(reason), "무시한 정리 항목을 저장하지 못했습니다: {}",
        "Could not save ignored cleanup items: {}");
}

} // namespace KarvelloUI
