#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Bytes as text (RFC 4648, section 4): the alphabet with "+" and "/", padded, on one line.
namespace Platform::Base64 {

[[nodiscard]] std::string encode(std::string_view bytes);
/// Nothing for a text that `encode` gives for no bytes.
[[nodiscard]] std::optional<std::string> decode(std::string_view text);

} // namespace Platform::Base64
