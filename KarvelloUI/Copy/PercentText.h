#pragma once

#include <algorithm>
#include <cmath>
#include <fmt/format.h>
#include <string>

namespace KarvelloUI {

/// "42%", the same in every language. A fraction outside of 0 to 1 counts as the nearer end; "—" for what is no number.
[[nodiscard]] inline std::string percentText(double fraction)
{
    return std::isfinite(fraction) ? fmt::format("{}%", std::lround(std::clamp(fraction, 0.0, 1.0) * 100)) : "—";
}

} // namespace KarvelloUI
