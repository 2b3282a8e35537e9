#include "KarvelloUI/Copy/CleanupCopy.h"

namespace KarvelloUI {

using CleanerCore::CleaningMode;
using CleanerCore::CleanResult;
using CleanerCore::RestoreResult;

std::string CleanupCopy::cleaningMessage() const
{
    return text("선택한 항목을 휴지통으로 이동하는 중…", "Moving selected items to Trash…");
}

std::string CleanupCopy::cleanFailureMessage() const
{
    return text("일부 항목을 정리하지 못했습니다. 결과의 세부 사항을 검토하세요.",
        "Some items could not be cleaned. Review the result details.");
}

std::string CleanupCopy::cleanCancelledMessage() const
{
    return text("정리가 취소되었습니다. 이미 휴지통으로 이동한 항목은 기록에 남고 목록에서 빠지며, 나머지 후보는 계속 "
                "검토할 수 있습니다.",
        "Cleaning was cancelled. Items already moved to Trash stay recorded and are removed from the list; remaining "
        "candidates stay available for review.");
}

std::string CleanupCopy::lastCleanTitle(std::optional<CleaningMode> mode) const
{
    if (!mode) {
        return text("최근 정리 결과", "Last Cleanup Result");
    }
    return *mode == CleaningMode::moveToTrash ? text("최근 정리: 휴지통 이동", "Last Cleanup: Trash Move")
                                              : text("최근 정리: 공간 확보", "Last Cleanup: Space Recovered");
}

std::string CleanupCopy::lastCleanSubtitle(const CleanResult& result, std::optional<CleaningMode> mode) const
{
    const std::size_t cleaned = result.cleanedItems.size();
    const std::size_t failed = result.failedItems.size();
    const std::string size = byteSize(result.reclaimedBytes());
    const std::string tail = result.wasCancelled ? text(" · 취소됨", " · cancelled") : std::string();
    if (!mode) {
        return own("{} processed, {} failed · {}{}", cleaned, failed, size, tail);
    }
    return *mode == CleaningMode::moveToTrash
        ? sentence("{}개를 휴지통으로 이동함, {}개 실패 · {}{}", "{} moved to Trash, {} failed · {}{}", cleaned, failed,
              size, tail)
        : sentence("{}개를 영구적으로 삭제함, {}개 실패 · {}{}", "{} permanently deleted, {} failed · {}{}", cleaned,
              failed, size, tail);
}

std::string CleanupCopy::restoringMessage() const
{
    return text("휴지통에서 항목을 복원하는 중…", "Restoring items from Trash…");
}

std::string CleanupCopy::restoreFailureMessage() const
{
    return text("일부 항목을 휴지통에서 복원하지 못했습니다. 결과의 세부 사항을 검토하세요.",
        "Some items could not be restored from Trash. Review the result details.");
}

std::string CleanupCopy::restoreCancelledMessage() const
{
    return text("복원이 취소되었습니다. 이미 복원한 항목은 후보에 다시 추가되며, 기록된 나머지 항목은 가능한 경우 "
                "나중에 다시 시도할 수 있습니다.",
        "Restore was cancelled. Any items already restored are added back to candidates; remaining recorded items can "
        "be tried again later when possible.");
}

std::string CleanupCopy::lastRestoreTitle() const
{
    return text("최근 복원", "Last Restore");
}

std::string CleanupCopy::lastRestoreSubtitle(const RestoreResult& result) const
{
    // The tables know no tail of this sentence.
    const std::string tail = result.wasCancelled ? text(" · 취소됨", " · cancelled") : std::string();
    return sentence("{}개 복원됨, {}개 실패", "{} restored, {} failed", result.restoredItems.size(),
               result.failedItems.size())
        + tail;
}

} // namespace KarvelloUI
