#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "KarvelloUI/Copy/KarvelloLocalizer.h"

namespace KarvelloUI {

std::string KarvelloCopy::macOnboardingEyebrow() const
{
    return text("첫 실행 설정", "First-run setup");
}

std::string KarvelloCopy::macOnboardingTitle() const
{
    return text(
        "무엇을 정리할지 먼저 검토하고, 그다음에 이동합니다.", "Review what will be cleaned before anything moves.");
}

std::string KarvelloCopy::macOnboardingBody() const
{
    if (isLinux()) {
        return own("Karvello scans user caches and logs, shows the review list first, and moves only user-confirmed "
                   "items to Trash. Folder access is saved only after you choose your home folder in the picker.");
    }
    return text("Karvello는 사용자 캐시와 로그를 스캔해 검토 목록을 먼저 보여 주고, 사용자가 확인한 항목만 휴지통으로 "
                "이동합니다. 폴더 접근 권한은 선택 창에서 홈 폴더나 라이브러리 폴더를 직접 선택한 뒤에만 저장됩니다.",
        "Karvello scans user caches and logs, shows the review list first, and moves only user-confirmed items to "
        "Trash. Folder access is saved only after you choose your home folder or Library folder in the picker.");
}

std::string KarvelloCopy::macOnboardingLanguageTitle() const
{
    return KarvelloLocalizer{language}.string(KarvelloI18nKey::macOnboardingLanguageTitle);
}

std::string KarvelloCopy::macOnboardingLanguageBody() const
{
    return KarvelloLocalizer{language}.string(KarvelloI18nKey::macOnboardingLanguageBody);
}

std::string KarvelloCopy::macOnboardingScanFirstTitle() const
{
    return text("먼저 스캔", "Scan first");
}

std::string KarvelloCopy::macOnboardingScanFirstBody() const
{
    return text("실행하자마자 정리하지 않습니다. 무엇을 고르기 전에 경로, 크기, 안전 정보를 먼저 보여 줍니다.",
        "The app does not clean on launch. It lists paths, sizes, and safety context before you choose anything.");
}

std::string KarvelloCopy::macOnboardingAccessTitle(bool supportsDirectScans) const
{
    if (supportsDirectScans && isLinux()) {
        return own("Your permissions decide what is read");
    }
    return supportsDirectScans ? own("Direct app: Full Disk Access recommended")
                               : text("사용자가 선택한 접근 권한", "User-selected access");
}

std::string KarvelloCopy::macOnboardingAccessBody(bool supportsDirectScans) const
{
    if (isLinux()) {
        return supportsDirectScans
            ? own("If results look empty or permission errors appear, check who may read the folders.")
            : own("Grant your home folder once. Karvello reuses the saved permission for future user-cache and log "
                  "scans.");
    }
    return supportsDirectScans
        ? text(
              "결과가 비어 보이거나 권한 오류가 나타나면 macOS의 파일 및 폴더 또는 전체 디스크 접근 권한을 확인하세요.",
              "If results look empty or permission errors appear, review macOS Files & Folders or Full Disk Access.")
        : text("홈 폴더나 ~/Library 접근을 한 번만 허용하세요. Karvello는 이 기기에 저장된 보안 범위 책갈피를 이후의 "
               "사용자 캐시와 로그 스캔에 다시 사용합니다.",
              "Grant your home folder or ~/Library once. Karvello reuses the local security-scoped bookmark for future "
              "user-cache and log scans.");
}

std::string KarvelloCopy::macOnboardingSafetyTitle() const
{
    return KarvelloLocalizer{language}.string(KarvelloI18nKey::macOnboardingSafetyTitle);
}

std::string KarvelloCopy::macOnboardingSafetyBody() const
{
    return KarvelloLocalizer{language}.string(KarvelloI18nKey::macOnboardingSafetyBody);
}

std::string KarvelloCopy::macOnboardingPrimaryButton(bool hasAccess) const
{
    return hasAccess ? text("스캔 시작", "Start Scan") : text("접근 허용 후 스캔 시작", "Grant Access and Start Scan");
}

std::string KarvelloCopy::macOnboardingSecondaryButton() const
{
    return text("나중에 설정", "Set Up Later");
}

std::string KarvelloCopy::macOnboardingSkipCaption() const
{
    return text("접근을 허용하지 않아도 시스템 상태는 볼 수 있습니다. 정리 스캔은 홈 폴더 접근을 허용한 뒤에 사용할 수 "
                "있습니다.",
        "You can still view system status without access. Cleanup scans unlock after home folder access is granted.");
}

} // namespace KarvelloUI
