#pragma once

#include "Platform/Services/DesktopApplications.h"
#include "Platform/Services/Environment.h"

#include <string>

namespace PlatformDesktop {

/// Asks as the shells of Linux desktops do: by the action "quit" that an application offers on the session bus under its
/// identifier, and where there is none by asking each of its windows to close, which only X displays allow. Wayland has
/// no such request, so there an application without the action is not asked.
///
/// Right before it asks, it looks once more whether the process is still the one that was named: a process is held by its
/// folder below /proc, which dies with it.
class LinuxDesktopApplications final : public Platform::DesktopApplications {
public:
    struct Settings {
        std::string procRoot = "/proc";
        /// Empty: there is none.
        std::string display = {};
        /// Otherwise the library would look for one, and start one.
        bool hasSessionBus = false;
        /// What the windows of programs on this machine say of it.
        std::string hostName = {};

        /// Those of the session that this process runs in.
        static Settings current(const Platform::Environment& environment);
    };

    explicit LinuxDesktopApplications(Settings settings);

    [[nodiscard]] bool canRequestQuit() const override;
    [[nodiscard]] std::optional<std::int32_t> frontmostProcess() const override;
    [[nodiscard]] bool requestQuit(const Platform::RunningApplication& application) const override;

private:
    Settings m_settings;
};

} // namespace PlatformDesktop
