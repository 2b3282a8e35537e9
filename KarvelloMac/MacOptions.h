#pragma once

#include "KarvelloUI/Stores/KarvelloDashboardLaunchRequest.h"

#include <QStringList>
#include <expected>
#include <optional>
#include <string>

namespace KarvelloMac {

/// What the command line asks of the application.
struct MacOptions {
    /// Where the window opens.
    KarvelloUI::KarvelloDashboardLaunchDestination destination =
        KarvelloUI::KarvelloDashboardLaunchDestination::dashboard;
    /// To be printed, and nothing else is to be done.
    std::optional<std::string> information = {};

    /// `arguments` begin with the program; what is meant for the toolkit among them is left to it. The error is a sentence for the user.
    static std::expected<MacOptions, std::string> parse(const QStringList& arguments);
};

/// The action of the desktop entry for a destination, and back; nothing for an action that nobody knows.
[[nodiscard]] std::string actionOf(KarvelloUI::KarvelloDashboardLaunchDestination destination);
[[nodiscard]] std::optional<KarvelloUI::KarvelloDashboardLaunchDestination> destinationOf(const std::string& action);

} // namespace KarvelloMac
