#include "KarvelloUI/MenuBar/KarvelloMenuBarStatusOptions.h"

#include "Platform/Services/HomeDirectory.h"

#include <chrono>

namespace KarvelloUI {

KarvelloMenuBarStatusSnapshot KarvelloMenuBarStatusProviders::currentSnapshot()
{
    return KarvelloMenuBarStatusSnapshot::current(Platform::homeDirectoryForCurrentUser());
}

std::uint64_t KarvelloMenuBarStatusProviders::currentUptime()
{
    const auto uptime = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(std::chrono::nanoseconds(uptime).count());
}

} // namespace KarvelloUI
