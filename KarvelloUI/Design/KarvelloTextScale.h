#pragma once

#include "Platform/Base/RawValue.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace KarvelloUI {

/// How large the user wants texts, beside what the system asks for.
enum class KarvelloTextScale : std::uint8_t { standard, large, extraLarge };

/// Where the text scale is kept, and what holds as long as nothing is kept there.
struct KarvelloTextScaleKey {
    static constexpr std::string_view storageKey = "karvello.textScale";
    static constexpr KarvelloTextScale defaultValue = KarvelloTextScale::standard;
};

[[nodiscard]] constexpr double factor(KarvelloTextScale scale)
{
    switch (scale) {
    case KarvelloTextScale::standard:
        break;
    case KarvelloTextScale::large:
        return 1.16;
    case KarvelloTextScale::extraLarge:
        return 1.38;
    }
    return 1.0;
}

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::KarvelloTextScale> {
    static constexpr std::array<std::string_view, 3> names{"standard", "large", "extraLarge"};
};
