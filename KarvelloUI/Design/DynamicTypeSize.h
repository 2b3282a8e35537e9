#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace KarvelloUI {

/// The size of text that the system asks of every application. `large` is where a system starts.
enum class DynamicTypeSize : std::uint8_t {
    xSmall,
    small,
    medium,
    large,
    xLarge,
    xxLarge,
    xxxLarge,
    accessibility1,
    accessibility2,
    accessibility3,
    accessibility4,
    accessibility5,
};

[[nodiscard]] constexpr double factor(DynamicTypeSize size)
{
    constexpr std::array factors{0.9, 0.95, 0.98, 1.0, 1.08, 1.16, 1.24, 1.32, 1.45, 1.58, 1.72, 1.85};
    static_assert(factors.size() == static_cast<std::size_t>(DynamicTypeSize::accessibility5) + 1);
    return factors[static_cast<std::size_t>(size)];
}

/// The step whose factor is closest to that of a system that tells a factor of its own; the smaller one of two as close.
/// What is no finite number counts as 1.
[[nodiscard]] DynamicTypeSize closestDynamicTypeSize(double systemFactor);

} // namespace KarvelloUI
