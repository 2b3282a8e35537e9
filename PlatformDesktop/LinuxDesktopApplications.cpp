#include "PlatformDesktop/LinuxDesktopApplications.h"

#include "PlatformDesktop/HeldProcesses.h"
#include "PlatformDesktop/ManagedWindows.h"
#include "PlatformDesktop/SessionBus.h"

#include <algorithm>
#include <iterator>
#include <sys/utsname.h>
#include <utility>
#include <vector>

namespace PlatformDesktop {

using Platform::RunningApplication;

namespace {

bool requestByAction(const SessionBus& bus, const std::string& identifier, const HeldProcesses& processes)
{
    const auto owner = bus.ownerOf(identifier);
    return owner && processes.contains(owner->process) && bus.offersQuit(*owner, identifier)
        && processes.contains(owner->process) && bus.activateQuit(*owner, identifier);
}

/// Windows of other programs that an application has started, as a terminal does, are none of its own. Where the process
/// that stands for it only launched another, that one's windows are meant.
std::vector<ManagedWindows::Window> windowsOf(const HeldProcesses& processes, const ManagedWindows& display)
{
    const auto all = display.closableWindows();
    for (const auto& program : processes.byProgram()) {
        std::vector<ManagedWindows::Window> windows;
        std::ranges::copy_if(all, std::back_inserter(windows), [&program](const ManagedWindows::Window& window) {
            return std::ranges::find(program, window.process) != program.end();
        });
        if (!windows.empty()) {
            return windows;
        }
    }
    return {};
}

bool requestByWindows(const ManagedWindows& display, const HeldProcesses& processes)
{
    bool isAsked = false;
    for (const auto& window : windowsOf(processes, display)) {
        if (processes.contains(window.process)) {
            isAsked = display.requestClose(window) || isAsked;
        }
    }
    return isAsked;
}

} // namespace

LinuxDesktopApplications::Settings LinuxDesktopApplications::Settings::current(const Platform::Environment& environment)
{
    utsname machine{};
    const bool hasName = uname(&machine) == 0;
    return {
        .display = environment.value("DISPLAY").value_or(""),
        .hasSessionBus = SessionBus::isOffered(environment),
        .hostName = hasName ? std::string(machine.nodename) : std::string(),
    };
}

LinuxDesktopApplications::LinuxDesktopApplications(Settings settings)
    : m_settings(std::move(settings))
{
}

bool LinuxDesktopApplications::canRequestQuit() const
{
    return (m_settings.hasSessionBus && SessionBus().isConnected())
        || ManagedWindows::open(m_settings.display, m_settings.hostName);
}

std::optional<std::int32_t> LinuxDesktopApplications::frontmostProcess() const
{
    const auto display = ManagedWindows::open(m_settings.display, m_settings.hostName);
    return display ? display->activeProcess() : std::nullopt;
}

bool LinuxDesktopApplications::requestQuit(const RunningApplication& application) const
{
    const HeldProcesses processes(m_settings.procRoot, application.processes);
    if (application.processes.empty() || !processes.contains(application.processes.front())) {
        return false;
    }
    if (m_settings.hasSessionBus && application.bundleIdentifier) {
        const SessionBus bus;
        if (bus.isConnected() && requestByAction(bus, *application.bundleIdentifier, processes)) {
            return true;
        }
    }
    const auto display = ManagedWindows::open(m_settings.display, m_settings.hostName);
    return display && requestByWindows(*display, processes);
}

} // namespace PlatformDesktop
