#include "KarvelloUI/Design/KarvelloFontSpec.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace KarvelloUI::KarvelloDesign {

namespace {

struct TextStyleRow {
    double size = 0;
    double lineHeight = 0;
    KarvelloFontWeight weight = KarvelloFontWeight::regular;
};

// In the order of the enumeration.
constexpr std::array<TextStyleRow, 9> kTextStyles{{
    {.size = 44, .lineHeight = 48, .weight = KarvelloFontWeight::semibold},
    {.size = 22, .lineHeight = 28, .weight = KarvelloFontWeight::semibold},
    {.size = 18, .lineHeight = 24, .weight = KarvelloFontWeight::semibold},
    {.size = 15, .lineHeight = 20, .weight = KarvelloFontWeight::semibold},
    {.size = 13, .lineHeight = 18, .weight = KarvelloFontWeight::regular},
    {.size = 12, .lineHeight = 16, .weight = KarvelloFontWeight::regular},
    {.size = 11, .lineHeight = 16, .weight = KarvelloFontWeight::medium},
    {.size = 36, .lineHeight = 44, .weight = KarvelloFontWeight::semibold},
    {.size = 15, .lineHeight = 24, .weight = KarvelloFontWeight::regular},
}};
static_assert(kTextStyles.size() == static_cast<std::size_t>(KarvelloTextStyle::onboardingBody) + 1);

const TextStyleRow& row(KarvelloTextStyle style)
{
    return kTextStyles[static_cast<std::size_t>(style)];
}

} // namespace

KarvelloFontSpec fontSpec(KarvelloTextStyle style)
{
    return {.size = row(style).size, .weight = row(style).weight};
}

double lineHeightRatio(KarvelloTextStyle style)
{
    return row(style).lineHeight / row(style).size;
}

int scaledFontSize(double baseSize, KarvelloTextScale scale, DynamicTypeSize dynamicTypeSize)
{
    // No screen shows more, and a size that is not a number is none.
    constexpr double kMostPoints = 10'000;
    const double size = std::round(baseSize * factor(scale) * factor(dynamicTypeSize));
    return size >= 1 ? static_cast<int>(std::min(size, kMostPoints)) : 1;
}

} // namespace KarvelloUI::KarvelloDesign
