#pragma once

#include "KarvelloUI/Stores/KarvelloDashboardLaunchRequest.h"
#include "Platform/Base/Date.h"
#include "Platform/Services/UserDefaults.h"

#include <expected>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace KarvelloUI {

/// The way of a request from whoever makes it to the dashboard. It waits in the stored preferences, also beyond the end of
/// the process, until a dashboard takes it or another request takes its place.
struct KarvelloDashboardLaunchRequestStore {
    static constexpr std::string_view destinationDefaultsKey = "karvello.dashboardLaunch.destination";
    static constexpr std::string_view requestIDDefaultsKey = "karvello.dashboardLaunch.requestID";

    /// Gives the identifier of the request: `requestID`, or a new one. After a failure no part of the request is stored.
    static std::expected<std::string, Platform::FileError> request(KarvelloDashboardLaunchDestination destination,
        Platform::UserDefaults& defaults, std::optional<std::string> requestID = std::nullopt,
        const std::function<Platform::Date()>& now = Platform::Date::now);
    /// Nothing if there is none, or only a part of one, or a destination that nobody knows.
    [[nodiscard]] static std::optional<KarvelloDashboardLaunchRequest> pendingRequest(
        const Platform::UserDefaults& defaults);
    /// The pending request's destination. What was stored is gone then, whatever it was.
    static std::optional<KarvelloDashboardLaunchDestination> consumePending(Platform::UserDefaults& defaults);
    /// What cannot be removed stays for the next to take; there is nothing else to do about it.
    static void clear(Platform::UserDefaults& defaults);
};

} // namespace KarvelloUI
