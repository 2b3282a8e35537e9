#include "KarvelloUI/Copy/CleanupCopy.h"
#include "KarvelloUI/Copy/KarvelloLocalizer.h"

namespace KarvelloUI {

std::string CleanupCopy::homeAccessOnboardingTitle() const
{
    return text("홈 폴더 접근", "Home Folder Access");
}

std::string CleanupCopy::homeAccessOnboardingMessage() const
{
    if (isLinux()) {
        return own("Karvello needs access to your home folder to read user caches and logs. Grant access once in the "
                   "folder picker; future scans reuse the saved permission.");
    }
    return text("Karvello가 사용자 캐시와 로그를 읽으려면 홈 폴더나 Library 폴더에 접근할 수 있어야 합니다. 폴더 선택 "
                "창에서 한 번만 허용하면 다음 스캔부터는 저장된 권한을 사용합니다.",
        "Karvello needs access to your home folder or Library folder to read user caches and logs. Grant access once "
        "in the folder picker; future scans reuse the saved permission.");
}

std::string CleanupCopy::homeAccessGrantButton() const
{
    return text("홈 폴더 접근 허용", "Grant Home Folder Access");
}

std::string CleanupCopy::homeAccessGrantedStatus() const
{
    return KarvelloLocalizer{language}.string(KarvelloI18nKey::homeAccessGrantedStatus);
}

std::string CleanupCopy::homeAccessRevokeButton() const
{
    return text("접근 권한 철회", "Revoke Access");
}

std::string CleanupCopy::homeAccessPendingHintFromBanner() const
{
    return text("홈 폴더 접근이 아직 허용되지 않았습니다. 화면 위쪽의 안내에서 한 번 허용하면 여기에서 철회할 수 "
                "있습니다.",
        "Home folder access is not yet granted. Grant it once from the prompt at the top — this section will then "
        "unlock revoke controls.");
}

std::string CleanupCopy::homeAccessPanelPrompt() const
{
    return text("홈 폴더 선택", "Select Home Folder");
}

std::string CleanupCopy::homeAccessPanelMessage() const
{
    if (isLinux()) {
        return own("Select your home folder so Karvello can scan user caches and logs.");
    }
    return text("Karvello가 사용자 캐시와 로그를 스캔할 수 있도록 홈 폴더(또는 ~/Library)를 선택하세요.",
        "Select your home folder (or ~/Library) so Karvello can scan user caches and logs.");
}

std::string CleanupCopy::homeAccessBookmarkLoadFailedMessage(std::string_view reason) const
{
    return around(engineSentence(reason),
        "홈 폴더 접근 책갈피를 불러오지 못했습니다. 저장된 책갈피를 백업하고 초기화했습니다: {}",
        "Could not load home folder access bookmark. The saved bookmark was backed up and reset: {}");
}

std::string CleanupCopy::homeAccessBookmarkSaveFailedMessage(std::string_view reason) const
{
    return around(engineSentence(reason), "홈 폴더 접근 책갈피를 저장하지 못했습니다: {}",
        "Could not save home folder access bookmark: {}");
}

std::string CleanupCopy::homeAccessBookmarkResolveFailedMessage(std::string_view reason) const
{
    return around(engineSentence(reason), "홈 폴더 접근 책갈피를 확인할 수 없어 지웠습니다. 접근을 다시 허용하세요: {}",
        "Could not resolve home folder access bookmark and cleared it. Grant access again: {}");
}

std::string CleanupCopy::homeAccessBookmarkStaleMessage() const
{
    return text("홈 폴더 접근 책갈피가 만료되어 지웠습니다. 접근을 다시 허용하세요.",
        "Home folder access bookmark expired and was cleared. Grant access again.");
}

std::string CleanupCopy::customScanFoldersLoadFailedMessage(std::string_view reason) const
{
    return around(engineSentence(reason),
        "사용자 지정 스캔 폴더를 불러오지 못했습니다. 저장된 폴더 목록을 백업하고 초기화했습니다: {}",
        "Could not load custom scan folders. The saved folder list was backed up and reset: {}");
}

std::string CleanupCopy::customScanFoldersSaveFailedMessage(std::string_view reason) const
{
    return around(engineSentence(reason), "사용자 지정 스캔 폴더를 저장하지 못했습니다: {}",
        "Could not save custom scan folders: {}");
}

} // namespace KarvelloUI
