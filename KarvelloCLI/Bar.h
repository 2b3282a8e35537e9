#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace KarvelloCLI {

enum class BarGlyphs : std::uint8_t {
    /// "#", for terminals that show nothing else.
    ascii,
    /// Blocks in steps of an eighth of a column.
    blocks,
};

/// A bar for a part of the largest one, which is `columns` wide. What is more than nothing shows at least a trace; no
/// bar is wider than its room, and none ends in blanks.
[[nodiscard]] std::string bar(std::int64_t part, std::int64_t largest, std::size_t columns, BarGlyphs glyphs);

} // namespace KarvelloCLI
