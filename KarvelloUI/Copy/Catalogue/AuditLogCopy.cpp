#include "KarvelloUI/Copy/CleanupCopy.h"

namespace KarvelloUI {

using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupAuditOperation;
using CleanerCore::CleanupAuditSource;

std::string CleanupCopy::auditLogTitle() const
{
    return text("정리 기록", "Cleanup History");
}

std::string CleanupCopy::auditLogEmpty() const
{
    return text("아직 기록된 정리 작업이 없습니다.", "No cleanup activity has been recorded yet.");
}

std::string CleanupCopy::auditLogLoading() const
{
    return text("정리 기록을 불러오는 중…", "Loading cleanup history…");
}

std::string CleanupCopy::auditLogExportBody() const
{
    return text(
        "정리 기록에는 정리 작업과 복원 시도가 결과, 항목 수, 용량과 함께 남으며, 보관된 경우 경로 정보도 포함됩니다. "
        "전체 JSON/CSV에는 보관된 기록이 그대로 담깁니다. 지원을 받기 위해 공유할 때는 경로와 파일 이름을 토큰으로 "
        "바꾼 익명 처리 내보내기를 선택하고, 공유하기 전에 내용을 확인하세요.",
        "Cleanup History records cleanup operations and restore attempts, with results, item counts, bytes, and "
        "retained "
        "path details when available. Full JSON/CSV includes the retained history details. For support sharing, choose "
        "a "
        "redacted export that replaces paths and file names with tokens, then review before sharing.");
}

std::string CleanupCopy::auditLogExportPanelMessage() const
{
    return text(
        "Karvello 정리 기록을 저장할 위치를 선택하세요.", "Choose where to save the Karvello cleanup history export.");
}

std::string CleanupCopy::auditLogExportFailedMessage(std::string_view reason) const
{
    return around(engineSentence(reason), "Karvello가 정리 기록을 저장하지 못했습니다: {}",
        "Karvello could not save the cleanup history: {}");
}

std::string CleanupCopy::auditOperationName(CleanupAuditOperation operation) const
{
    switch (operation) {
    case CleanupAuditOperation::clean:
        return text("정리", "Clean");
    case CleanupAuditOperation::restore:
        return text("복원", "Restore");
    }
    return {};
}

std::string CleanupCopy::auditSourceName(CleanupAuditSource source) const
{
    switch (source) {
    case CleanupAuditSource::cleanupDashboard:
        return text("정리 대시보드", "Cleanup dashboard");
    case CleanupAuditSource::macInsights:
        return isLinux() ? own("Storage insights") : text("Mac 인사이트", "Mac insights");
    case CleanupAuditSource::iOSSandbox:
        return text("iOS 샌드박스", "iOS sandbox");
    }
    return {};
}

std::string CleanupCopy::auditEntrySummary(const CleanupAuditEntry& entry) const
{
    return sentence("{}개 성공, {}개 실패 · {}{}", "{} succeeded, {} failed · {}{}", entry.succeededItemCount,
        entry.failedItemCount, byteSize(entry.affectedBytes),
        entry.wasCancelled ? text(" · 취소됨", " · cancelled") : std::string());
}

std::string CleanupCopy::auditEntryAccessibilityLabel(const CleanupAuditEntry& entry, std::string_view occurredAt) const
{
    return own("{}, {}, {}, {} succeeded, {} failed, {}{}", auditOperationName(entry.operation),
        auditSourceName(entry.source), occurredAt, entry.succeededItemCount, entry.failedItemCount,
        byteSize(entry.affectedBytes), entry.wasCancelled ? text(", 취소됨", ", cancelled") : std::string());
}

} // namespace KarvelloUI
