#include "Platform/Base/Base64.h"

#include <algorithm>
#include <cstddef>
#include <openssl/evp.h>

namespace Platform::Base64 {

namespace {

// The library counts in int, so a long text goes through it in pieces.
constexpr std::size_t kGroupBytes = 3;
constexpr std::size_t kGroupLetters = 4;
constexpr std::size_t kGroups = std::size_t{1} << 20U;

const unsigned char* data(std::string_view text)
{
    return reinterpret_cast<const unsigned char*>(text.data());
}

unsigned char* tail(std::string& text, std::size_t offset)
{
    return reinterpret_cast<unsigned char*>(text.data() + offset);
}

} // namespace

std::string encode(std::string_view bytes)
{
    std::string text((bytes.size() + kGroupBytes - 1) / kGroupBytes * kGroupLetters + 1, '\0');
    std::size_t length = 0;
    while (!bytes.empty()) {
        const auto piece = bytes.substr(0, kGroups * kGroupBytes);
        length +=
            static_cast<std::size_t>(EVP_EncodeBlock(tail(text, length), data(piece), static_cast<int>(piece.size())));
        bytes.remove_prefix(piece.size());
    }
    text.resize(length); // The library ends what it writes with a NUL.
    return text;
}

std::optional<std::string> decode(std::string_view text)
{
    if (text.size() % kGroupLetters != 0) {
        return std::nullopt;
    }
    std::string bytes(text.size() / kGroupLetters * kGroupBytes, '\0');
    std::size_t length = 0;
    for (auto rest = text; !rest.empty();) {
        const auto piece = rest.substr(0, kGroups * kGroupLetters);
        const int count = EVP_DecodeBlock(tail(bytes, length), data(piece), static_cast<int>(piece.size()));
        if (count < 0) {
            return std::nullopt;
        }
        length += static_cast<std::size_t>(count);
        rest.remove_prefix(piece.size());
    }
    const auto padding = text.size() - std::min(text.find_last_not_of('=') + 1, text.size());
    if (padding >= kGroupBytes || padding > length) {
        return std::nullopt;
    }
    bytes.resize(length - padding);
    // The library passes over blanks at the ends, and over bits that belong to no byte.
    return encode(bytes) == text ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace Platform::Base64
