#include "KarvelloUI/Copy/KarvelloCopy.h"

#include <vector>

namespace KarvelloUI {

using CleanerCore::AppCacheContainerKind;
using CleanerCore::AppCacheContext;
using CleanerCore::AppCacheRunningState;

namespace {

/// The parts of a summary, with a place for the name where there is one.
struct ContextWords {
    std::string_view appContainer;
    std::string_view groupIdentifier;
    std::string_view matchedBundle;
    std::string_view bundle;
    std::string_view possibleBundle;
    std::string_view isRunning;
    std::string_view matchIsRunning;
    std::string_view matchIsNotRunning;
    std::string_view unknownState;
};

constexpr ContextWords kKoreanWords{"앱 컨테이너 {}", "그룹 식별자 {}", "일치하는 번들 {}", "번들 {}",
    "일치할 수 있는 번들 {}", "{} 실행 중", "일치하는 앱 실행 중", "일치하는 앱이 실행 중이 아님",
    "실행 상태 알 수 없음"};
constexpr ContextWords kEnglishWords{"App container {}", "Group identifier {}", "matched bundle {}", "bundle {}",
    "possible matching bundle {}", "{} is running", "matching app is running", "matching app is not running",
    "running state unknown"};

std::string named(std::string_view words, std::string_view name)
{
    return fmt::format(fmt::runtime(words), name);
}

std::string stateOf(const AppCacheContext& context, const ContextWords& words)
{
    switch (context.runningState) {
    case AppCacheRunningState::running:
        return context.matchedRunningDisplayName ? named(words.isRunning, *context.matchedRunningDisplayName)
                                                 : std::string(words.matchIsRunning);
    case AppCacheRunningState::notRunning:
        return std::string(words.matchIsNotRunning);
    case AppCacheRunningState::unknown:
        break;
    }
    return std::string(words.unknownState);
}

std::vector<std::string> partsOf(const AppCacheContext& context, const ContextWords& words)
{
    std::vector<std::string> parts;
    const bool isAppContainer = context.containerKind == AppCacheContainerKind::appContainer;
    if (isAppContainer) {
        const auto fallback = context.displayNameForAppContainerFallback();
        parts.push_back(named(words.appContainer,
            context.matchedRunningDisplayName.value_or(fallback.value_or(context.containerIdentifier))));
    } else {
        parts.push_back(named(words.groupIdentifier, context.containerIdentifier));
    }
    if (context.matchedRunningBundleIdentifier) {
        parts.push_back(named(words.matchedBundle, *context.matchedRunningBundleIdentifier));
    } else if (context.possibleBundleIdentifier) {
        parts.push_back(named(isAppContainer ? words.bundle : words.possibleBundle, *context.possibleBundleIdentifier));
    }
    parts.push_back(stateOf(context, words));
    return parts;
}

} // namespace

std::string KarvelloCopy::appCacheContextSummary(const AppCacheContext& context) const
{
    return language == AppLanguage::korean ? koreanAppCacheContextSummary(context)
                                           : englishAppCacheContextSummary(context);
}

std::string KarvelloCopy::koreanAppCacheContextSummary(const AppCacheContext& context)
{
    return joinedParts(partsOf(context, kKoreanWords));
}

// Each part is looked up by itself: the shape of the first one would take all that follows for the name.
std::string KarvelloCopy::englishAppCacheContextSummary(const AppCacheContext& context) const
{
    std::vector<std::string> parts = partsOf(context, kEnglishWords);
    for (std::string& part : parts) {
        part = localizedEnglishCopy(language, part);
    }
    return joinedParts(parts);
}

} // namespace KarvelloUI
