#include "KarvelloUI/Copy/KarvelloCopy.h"

namespace KarvelloUI {

std::string KarvelloCopy::iOSTagline() const
{
    return text("샌드박스를 고려한 iOS 정리 안내", "Sandbox-aware iOS cleanup guide");
}

std::string KarvelloCopy::iOSAllowsTitle() const
{
    return text("iOS에서 할 수 있는 일", "What iOS allows");
}

std::string KarvelloCopy::iOSAllowsAppCacheOnly() const
{
    return text("이 앱의 캐시와 임시 파일만 정리합니다.", "Clean only this app's caches and temporary files.");
}

std::string KarvelloCopy::iOSAllowsGuideSettings() const
{
    return text("사진, 메시지, Safari, 앱 정리는 시스템 설정으로 안내합니다.",
        "Guide users to system settings for Photos, Messages, Safari, and app offloading.");
}

std::string KarvelloCopy::iOSAllowsNoSystemDataPromise() const
{
    return text(
        "iOS에서는 Apple의 샌드박스 때문에 Karvello가 다른 앱의 데이터나 임의의 시스템 데이터를 읽거나 삭제할 수 "
        "없습니다.",
        "On iOS, Apple's sandbox prevents Karvello from reading or deleting other apps' data or arbitrary System "
        "Data.");
}

std::string KarvelloCopy::iOSSandboxTitle() const
{
    return text("이 앱의 샌드박스", "This app sandbox");
}

std::string KarvelloCopy::iOSReviewAppCacheSelectionHint() const
{
    return text("이 앱의 샌드박스에서 찾은 캐시나 임시 파일을 삭제하기 전에 검토하고 선택하세요.",
        "Review and select cache or temporary files found inside this app sandbox before deleting.");
}

std::string KarvelloCopy::iOSAppCacheScanPending() const
{
    return text(
        "앱 캐시를 스캔하면 검토할 후보가 여기에 표시됩니다.", "Scan app cache to show review candidates here.");
}

std::string KarvelloCopy::iOSAppCacheScanInProgress() const
{
    return text("앱 캐시 후보를 스캔하는 중…", "Scanning for app-cache candidates…");
}

std::string KarvelloCopy::iOSNoAppCacheCandidates() const
{
    return text("검토할 앱 캐시 후보가 없습니다.", "No app-cache candidates to review.");
}

std::string KarvelloCopy::iOSAppCacheCandidateAccessibilityLabel(
    std::string_view name, std::string_view location, std::int64_t bytes) const
{
    return sentence("{}, 위치 {}, 크기 {}", "{}, location {}, size {}", name, location, byteSize(bytes));
}

std::string KarvelloCopy::iOSAppCacheCandidateAccessibilityHint(bool isSelected) const
{
    return isSelected ? text("이중 탭하면 이 항목의 선택을 해제합니다.", "Double-tap to deselect this item.")
                      : text("이중 탭하면 이 항목을 선택합니다.", "Double-tap to select this item.");
}

std::string KarvelloCopy::iOSAppCacheCandidateBusyAccessibilityHint() const
{
    return text("현재 작업이 끝난 뒤에 선택을 바꿀 수 있습니다.",
        "Selection can be changed after the current operation finishes.");
}

} // namespace KarvelloUI
