#pragma once

#include "Platform/Base/RawValue.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace CleanerCore {

struct AppCacheRunningApplicationIdentity;

enum class AppCacheContainerKind : std::uint8_t { appContainer, groupContainer };
enum class AppCacheRunningState : std::uint8_t { running, notRunning, unknown };
enum class AppCacheIdentitySource : std::uint8_t {
    appContainerPath,
    groupContainerPossibleMatch,
    runningAppExactMatch,
    unknown,
};

/// What is known of the application that owns a container's cache.
struct AppCacheContext {
    AppCacheContainerKind containerKind = AppCacheContainerKind::appContainer;
    /// The folder's name below the containers folder, trimmed.
    std::string containerIdentifier;
    /// What the folder's name suggests; only a guess for group containers.
    std::optional<std::string> possibleBundleIdentifier = {};
    std::optional<std::string> matchedRunningBundleIdentifier = {};
    std::optional<std::string> matchedRunningDisplayName = {};
    AppCacheRunningState runningState = AppCacheRunningState::unknown;
    AppCacheIdentitySource identitySource = AppCacheIdentitySource::unknown;

    static AppCacheContext seed(AppCacheContainerKind containerKind, std::string_view containerIdentifier);
    /// "com.example.app" for "group.com.example.app"; nothing unless what follows "group." has the shape of a bundle
    /// identifier.
    static std::optional<std::string> possibleBundleIdentifierForGroup(std::string_view groupIdentifier);

    /// This context after a look at the running applications, `runningApplication` being the match, if there is one.
    /// A group container is never said not to be running: its identifier is a guess, and no match proves nothing.
    [[nodiscard]] AppCacheContext enriched(const AppCacheRunningApplicationIdentity* runningApplication) const;
    /// The last part of an application container's identifier, for when no running application gives a name.
    [[nodiscard]] std::optional<std::string> displayNameForAppContainerFallback() const;

    friend bool operator==(const AppCacheContext&, const AppCacheContext&) = default;
};

} // namespace CleanerCore

template <>
struct Platform::RawValues<CleanerCore::AppCacheContainerKind> {
    static constexpr std::array<std::string_view, 2> names{"appContainer", "groupContainer"};
};

template <>
struct Platform::RawValues<CleanerCore::AppCacheRunningState> {
    static constexpr std::array<std::string_view, 3> names{"running", "notRunning", "unknown"};
};

template <>
struct Platform::RawValues<CleanerCore::AppCacheIdentitySource> {
    static constexpr std::array<std::string_view, 4> names{
        "appContainerPath", "groupContainerPossibleMatch", "runningAppExactMatch", "unknown"};
};
