#include "KarvelloUI/Copy/CleanupCopy.h"

namespace KarvelloUI {

using CleanerCore::CleanupScanMode;

namespace {

/// A reason of the store of the user's folders that names permissions of the other host.
constexpr std::string_view kCustomFolderUnavailable =
    "Could not start security-scoped access for custom folder. Remove and add the folder again, or grant Files & "
    "Folders or Full Disk Access.";

} // namespace

std::string CleanupCopy::scanningMessage() const
{
    return text("안전한 기본 위치를 스캔하는 중…", "Scanning safe default locations…");
}

std::string CleanupCopy::scanAgain() const
{
    return text("다시 스캔", "Scan Again");
}

std::string CleanupCopy::scanAppCache() const
{
    return text("앱 캐시 스캔", "Scan App Cache");
}

std::string CleanupCopy::scanModeTitle() const
{
    return text("스캔 모드", "Scan Mode");
}

std::string CleanupCopy::scanModeName(CleanupScanMode mode) const
{
    switch (mode) {
    case CleanupScanMode::standard:
        return text("표준", "Standard");
    case CleanupScanMode::aggressive:
        return text("적극", "Aggressive");
    case CleanupScanMode::direct:
        return own("Direct distribution");
    }
    return {};
}

std::string CleanupCopy::scanModeAccessibilityHint(bool includesDirectDistribution) const
{
    return includesDirectDistribution
        ? own("Choose Standard, Aggressive, or Direct distribution scans. Broader results still require manual review "
              "before cleanup.")
        : own("Choose Standard or Aggressive scans. Broader results still require manual review before cleanup.");
}

std::string CleanupCopy::aggressiveWarningTitle() const
{
    return text("적극 스캔 주의 사항", "Aggressive Scan Warning");
}

std::string CleanupCopy::aggressiveWarningBody() const
{
    return text("앱 컨테이너와 개발 도구의 캐시를 더 많이 찾지만 자동으로 선택하지는 않습니다. 실행 중인 앱이나 개발 "
                "작업에서 사용 중인 파일일 수 있으므로, 휴지통으로 이동하기 전에 경로를 검토하세요.",
        "Finds more app-container and developer caches, but does not auto-select them. Running apps or developer "
        "workflows may depend on these files, so review paths before moving anything to Trash.");
}

std::string CleanupCopy::scanRunnerPreparing() const
{
    return text("스캔 준비 중", "Preparing scan");
}

std::string CleanupCopy::scanRunnerVisiting() const
{
    return text("확인 중인 위치", "Visiting");
}

std::string CleanupCopy::scanRunnerHint() const
{
    return text("큰 폴더는 시간이 걸릴 수 있습니다. 취소하면 현재 스캔만 중단됩니다. 파일은 정리되지 않으며, 일부만 "
                "스캔한 결과는 적용되지 않습니다.",
        "Large folders can take time. Cancel stops only the current scan; no files are cleaned, and partial scan "
        "results are not applied.");
}

std::string CleanupCopy::scanRunnerProgressLabel() const
{
    return text("진행률", "Progress");
}

std::string CleanupCopy::scanRunnerProgress(int percentage) const
{
    return sentence("{}% 완료", "{}% complete", percentage);
}

std::string CleanupCopy::scanRunnerScannedLabel() const
{
    return text("스캔됨", "Scanned");
}

std::string CleanupCopy::scanRunnerCandidatesLabel() const
{
    return text("후보", "Candidates");
}

std::string CleanupCopy::scanRunnerSkippedLabel() const
{
    return text("건너뜀", "Skipped");
}

std::string CleanupCopy::itemsScannedCount(std::int64_t itemCount) const
{
    return counted(itemCount, "항목 {}개 스캔됨", "{} item scanned", "{} items scanned", itemCount);
}

std::string CleanupCopy::reclaimableTitle() const
{
    return text("확보 가능", "Reclaimable");
}

std::string CleanupCopy::skippedTitle() const
{
    return text("건너뜀", "Skipped");
}

std::string CleanupCopy::skippedSummary(std::int64_t itemCount) const
{
    return counted(itemCount,
        "항목 {}개를 건너뛰었습니다. 없거나, 비어 있거나, 최근에 수정되었거나, 심볼릭 링크이거나, 접근할 수 없는 "
        "항목입니다. 건너뛴 항목은 정리 대상으로 선택되지 않습니다. 권한을 바꾸거나 다시 스캔하기 전에 이유를 "
        "검토하세요.",
        "{} item was skipped because it was missing, empty, recently modified, a symbolic link, or inaccessible. "
        "Skipped items are not selected for cleanup; review reasons before changing permissions or rescanning.",
        "{} items were skipped because they were missing, empty, recently modified, symbolic links, or inaccessible. "
        "Skipped items are not selected for cleanup; review reasons before changing permissions or rescanning.",
        itemCount);
}

std::string CleanupCopy::skippedMore(std::int64_t itemCount) const
{
    return counted(itemCount, "건너뛴 항목 {}개 더 있음", "{} more skipped item", "{} more skipped items", itemCount);
}

std::string CleanupCopy::skippedReason(std::string_view reason) const
{
    if (isLinux() && reason == kCustomFolderUnavailable) {
        return own("The custom folder could not be opened. Remove and add the folder again, or check who may read it.");
    }
    return engineSentence(reason);
}

std::string CleanupCopy::cancel() const
{
    return text("취소", "Cancel");
}

std::string CleanupCopy::cancelOperation() const
{
    return text("작업 취소", "Cancel Operation");
}

} // namespace KarvelloUI
