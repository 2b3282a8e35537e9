#include "KarvelloCLI/Sparkline.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace KarvelloCLI {

namespace {

constexpr std::array<std::string_view, 8> kSparkBlocks{"▁", "▂", "▃", "▄", "▅", "▆", "▇", "█"};
constexpr std::array<std::string_view, 10> kDigits{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"};

std::string_view glyphOf(double fraction, std::span<const std::string_view> glyphs)
{
    const auto steps = static_cast<double>(glyphs.size());
    const auto step = static_cast<std::size_t>(std::clamp(fraction, 0.0, 1.0) * steps);
    return glyphs[std::min(step, glyphs.size() - 1)];
}

} // namespace

std::string sparkline(std::span<const double> fractions, std::size_t columns, SparkGlyphs glyphs)
{
    const std::span<const std::string_view> table =
        glyphs == SparkGlyphs::blocks ? std::span<const std::string_view>(kSparkBlocks) : kDigits;
    std::string text;
    for (const double fraction : fractions.last(std::min(columns, fractions.size()))) {
        text += glyphOf(fraction, table);
    }
    return text;
}

} // namespace KarvelloCLI
