#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Platform {

/// What the control group of a process tells of the application that it belongs to. Desktops start each application in
/// a unit of its own (systemd, DESKTOP_ENVIRONMENTS.md):
///
///     app[-<launcher>]-<id>-<random>.scope        app[-<launcher>]-<id>[@<random>].service
///     snap.<package>.<app>-<uuid>.scope           dbus-:1.2-<id>@0.service
struct ApplicationUnit {
    enum class Kind : std::uint8_t {
        application,
        /// A part of the desktop itself: everything in "session.slice".
        desktop,
    };

    Kind kind = Kind::application;
    /// The path of the unit: processes of one unit are one application.
    std::string path;
    /// What the application may be called, the likeliest first. Launchers do not all escape the dashes of an id, so
    /// which of these it is can only be told by what desktop files there are.
    std::vector<std::string> identifiers;

    /// `text` is that of /proc/PID/cgroup. Nothing if the process is in no unit of these kinds.
    static std::optional<ApplicationUnit> fromControlGroups(std::string_view text);
};

} // namespace Platform
