#pragma once

#include "KarvelloUI/Design/DynamicTypeSize.h"
#include "KarvelloUI/Design/KarvelloTextScale.h"

#include <cstdint>

namespace KarvelloUI {

/// The values are the weights of OpenType.
enum class KarvelloFontWeight : std::uint16_t { regular = 400, medium = 500, semibold = 600 };

enum class KarvelloFontDesign : std::uint8_t { standard, monospaced };

/// A font before it is scaled.
struct KarvelloFontSpec {
    /// Points; a point is a pixel of the unscaled window.
    double size = 13;
    KarvelloFontWeight weight = KarvelloFontWeight::regular;
    KarvelloFontDesign design = KarvelloFontDesign::standard;

    friend bool operator==(const KarvelloFontSpec&, const KarvelloFontSpec&) = default;
};

/// What a text is for; its looks follow.
enum class KarvelloTextStyle : std::uint8_t {
    /// One figure a screen.
    display,
    title,
    dialogTitle,
    heading,
    body,
    small,
    label,
    onboardingTitle,
    onboardingBody,
};

namespace KarvelloDesign {

[[nodiscard]] KarvelloFontSpec fontSpec(KarvelloTextStyle style);
/// The height of a line over the size of its font, both unscaled.
[[nodiscard]] double lineHeightRatio(KarvelloTextStyle style);

/// The size on the screen: a whole number, at least 1. A user may have both a larger scale and a larger system, and they
/// multiply.
[[nodiscard]] int scaledFontSize(double baseSize, KarvelloTextScale scale, DynamicTypeSize dynamicTypeSize);

} // namespace KarvelloDesign

} // namespace KarvelloUI
