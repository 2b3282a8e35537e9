#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>

/// What can be said of a text without knowing Unicode, for the places that are passed once for every file of a disk.
namespace Platform::ASCII {

[[nodiscard]] constexpr char lowercased(char byte)
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

[[nodiscard]] constexpr bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

/// Whether `text` is `lowercase`, which has no capital letter, but for the case of ASCII letters.
[[nodiscard]] constexpr bool equalsIgnoringCase(std::string_view text, std::string_view lowercase)
{
    return std::equal(text.begin(), text.end(), lowercase.begin(), lowercase.end(),
        [](char byte, char other) { return lowercased(byte) == other; });
}

/// Whether every byte is below 0x80. Looks at whole words; the last one may overlap the one before.
[[nodiscard]] inline bool isASCII(std::string_view text)
{
    const auto load = [](const char* bytes, auto word) {
        std::memcpy(&word, bytes, sizeof word);
        return word;
    };
    const char* const start = text.data();
    const char* const end = start + text.size();
    if (text.size() >= sizeof(std::uint64_t)) {
        auto seen = load(end - sizeof(std::uint64_t), std::uint64_t{});
        for (const char* word = start; word < end - sizeof(std::uint64_t); word += sizeof(std::uint64_t)) {
            seen |= load(word, std::uint64_t{});
        }
        return (seen & 0x8080808080808080U) == 0;
    }
    if (text.size() >= sizeof(std::uint32_t)) {
        const auto seen = load(start, std::uint32_t{}) | load(end - sizeof(std::uint32_t), std::uint32_t{});
        return (seen & 0x80808080U) == 0;
    }
    return std::all_of(start, end, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

} // namespace Platform::ASCII
