#include "KarvelloCLI/Bar.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace KarvelloCLI {

namespace {

/// From one eighth to a whole column.
constexpr std::array<std::string_view, 8> kBarBlocks{"▏", "▎", "▍", "▌", "▋", "▊", "▉", "█"};

} // namespace

std::string bar(std::int64_t part, std::int64_t largest, std::size_t columns, BarGlyphs glyphs)
{
    if (part <= 0 || largest <= 0 || columns == 0) {
        return {};
    }
    const std::size_t steps = glyphs == BarGlyphs::blocks ? kBarBlocks.size() : 1;
    const std::size_t longest = columns * steps;
    const double share = std::min(static_cast<double>(part) / static_cast<double>(largest), 1.0);
    const auto rounded = static_cast<std::size_t>(std::lround(share * static_cast<double>(longest)));
    const std::size_t length = std::clamp(rounded, std::size_t{1}, longest);
    if (glyphs == BarGlyphs::ascii) {
        return std::string(length, '#');
    }
    std::string text;
    for (std::size_t column = 0; column < length / steps; ++column) {
        text += kBarBlocks.back();
    }
    if (const std::size_t rest = length % steps; rest > 0) {
        text += kBarBlocks[rest - 1];
    }
    return text;
}

} // namespace KarvelloCLI
