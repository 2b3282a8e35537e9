#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Platform {

/// Digits of either case.
[[nodiscard]] constexpr std::optional<unsigned> valueOfHexDigit(char digit)
{
    if (digit >= '0' && digit <= '9') {
        return static_cast<unsigned>(digit - '0');
    }
    if (digit >= 'A' && digit <= 'F') {
        return static_cast<unsigned>(digit - 'A' + 10);
    }
    if (digit >= 'a' && digit <= 'f') {
        return static_cast<unsigned>(digit - 'a' + 10);
    }
    return std::nullopt;
}

/// Appends the two upper-case digits of a byte.
inline void appendHexDigits(std::string& text, std::uint8_t byte)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    text += digits[byte >> 4U];
    text += digits[byte & 15U];
}

} // namespace Platform
