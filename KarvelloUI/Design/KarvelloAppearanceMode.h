#pragma once

#include "Platform/Base/RawValue.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace KarvelloUI {

enum class ColorScheme : std::uint8_t { light, dark };

/// What the user chose for the window and the popover alike.
enum class KarvelloAppearanceMode : std::uint8_t { system, light, dark };

inline constexpr std::string_view kAppearanceModeKey = "karvello.appearanceMode";

/// `system` follows the platform, the others force their scheme.
[[nodiscard]] constexpr ColorScheme colorScheme(KarvelloAppearanceMode mode, ColorScheme ofPlatform)
{
    switch (mode) {
    case KarvelloAppearanceMode::system:
        break;
    case KarvelloAppearanceMode::light:
        return ColorScheme::light;
    case KarvelloAppearanceMode::dark:
        return ColorScheme::dark;
    }
    return ofPlatform;
}

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::KarvelloAppearanceMode> {
    static constexpr std::array<std::string_view, 3> names{"system", "light", "dark"};
};
