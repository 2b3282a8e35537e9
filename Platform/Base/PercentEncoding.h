#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Platform {

/// The path of a URL for these bytes: RFC 3986's characters of a path and "/" stand for themselves (but for ";", which
/// older readers take for a parameter), every other byte becomes "%HH" in upper case.
[[nodiscard]] std::string percentEncoded(std::string_view bytes);

/// The bytes; nothing for a "%" without two hexadecimal digits behind it, and for an encoded NUL.
[[nodiscard]] std::optional<std::string> percentDecoded(std::string_view text);

} // namespace Platform
