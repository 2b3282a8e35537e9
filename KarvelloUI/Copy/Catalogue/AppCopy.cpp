#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "KarvelloUI/Copy/KarvelloLocalizer.h"

namespace KarvelloUI {

std::string KarvelloCopy::appTitle() const
{
    return text("Karvello", "Karvello");
}

std::string KarvelloCopy::appSubtitle() const
{
    return text("다시 생성할 수 있는 캐시, 로그, 개발 산출물을 안전하게 검토한 뒤 휴지통으로 이동하세요.",
        "Safely review regenerable cache, log, and developer artifacts before moving them to Trash.");
}

std::string KarvelloCopy::macCleanupBadge() const
{
    return text("Mac 스마트 정리", "Mac Smart Cleanup");
}

std::string KarvelloCopy::platformBoundaryTitle() const
{
    return text("플랫폼별 범위", "Platform scope");
}

std::string KarvelloCopy::macBoundaryStatement() const
{
    return text("Mac의 기본 정리 대상은 사용자가 소유하고 다시 생성할 수 있는 캐시, 로그, 개발 산출물뿐입니다.",
        "On Mac, default cleanup targets only user-owned, regenerable caches, logs, and developer artifacts.");
}

std::string KarvelloCopy::iOSBoundaryStatement() const
{
    return text("iPhone과 iPad에서는 이 앱의 샌드박스만 정리하고, 그 밖의 항목은 설정 > 일반 > iPhone 저장 공간으로 "
                "안내합니다.",
        "On iPhone and iPad, Karvello only cleans this app sandbox and points to Settings > General > iPhone Storage "
        "for everything else.");
}

std::string KarvelloCopy::languageTitle() const
{
    return KarvelloLocalizer{language}.string(KarvelloI18nKey::languageTitle);
}

std::string KarvelloCopy::okButtonTitle() const
{
    return text("확인", "OK");
}

std::string KarvelloCopy::foundLabel() const
{
    return text("찾은 항목", "Found");
}

std::string KarvelloCopy::foundAcrossItems(std::int64_t itemCount) const
{
    return counted(itemCount, "항목 {}개에서 찾음", "found across {} item", "found across {} items", itemCount);
}

std::string KarvelloCopy::finderItemMissingTitle() const
{
    return text("상위 폴더를 열었습니다", "Opened Parent Folder");
}

std::string KarvelloCopy::finderItemMissingMessage(std::string_view path) const
{
    return fmt::format("{}\n{}", own("The item no longer exists, so the parent folder was opened."), path);
}

std::string KarvelloCopy::finderRevealFailedTitle() const
{
    return isLinux() ? own("Could Not Open in the File Manager")
                     : text("Finder에서 열 수 없음", "Could Not Open in Finder");
}

std::string KarvelloCopy::finderRevealFailedMessage(std::string_view path) const
{
    return fmt::format("{}\n{}",
        isLinux() ? own("The file manager could not open this item.") : own("Finder could not open this item."), path);
}

} // namespace KarvelloUI
