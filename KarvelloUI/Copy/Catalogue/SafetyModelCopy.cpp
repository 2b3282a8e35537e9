#include "KarvelloUI/Copy/CleanupCopy.h"

namespace KarvelloUI {

std::string CleanupCopy::cleanupControlTitle() const
{
    return text("정리 설정", "Cleanup Control");
}

std::string CleanupCopy::cleanupControlSubtitle() const
{
    return text("언어, 스캔 강도, 안전 정책", "Language, scan intensity, and safety policy");
}

std::string CleanupCopy::trustBriefTitle() const
{
    return text("검토가 먼저인 정리", "Review-first cleanup");
}

std::string CleanupCopy::trustBriefBody() const
{
    return text("Karvello는 정리 후보를 몰래 삭제하지 않습니다. 이동할 경로, 안전 등급, 예상 크기를 먼저 보여 주고, "
                "사용자가 선택한 항목만 휴지통으로 이동합니다.",
        "Karvello does not silently delete cleanup candidates. It shows paths, safety levels, and estimated size to "
        "move first, then moves only user-selected items to Trash.");
}

std::string CleanupCopy::trustReviewPill() const
{
    return text("검토 먼저", "Review first");
}

std::string CleanupCopy::trustTrashPill() const
{
    return text("휴지통 먼저", "Trash first");
}

std::string CleanupCopy::trustScopePill() const
{
    return text("승인한 항목만", "Only what you approve");
}

std::string CleanupCopy::safetyModelTitle() const
{
    return text("안전 모델", "Safety model");
}

std::string CleanupCopy::safetyTrashRule() const
{
    return text("Mac 정리는 파일을 영구 삭제하지 않고 휴지통으로 이동합니다.",
        "Mac cleanup moves files to Trash, not permanent delete.");
}

std::string CleanupCopy::safetyScopeRule() const
{
    return text("기본 스캔은 사용자 캐시, 로그, 개발 산출물 폴더로 한정됩니다.",
        "Default scan is limited to user cache/log/developer artifact folders.");
}

std::string CleanupCopy::safetySkipRule() const
{
    return text(
        "최근 항목과 심볼릭 링크는 기본적으로 건너뜁니다.", "Recent items and symbolic links are skipped by default.");
}

std::string CleanupCopy::recommendedActionsTitle() const
{
    return text("권장하는 사용자 조치", "Recommended user actions");
}

std::string CleanupCopy::recommendedActionsSettings() const
{
    return text("설정 → 일반 → iPhone 저장 공간: 사용하지 않는 앱 정리하기, 큰 첨부 파일 검토, 내려받은 미디어 제거, "
                "Safari 웹 사이트 데이터 지우기.",
        "Settings → General → iPhone Storage: offload unused apps, review large attachments, remove downloaded media, "
        "and clear Safari website data.");
}

std::string CleanupCopy::recommendedActionsSandboxWarning() const
{
    return text("이 앱은 이러한 단계를 설명하고 설정 경로를 안내할 수 있지만, iOS 샌드박스를 우회할 수는 없습니다.",
        "The app can explain these steps and point you to Settings paths, but it cannot bypass iOS sandboxing.");
}

} // namespace KarvelloUI
