#pragma once

#include <string_view>

namespace KarvelloUI {

/// Whether a pressure or a thermal state of a `SystemResourceSnapshot` says anything. In place of one that does not, screens
/// show a dash.
[[nodiscard]] constexpr bool isKnownState(std::string_view state)
{
    return !state.empty() && state != "Unknown";
}

} // namespace KarvelloUI
