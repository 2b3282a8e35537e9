#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Platform::Text {

/// What stands for a character that breaks the line, reorders it or cannot be seen: "\n", "\x1b", "\u202e". Nothing for one
/// that may be shown as it is; joiners may, since Persian words and emoji are made with them.
[[nodiscard]] std::optional<std::string> escapeOfUnseen(char32_t scalar);

/// A name or path as one line that shows all that it holds: with these escapes, and "\xHH" for each byte that is part of no
/// character. Backslashes stay as they are.
[[nodiscard]] std::string escapingUnseen(std::string_view bytes);

} // namespace Platform::Text
