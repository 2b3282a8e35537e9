#include "KarvelloUI/Copy/CleanupCopy.h"

#include <fmt/ranges.h>

namespace KarvelloUI {

std::string CleanupCopy::permissionDiagnosticTitle(StoragePermissionIssueKind kind, std::int64_t itemCount) const
{
    switch (kind) {
    case StoragePermissionIssueKind::fullDiskAccess:
        if (isLinux()) {
            return own("Access to protected folders needed · {}", itemCount);
        }
        return sentence("전체 디스크 접근 권한 필요 · {}", "Full Disk Access needed · {}", itemCount);
    case StoragePermissionIssueKind::filesAndFolders:
        if (isLinux()) {
            return own("Folder permission needed · {}", itemCount);
        }
        return sentence("파일 및 폴더 권한 필요 · {}", "Files & Folders permission needed · {}", itemCount);
    case StoragePermissionIssueKind::securityScopedAccess:
        if (isLinux()) {
            return own("Saved folder permission needs review · {}", itemCount);
        }
        return sentence("보안 범위 책갈피 확인 필요 · {}", "Security-scoped bookmark needs review · {}", itemCount);
    case StoragePermissionIssueKind::authorization:
        return sentence("사용자 승인 필요 · {}", "User authorization needed · {}", itemCount);
    case StoragePermissionIssueKind::readOrEnumerateAccess:
        return sentence("읽기/목록 접근 제한 · {}", "Read/enumeration access limited · {}", itemCount);
    case StoragePermissionIssueKind::unreadableAttributes:
        return sentence("파일 속성을 확인할 수 없음 · {}", "File attributes could not be verified · {}", itemCount);
    }
    return {};
}

std::string CleanupCopy::permissionDiagnosticAction(StoragePermissionIssueKind kind) const
{
    switch (kind) {
    case StoragePermissionIssueKind::fullDiskAccess:
        if (isLinux()) {
            return own("Check in the file manager whether you may read these folders.");
        }
        return text("시스템 설정 > 개인정보 보호 및 보안에서 전체 디스크 접근 권한을 확인하세요.",
            "Check Full Disk Access in System Settings > Privacy & Security.");
    case StoragePermissionIssueKind::filesAndFolders:
        if (isLinux()) {
            return own("Confirm that you may read the expected locations.");
        }
        return text("필요한 위치가 파일 및 폴더에서 허용되어 있는지 확인하세요.",
            "Confirm the expected locations are allowed under Files & Folders.");
    case StoragePermissionIssueKind::securityScopedAccess:
        if (isLinux()) {
            return own("Re-add the custom folder to renew its saved permission.");
        }
        return text("사용자 지정 폴더를 다시 추가하여 만료되었거나 잘못된 책갈피를 새로 고치세요.",
            "Re-add the custom folder to refresh an expired or invalid bookmark.");
    case StoragePermissionIssueKind::authorization:
        if (isLinux()) {
            return own("Answer the desktop's permission prompt, or reset this app's folder permission.");
        }
        return text("macOS 승인 요청을 확인하거나 이 앱의 폴더 권한을 재설정하세요.",
            "Review the macOS authorization prompt or reset this app's folder permission.");
    case StoragePermissionIssueKind::readOrEnumerateAccess:
        return text("폴더를 열 수 있는지 확인하고, 필요하면 상위 폴더에 대한 접근을 허용하세요.",
            "Verify the folder can be opened and grant access to the parent folder if needed.");
    case StoragePermissionIssueKind::unreadableAttributes:
        return text("경로가 아직 존재하는지, 파일 속성을 안전하게 읽을 수 있는지 확인하세요.",
            "Confirm the path still exists and that file attributes can be read safely.");
    }
    return {};
}

std::string CleanupCopy::permissionDiagnosticSamples(std::span<const std::string> paths) const
{
    return around(fmt::format("{}", fmt::join(paths, " · ")), "예: {}", "Examples: {}");
}

std::string CleanupCopy::permissionDiagnosticSamplePathsTitle(std::int64_t pathCount) const
{
    return own("Sample paths ({})", pathCount);
}

std::string CleanupCopy::permissionDiagnosticSamplePathsCopyButton() const
{
    return own("Copy paths");
}

std::string CleanupCopy::permissionDiagnosticSampleCopyPayload(std::span<const std::string> paths) const
{
    return fmt::format("{}", fmt::join(paths, "\n"));
}

std::string CleanupCopy::permissionWizardTitle() const
{
    return text("접근 안내", "Access Guidance");
}

std::string CleanupCopy::permissionWizardIntro() const
{
    if (isLinux()) {
        return own("Review skipped paths, update the needed permission or folder bookmark yourself, then scan again. "
                   "Karvello cannot grant access automatically.");
    }
    return text("건너뛴 경로를 검토하고 필요한 macOS 권한이나 폴더 책갈피를 직접 바꾼 다음 다시 스캔하세요. Karvello가 "
                "접근을 자동으로 허용할 수는 없습니다.",
        "Review skipped paths, update the needed macOS permission or folder bookmark yourself, then scan again. "
        "Karvello cannot grant access automatically.");
}

std::string CleanupCopy::permissionWizardStepLabel(std::int64_t step, std::int64_t stepCount) const
{
    return sentence("{1}단계 중 {0}단계", "Step {} of {}", step, stepCount);
}

std::string CleanupCopy::permissionWizardStepTitle(StoragePermissionWizardStepRole role) const
{
    switch (role) {
    case StoragePermissionWizardStepRole::reviewBlockedItems:
        return text("건너뛴 항목 검토", "Review skipped items");
    case StoragePermissionWizardStepRole::refreshCustomFolders:
        return text("사용자 지정 폴더 새로 고침", "Refresh custom folders");
    case StoragePermissionWizardStepRole::grantSystemAccess:
        if (isLinux()) {
            return own("Check who may read the folders");
        }
        return text("macOS 개인정보 접근 허용", "Grant macOS privacy access");
    case StoragePermissionWizardStepRole::rescan:
        return text("다시 스캔하여 확인", "Rescan to verify");
    }
    return {};
}

std::string CleanupCopy::permissionWizardStepBody(
    StoragePermissionWizardStepRole role, std::optional<StoragePermissionIssueKind> kind) const
{
    switch (role) {
    case StoragePermissionWizardStepRole::reviewBlockedItems:
        return kind ? permissionDiagnosticAction(*kind)
                    : text("건너뛴 경로를 확인하세요.", "Check which paths were skipped.");
    case StoragePermissionWizardStepRole::refreshCustomFolders:
        if (isLinux()) {
            return own("If custom folders were skipped because their permission is gone or access failed, remove and "
                       "add those folders again.");
        }
        return text("책갈피가 만료되었거나 접근에 실패하여 사용자 지정 폴더를 건너뛰었다면, 그 폴더를 제거하고 다시 "
                    "추가하세요.",
            "If custom folders were skipped because a bookmark expired or access failed, remove and add those folders "
            "again.");
    case StoragePermissionWizardStepRole::grantSystemAccess:
        if (isLinux()) {
            return own("Look up in the file manager who owns the skipped folders and whether you may read them. An app "
                       "in a sandbox also needs permission for the folder in the system settings.");
        }
        return text("시스템 설정 > 개인정보 보호 및 보안을 열고 파일 및 폴더 또는 전체 디스크 접근 권한을 허용하세요.",
            "Open System Settings > Privacy & Security and grant Files & Folders or Full Disk Access.");
    case StoragePermissionWizardStepRole::rescan:
        return text("접근 권한을 바꾼 뒤 정리 스캔이나 인사이트 스캔을 다시 실행하고, 건너뛴 항목이 줄었는지 "
                    "확인하세요.",
            "After changing access, run Cleanup or Insights scan again and confirm skipped items decreased.");
    }
    return {};
}

std::string CleanupCopy::storageAccessBody(std::int64_t blockedCount, bool hasCustomFolders) const
{
    if (blockedCount > 0) {
        return counted(blockedCount,
            "건너뛴 항목 {}개는 권한 문제로 보입니다. Karvello가 macOS 접근 권한을 대신 허용할 수는 없습니다. 필요한 "
            "위치를 검토한 다음 시스템 설정에서 파일 및 폴더 또는 전체 디스크 접근 권한을 바꾸세요.",
            "{} skipped item looks permission-related. Karvello cannot grant macOS access for you; review the expected "
            "locations, then update Files & Folders or Full Disk Access in System Settings.",
            "{} skipped items look permission-related. Karvello cannot grant macOS access for you; review the expected "
            "locations, then update Files & Folders or Full Disk Access in System Settings.",
            blockedCount);
    }
    return hasCustomFolders
        ? text("사용자 지정 폴더는 보안 범위 책갈피를 사용합니다. 결과가 비어 있거나 권한 오류가 나타나면 폴더를 다시 "
               "추가하거나, 시스템 설정에서 파일 및 폴더 또는 전체 디스크 접근 권한을 직접 바꾸세요.",
              "Custom folders use security-scoped bookmarks. If results look empty or permission errors appear, re-add "
              "the folder or update Files & Folders / Full Disk Access in System Settings yourself.")
        : text("결과가 비어 있거나 권한 오류가 나타나면 시스템 설정에서 파일 및 폴더 또는 전체 디스크 접근 권한을 직접 "
               "바꾼 다음 다시 스캔하세요.",
              "If results look empty or permission errors appear, update Files & Folders or Full Disk Access in System "
              "Settings yourself, then scan again.");
}

std::string CleanupCopy::settingsAccessDiagnosticsTitle(std::int64_t blockedCount, bool hasCustomFolders) const
{
    if (blockedCount > 0) {
        return text("최근 스캔의 접근 근거", "Latest Scan Access Evidence");
    }
    return hasCustomFolders ? text("사용자 지정 폴더 접근 안내", "Custom Folder Access Guidance")
                            : permissionWizardTitle();
}

std::string CleanupCopy::settingsAccessDiagnosticsBody(std::int64_t blockedCount, bool hasCustomFolders) const
{
    if (isLinux()) {
        return linuxAccessDiagnosticsBody(blockedCount, hasCustomFolders);
    }
    if (blockedCount > 0) {
        return counted(blockedCount,
            "최근 스캔에서 권한과 관련해 건너뛴 항목 {}개를 찾았습니다. Karvello가 접근을 자동으로 허용할 수는 없으며, "
            "이 근거가 현재나 앞으로의 접근을 보장하지는 않습니다. 예시 경로를 검토하고 macOS 권한을 직접 조정한 다음 "
            "다시 스캔하세요.",
            "The latest scans found {} permission-related skipped item. Karvello cannot grant access automatically, "
            "and this evidence does not guarantee current or future access; review the example paths, adjust macOS "
            "permissions yourself, then scan again.",
            "The latest scans found {} permission-related skipped items. Karvello cannot grant access automatically, "
            "and this evidence does not guarantee current or future access; review the example paths, adjust macOS "
            "permissions yourself, then scan again.",
            blockedCount);
    }
    return hasCustomFolders
        ? text("사용자 지정 폴더는 저장된 보안 범위 책갈피를 사용합니다. Karvello가 접근을 자동으로 허용할 수는 "
               "없습니다. 스캔 결과가 비어 있으면 폴더를 다시 추가하거나 시스템 설정을 직접 검토한 다음 다시 "
               "스캔하세요.",
              "Custom folders depend on stored security-scoped bookmarks. Karvello cannot grant access automatically. "
              "If scan results look empty, re-add the folder or review System Settings yourself, then scan again.")
        : text(
              "최근 스캔의 접근 진단이 없습니다. Karvello가 접근을 자동으로 허용할 수는 없습니다. 결과가 예상과 다르면 "
              "시스템 설정을 직접 검토한 다음 다시 스캔하세요.",
              "No latest-scan access diagnosis is available. Karvello cannot grant access automatically. If results do "
              "not match expectations, review System Settings yourself, then scan again.");
}

std::string CleanupCopy::linuxAccessDiagnosticsBody(std::int64_t blockedCount, bool hasCustomFolders) const
{
    if (blockedCount > 0) {
        return ownCount(blockedCount,
            "The latest scans found {} permission-related skipped item. Karvello cannot grant access automatically, "
            "and "
            "this evidence does not guarantee current or future access; review the example paths, adjust the "
            "permissions yourself, then scan again.",
            "The latest scans found {} permission-related skipped items. Karvello cannot grant access automatically, "
            "and this evidence does not guarantee current or future access; review the example paths, adjust the "
            "permissions yourself, then scan again.");
    }
    return hasCustomFolders
        ? own("Custom folders depend on saved permissions. Karvello cannot grant access automatically. If scan results "
              "look empty, re-add the folder or check yourself who may read it, then scan again.")
        : own("No latest-scan access diagnosis is available. Karvello cannot grant access automatically. If results do "
              "not match expectations, check yourself who may read the folders, then scan again.");
}

} // namespace KarvelloUI
