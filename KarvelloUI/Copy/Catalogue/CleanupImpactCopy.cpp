#include "KarvelloUI/Copy/CleanupCopy.h"
#include "KarvelloUI/Copy/PercentText.h"

namespace KarvelloUI {

using CleanerCore::CleaningMode;
using CleanerCore::CleanupStorageImpactReport;

std::string CleanupCopy::cleanupImpactTitle() const
{
    return text("정리 전후 비교", "Before / After Report");
}

std::string CleanupCopy::cleanupImpactExpectedLabel(std::optional<CleaningMode> mode) const
{
    if (!mode) {
        return text("예상 처리량", "Expected processing");
    }
    return *mode == CleaningMode::moveToTrash ? text("예상 이동량", "Expected move")
                                              : text("예상 확보량", "Expected recovery");
}

std::string CleanupCopy::cleanupImpactActualLabel(std::optional<CleaningMode> mode) const
{
    if (!mode) {
        return text("처리됨", "Processed");
    }
    return *mode == CleaningMode::moveToTrash ? text("휴지통으로 이동함", "Moved to Trash")
                                              : text("확보됨", "Recovered");
}

std::string CleanupCopy::cleanupImpactUnreclaimedLabel(std::optional<CleaningMode> mode) const
{
    if (!mode) {
        return text("처리되지 않음", "Not processed");
    }
    return *mode == CleaningMode::moveToTrash ? text("아직 확보되지 않음", "Not reclaimed yet")
                                              : text("확보되지 않음", "Not reclaimed");
}

std::string CleanupCopy::cleanupImpactUnavailablePercent() const
{
    return text("알 수 없음", "Unavailable");
}

std::string CleanupCopy::cleanupImpactOutcome(const CleanupStorageImpactReport& report) const
{
    const auto fraction = report.outcomeFraction();
    if (!report.mode) {
        return fraction ? sentence("{} 처리됨", "{} processed", percentText(*fraction))
                        : text("처리 비율을 알 수 없음", "Outcome percentage unavailable");
    }
    if (*report.mode == CleaningMode::moveToTrash) {
        return fraction ? sentence("{}를 휴지통으로 이동함", "{} moved to Trash", percentText(*fraction))
                        : text("이동 비율을 알 수 없음", "Move percentage unavailable");
    }
    return fraction ? sentence("{} 확보됨", "{} recovered", percentText(*fraction))
                    : text("확보 비율을 알 수 없음", "Recovery percentage unavailable");
}

std::string CleanupCopy::cleanupImpactSummary(const CleanupStorageImpactReport& report) const
{
    const std::string outcome = cleanupImpactOutcome(report);
    const std::string tail =
        report.wasCancelled ? text(" 취소된 작업을 기준으로 합니다.", " Based on a cancelled run.") : std::string();
    if (!report.mode) {
        return own("{} of {} requested items processed, {} failed · {}. Disk recovery is not verified.{}",
            report.succeededItemCount, report.requestedItemCount, report.failedItemCount, outcome, tail);
    }
    if (*report.mode == CleaningMode::moveToTrash && isLinux()) {
        return own(
            "{} of {} requested items moved to Trash, {} failed · {}. Moved bytes are pending recovery; actual free "
            "space increases after Trash is emptied.{}",
            report.succeededItemCount, report.requestedItemCount, report.failedItemCount, outcome, tail);
    }
    if (*report.mode == CleaningMode::moveToTrash) {
        return sentence("요청한 항목 {1}개 중 {0}개를 휴지통으로 이동함, {2}개 실패 · {3}. 이동한 용량은 확보 대기 "
                        "상태입니다. 실제 여유 공간은 휴지통을 비운 뒤에 늘어나며, macOS 저장 공간 표시는 나중에 "
                        "갱신될 수 있습니다.{4}",
            "{} of {} requested items moved to Trash, {} failed · {}. Moved bytes are pending recovery; actual free "
            "space increases after Trash is emptied, and macOS Storage may update later.{}",
            report.succeededItemCount, report.requestedItemCount, report.failedItemCount, outcome, tail);
    }
    return sentence("요청한 항목 {1}개 중 {0}개 확보됨, {2}개 실패 · {3}.{4}",
        "{} of {} requested items recovered, {} failed · {}.{}", report.succeededItemCount, report.requestedItemCount,
        report.failedItemCount, outcome, tail);
}

std::string CleanupCopy::cleanupImpactAccessibilityLabel(const CleanupStorageImpactReport& report) const
{
    const auto fraction = report.outcomeFraction();
    // What a move brought to the Trash takes its space until the Trash is emptied.
    const std::int64_t unreclaimed =
        report.mode == CleaningMode::moveToTrash ? report.pendingRecoveryBytes() : report.remainingExpectedBytes();
    return own("{}, {}, {} {}, {} {}, {} {}, {}, {} succeeded, {} failed{}", cleanupImpactTitle(),
        auditSourceName(report.source), cleanupImpactExpectedLabel(report.mode), byteSize(report.expectedBytes),
        cleanupImpactActualLabel(report.mode), byteSize(report.outcomeBytes()),
        cleanupImpactUnreclaimedLabel(report.mode), byteSize(unreclaimed),
        fraction ? percentText(*fraction) : cleanupImpactUnavailablePercent(), report.succeededItemCount,
        report.failedItemCount, report.wasCancelled ? text(", 취소된 작업", ", cancelled run") : std::string());
}

} // namespace KarvelloUI
