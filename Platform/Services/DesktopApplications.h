#pragma once

#include "Platform/Services/RunningApplications.h"

#include <cstdint>
#include <optional>

namespace Platform {

/// What only the desktop of this session knows of applications, and what it lets one ask of them. Every call may be made
/// from any thread, and waits for other programs: a few seconds where one of them does not answer.
class DesktopApplications {
public:
    DesktopApplications() = default;
    DesktopApplications(const DesktopApplications&) = delete;
    DesktopApplications& operator=(const DesktopApplications&) = delete;
    virtual ~DesktopApplications() = default;

    /// Whether the desktop has any way to ask an application to quit. One application may still have none.
    [[nodiscard]] virtual bool canRequestQuit() const = 0;
    /// The process whose window the user works in. Nothing where the desktop does not tell.
    [[nodiscard]] virtual std::optional<std::int32_t> frontmostProcess() const = 0;
    /// Asks the application to quit as its own menu or the button of its window would: it may ask its user to save, and
    /// it may refuse. Never ends a process. False: it was not asked, because this desktop has no way to, or because its
    /// processes are no longer those that `application` names.
    [[nodiscard]] virtual bool requestQuit(const RunningApplication& application) const = 0;
};

} // namespace Platform
