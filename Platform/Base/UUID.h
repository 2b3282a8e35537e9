#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Platform {

/// A universally unique identifier (RFC 4122).
struct UUID {
    std::array<std::uint8_t, 16> bytes{};

    /// A new one of version 4, from the system's random source.
    static UUID random();
    /// Reads the 36 characters of the text form; letters of either case. Anything else gives nothing.
    static std::optional<UUID> fromString(std::string_view text);

    /// "9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F10": upper case.
    [[nodiscard]] std::string string() const;

    /// The order is that of the texts.
    friend auto operator<=>(const UUID&, const UUID&) = default;
};

} // namespace Platform
