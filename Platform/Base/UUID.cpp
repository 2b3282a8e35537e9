#include "Platform/Base/UUID.h"

#include "Platform/Base/HexDigits.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace Platform {

namespace {

constexpr std::size_t kTextLength = 36;

constexpr bool isHyphenPosition(std::size_t index)
{
    return index == 8 || index == 13 || index == 18 || index == 23;
}

} // namespace

UUID UUID::random()
{
    UUID uuid;
    // Up to 256 bytes come whole, or not at all.
    while (::getentropy(uuid.bytes.data(), uuid.bytes.size()) != 0) {
        if (errno != EINTR) {
            std::fputs("Karvello stops: the system gives no random numbers.\n", stderr);
            std::abort();
        }
    }
    uuid.bytes[6] = static_cast<std::uint8_t>((uuid.bytes[6] & 0x0FU) | 0x40U);
    uuid.bytes[8] = static_cast<std::uint8_t>((uuid.bytes[8] & 0x3FU) | 0x80U);
    return uuid;
}

std::optional<UUID> UUID::fromString(std::string_view text)
{
    if (text.size() != kTextLength) {
        return std::nullopt;
    }
    UUID uuid;
    std::size_t digits = 0;
    for (std::size_t index = 0; index < kTextLength; ++index) {
        if (isHyphenPosition(index)) {
            if (text[index] != '-') {
                return std::nullopt;
            }
            continue;
        }
        const auto digit = valueOfHexDigit(text[index]);
        if (!digit) {
            return std::nullopt;
        }
        auto& byte = uuid.bytes[digits / 2];
        byte = static_cast<std::uint8_t>((static_cast<unsigned>(byte) << 4U) | *digit);
        ++digits;
    }
    return uuid;
}

std::string UUID::string() const
{
    std::string text;
    text.reserve(kTextLength);
    for (const auto byte : bytes) {
        if (isHyphenPosition(text.size())) {
            text += '-';
        }
        appendHexDigits(text, byte);
    }
    return text;
}

} // namespace Platform
