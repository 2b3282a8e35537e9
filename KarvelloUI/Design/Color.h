#pragma once

#include <cstdint>

namespace KarvelloUI {

/// An opaque colour in sRGB.
struct Color {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    /// Reads `0xRRGGBB`.
    static constexpr Color fromRGB(std::uint32_t rgb)
    {
        return {.red = static_cast<std::uint8_t>(rgb >> 16U),
            .green = static_cast<std::uint8_t>(rgb >> 8U),
            .blue = static_cast<std::uint8_t>(rgb)};
    }

    friend bool operator==(const Color&, const Color&) = default;
};

} // namespace KarvelloUI
