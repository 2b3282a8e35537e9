#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace KarvelloCLI {

enum class SparkGlyphs : std::uint8_t {
    /// Digits from 0 to 9, for terminals that show nothing else.
    ascii,
    /// Blocks of eight heights.
    blocks,
};

/// The last `columns` of some fractions from 0 to 1, the newest at the right, a column each.
[[nodiscard]] std::string sparkline(std::span<const double> fractions, std::size_t columns, SparkGlyphs glyphs);

} // namespace KarvelloCLI
