#pragma once

#include <cstddef>
#include <string_view>

namespace KarvelloCLI {

/// From so many columns on, a table shows more than what it is for.
inline constexpr std::size_t kWideTable = 76;
/// From so many columns on, it shows all that there is to tell.
inline constexpr std::size_t kVeryWideTable = 120;

/// What stands between two columns of a table.
inline constexpr std::string_view kColumnGap = "  ";
/// A mark in front of a line, and the blank behind it.
inline constexpr std::size_t kMarkWidth = 2;

} // namespace KarvelloCLI
