#pragma once

#include "CleanerCore/Scan/SkippedItem.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Services/Bookmarks.h"
#include "Platform/Services/Environment.h"

#include <optional>
#include <string_view>

namespace KarvelloUI {

struct HomeAccessSecurityScopeResult;

/// Access to the home folder for one scan or clean. Started and stopped on the same task.
struct HomeAccessSecurityScope {
    static constexpr std::string_view unavailableReason =
        "Could not start security-scoped access for the home folder grant. Revoke and re-grant home folder access from "
        "Settings, then rescan.";

    /// Only what was really started.
    std::optional<Platform::FileURL> accessedURL = {};

    /// `requiresAccess` goes through the rule of `requiresSecurityScopedAccess`: where access is not required, a failed
    /// start means nothing.
    [[nodiscard]] static HomeAccessSecurityScopeResult start(const std::optional<Platform::FileURL>& url,
        const Platform::Bookmarks& bookmarks, const Platform::Environment& environment,
        std::optional<bool> requiresAccess = std::nullopt);
    void stop(const Platform::Bookmarks& bookmarks) const;

    [[nodiscard]] bool didStart() const { return accessedURL.has_value(); }

    friend bool operator==(const HomeAccessSecurityScope&, const HomeAccessSecurityScope&) = default;
};

struct HomeAccessSecurityScopeResult {
    HomeAccessSecurityScope scope = {};
    std::optional<CleanerCore::SkippedItem> skippedItem = {};

    friend bool operator==(const HomeAccessSecurityScopeResult&, const HomeAccessSecurityScopeResult&) = default;
};

} // namespace KarvelloUI
