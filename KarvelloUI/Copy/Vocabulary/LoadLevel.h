#pragma once

#include <cstdint>
#include <string_view>

namespace KarvelloUI {

/// How hard the machine works, as the analysis screens tell it.
enum class LoadLevel : std::uint8_t { nominal, elevated, high };

/// The marks are those of the words for memory, so that both screens mean the same. `load` is from 0 to 1.
[[nodiscard]] constexpr LoadLevel loadLevelOfCPU(double load)
{
    constexpr double kElevated = 0.7;
    constexpr double kHigh = 0.85;
    if (load >= kHigh) {
        return LoadLevel::high;
    }
    return load >= kElevated ? LoadLevel::elevated : LoadLevel::nominal;
}

/// `pressure` is the word of a `SystemResourceSnapshot`.
[[nodiscard]] constexpr LoadLevel loadLevelOfMemory(std::string_view pressure)
{
    if (pressure == "High") {
        return LoadLevel::high;
    }
    return pressure == "Moderate" ? LoadLevel::elevated : LoadLevel::nominal;
}

} // namespace KarvelloUI
