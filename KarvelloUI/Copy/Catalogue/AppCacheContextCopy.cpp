#include "KarvelloUI/Copy/KarvelloCopy.h"

namespace KarvelloUI {

using CleanerCore::AppCacheContainerKind;
using CleanerCore::AppCacheContext;
using CleanerCore::AppCacheRunningState;

namespace {

/// What people know the owner of an application's container by.
std::string ownerName(const AppCacheContext& context)
{
    if (context.matchedRunningDisplayName) {
        return *context.matchedRunningDisplayName;
    }
    return context.displayNameForAppContainerFallback().value_or(context.containerIdentifier);
}

} // namespace

// Each part is looked up by itself: the shape of the first one would take all that follows for the name.
std::string KarvelloCopy::appCacheContextSummary(const AppCacheContext& context) const
{
    const bool isAppContainer = context.containerKind == AppCacheContainerKind::appContainer;
    std::vector<std::string> parts;
    parts.push_back(isAppContainer ? around(ownerName(context), "앱 컨테이너 {}", "App container {}")
                                   : around(context.containerIdentifier, "그룹 식별자 {}", "Group identifier {}"));
    if (const auto& matched = context.matchedRunningBundleIdentifier) {
        parts.push_back(around(*matched, "일치하는 번들 {}", "matched bundle {}"));
    } else if (const auto& possible = context.possibleBundleIdentifier) {
        parts.push_back(isAppContainer ? around(*possible, "번들 {}", "bundle {}")
                                       : around(*possible, "일치할 수 있는 번들 {}", "possible matching bundle {}"));
    }
    switch (context.runningState) {
    case AppCacheRunningState::running:
        parts.push_back(context.matchedRunningDisplayName
                ? around(*context.matchedRunningDisplayName, "{} 실행 중", "{} is running")
                : text("일치하는 앱 실행 중", "matching app is running"));
        break;
    case AppCacheRunningState::notRunning:
        parts.push_back(text("일치하는 앱이 실행 중이 아님", "matching app is not running"));
        break;
    case AppCacheRunningState::unknown:
        parts.push_back(text("실행 상태 알 수 없음", "running state unknown"));
        break;
    }
    return joinedParts(parts);
}

std::string KarvelloCopy::koreanAppCacheContextSummary(const AppCacheContext& context)
{
    return KarvelloCopy{AppLanguage::korean}.appCacheContextSummary(context);
}

std::string KarvelloCopy::englishAppCacheContextSummary(const AppCacheContext& context) const
{
    return (language == AppLanguage::korean ? KarvelloCopy{AppLanguage::english} : *this)
        .appCacheContextSummary(context);
}

} // namespace KarvelloUI
