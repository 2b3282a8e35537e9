#include "CleanerCore/Scan/AppCacheContext.h"

#include "CleanerCore/Scan/AppCacheRunningApplicationIdentity.h"
#include "CleanerCore/Scan/BlankText.h"
#include "Platform/Base/Text.h"

#include <algorithm>
#include <vector>

namespace CleanerCore {

namespace {

std::vector<std::string_view> partsBetweenPoints(std::string_view text)
{
    std::vector<std::string_view> parts;
    for (;;) {
        const auto point = text.find('.');
        parts.push_back(text.substr(0, point));
        if (point == std::string_view::npos) {
            return parts;
        }
        text.remove_prefix(point + 1);
    }
}

template <typename Predicate>
bool allScalars(std::string_view text, Predicate predicate)
{
    while (!text.empty()) {
        if (!predicate(Platform::Text::takeScalar(text))) {
            return false;
        }
    }
    return true;
}

/// The shape that identifiers in reverse domain notation have, with little room for anything else.
bool isConservativeBundleIdentifier(std::string_view text)
{
    const auto parts = partsBetweenPoints(text);
    const auto isPart = [](std::string_view part) {
        return !part.empty() && allScalars(part, [](char32_t scalar) {
            return scalar == '-' || Platform::Text::isAlphanumeric(scalar);
        });
    };
    const auto isLowercaseOrDigit = [](char32_t scalar) {
        return Platform::Text::isLowercase(scalar) || Platform::Text::isNumber(scalar);
    };
    return parts.size() >= 3 && std::all_of(parts.begin(), parts.end(), isPart)
        && allScalars(parts.front(), isLowercaseOrDigit);
}

} // namespace

AppCacheContext AppCacheContext::seed(AppCacheContainerKind containerKind, std::string_view containerIdentifier)
{
    const auto trimmed = Platform::Text::trimmed(containerIdentifier);
    AppCacheContext context;
    context.containerKind = containerKind;
    context.containerIdentifier = trimmed;
    switch (containerKind) {
    case AppCacheContainerKind::groupContainer:
        context.possibleBundleIdentifier = possibleBundleIdentifierForGroup(trimmed);
        context.identitySource = AppCacheIdentitySource::groupContainerPossibleMatch;
        break;
    case AppCacheContainerKind::appContainer:
        context.possibleBundleIdentifier = trimmedUnlessBlank(trimmed);
        context.identitySource = AppCacheIdentitySource::appContainerPath;
        break;
    }
    if (!context.possibleBundleIdentifier) {
        context.identitySource = AppCacheIdentitySource::unknown;
    }
    return context;
}

std::optional<std::string> AppCacheContext::possibleBundleIdentifierForGroup(std::string_view groupIdentifier)
{
    constexpr std::string_view prefix = "group.";
    if (!groupIdentifier.starts_with(prefix)) {
        return std::nullopt;
    }
    const auto remainder = groupIdentifier.substr(prefix.size());
    return isConservativeBundleIdentifier(remainder) ? std::optional<std::string>(remainder) : std::nullopt;
}

AppCacheContext AppCacheContext::enriched(const AppCacheRunningApplicationIdentity* runningApplication) const
{
    AppCacheContext context;
    context.containerKind = containerKind;
    context.containerIdentifier = containerIdentifier;
    if (!possibleBundleIdentifier) {
        return context;
    }
    context.possibleBundleIdentifier = trimmedUnlessBlank(possibleBundleIdentifier);
    if (runningApplication != nullptr) {
        context.matchedRunningBundleIdentifier = trimmedUnlessBlank(runningApplication->bundleIdentifier);
        context.matchedRunningDisplayName = trimmedUnlessBlank(runningApplication->displayName);
        context.runningState = AppCacheRunningState::running;
        context.identitySource = AppCacheIdentitySource::runningAppExactMatch;
        return context;
    }
    switch (containerKind) {
    case AppCacheContainerKind::appContainer:
        context.runningState = AppCacheRunningState::notRunning;
        context.identitySource = AppCacheIdentitySource::appContainerPath;
        break;
    case AppCacheContainerKind::groupContainer:
        context.identitySource = AppCacheIdentitySource::groupContainerPossibleMatch;
        break;
    }
    return context;
}

std::optional<std::string> AppCacheContext::displayNameForAppContainerFallback() const
{
    if (containerKind == AppCacheContainerKind::groupContainer || !possibleBundleIdentifier) {
        return std::nullopt;
    }
    const auto parts = partsBetweenPoints(*possibleBundleIdentifier);
    const auto last = std::find_if(parts.rbegin(), parts.rend(), [](std::string_view part) { return !part.empty(); });
    return last == parts.rend() ? std::nullopt : trimmedUnlessBlank(*last);
}

} // namespace CleanerCore
