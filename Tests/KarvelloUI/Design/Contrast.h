#pragma once

#include "KarvelloUI/Design/Color.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace KarvelloUI {

/// What WCAG 2.1 asks for text of usual size (criterion 1.4.3).
constexpr double kReadableContrast = 4.5;

/// WCAG 2.1, "relative luminance".
inline double relativeLuminance(const Color& color)
{
    const auto linear = [](std::uint8_t channel) {
        const double value = channel / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

/// WCAG 2.1, "contrast ratio": 1 to 21.
inline double contrastRatio(const Color& left, const Color& right)
{
    const auto [darker, lighter] = std::minmax({relativeLuminance(left), relativeLuminance(right)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// `top` at an opacity of 0 to 1 over `ground`, as the screen blends it.
inline Color blended(const Color& top, const Color& ground, double opacity)
{
    const auto mixed = [opacity](std::uint8_t over, std::uint8_t under) {
        return static_cast<std::uint8_t>(std::lround(over * opacity + under * (1 - opacity)));
    };
    return {.red = mixed(top.red, ground.red),
        .green = mixed(top.green, ground.green),
        .blue = mixed(top.blue, ground.blue)};
}

} // namespace KarvelloUI
