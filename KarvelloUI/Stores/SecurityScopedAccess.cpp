#include "KarvelloUI/Stores/SecurityScopedAccess.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace KarvelloUI {

namespace {

/// The container of a sandboxed application of macOS, of Flatpak and of snap.
constexpr std::array<std::string_view, 3> kSandboxKeys{"APP_SANDBOX_CONTAINER_ID", "FLATPAK_ID", "SNAP"};

} // namespace

bool requiresSecurityScopedAccess(std::optional<bool> known, const Platform::Environment& environment)
{
    return known.value_or(std::any_of(
        kSandboxKeys.begin(), kSandboxKeys.end(), [&](std::string_view key) { return environment.holds(key); }));
}

} // namespace KarvelloUI
