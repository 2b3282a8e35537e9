#include "Platform/Base/PercentEncoding.h"

#include "Platform/Base/HexDigits.h"

#include <array>
#include <cstddef>

namespace Platform {

namespace {

constexpr auto kUnescapedBytes = [] {
    std::array<bool, 256> allowed{};
    for (const char byte :
        std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~!$&'()*+,=:@/")) {
        allowed[static_cast<unsigned char>(byte)] = true;
    }
    return allowed;
}();

} // namespace

std::string percentEncoded(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        if (kUnescapedBytes[value]) {
            text += byte;
        } else {
            text += '%';
            appendHexDigits(text, value);
        }
    }
    return text;
}

std::optional<std::string> percentDecoded(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] != '%') {
            bytes += text[index];
            continue;
        }
        if (index + 2 >= text.size()) {
            return std::nullopt;
        }
        const auto high = valueOfHexDigit(text[index + 1]);
        const auto low = valueOfHexDigit(text[index + 2]);
        if (!high || !low || *high * 16 + *low == 0) {
            return std::nullopt;
        }
        bytes += static_cast<char>(*high * 16 + *low);
        index += 2;
    }
    return bytes;
}

} // namespace Platform
