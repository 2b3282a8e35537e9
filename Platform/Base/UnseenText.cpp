#include "Platform/Base/UnseenText.h"

#include "Platform/Base/Text.h"

#include <algorithm>
#include <cstdint>
#include <fmt/format.h>
#include <unicode/uchar.h>

namespace Platform::Text {

namespace {

constexpr char32_t kZeroWidthNonJoiner = 0x200C;
constexpr char32_t kZeroWidthJoiner = 0x200D;

bool isMark(UChar32 character)
{
    const auto category = u_charType(character);
    return category == U_NON_SPACING_MARK || category == U_ENCLOSING_MARK;
}

/// Controls, line separators, everything of the bidirectional algorithm that has no shape, and characters that are drawn as
/// nothing.
bool isUnseen(char32_t scalar)
{
    if (scalar == kZeroWidthNonJoiner || scalar == kZeroWidthJoiner) {
        return false;
    }
    const auto character = static_cast<UChar32>(scalar);
    switch (u_charType(character)) {
    case U_CONTROL_CHAR:
    case U_LINE_SEPARATOR:
    case U_PARAGRAPH_SEPARATOR:
    case U_SURROGATE:
        return true;
    default:
        break;
    }
    return u_hasBinaryProperty(character, UCHAR_BIDI_CONTROL) != 0
        || u_hasBinaryProperty(character, UCHAR_NONCHARACTER_CODE_POINT) != 0
        || (u_hasBinaryProperty(character, UCHAR_DEFAULT_IGNORABLE_CODE_POINT) != 0 && !isMark(character));
}

bool isPlainASCII(char byte)
{
    return byte >= ' ' && byte <= '~';
}

} // namespace

std::optional<std::string> escapeOfUnseen(char32_t scalar)
{
    switch (scalar) {
    case '\n':
        return "\\n";
    case '\t':
        return "\\t";
    case '\r':
        return "\\r";
    default:
        break;
    }
    if (!isUnseen(scalar)) {
        return std::nullopt;
    }
    const auto value = static_cast<std::uint32_t>(scalar);
    if (value < 0x80) {
        return fmt::format("\\x{:02x}", value);
    }
    return value <= 0xFFFF ? fmt::format("\\u{:04x}", value) : fmt::format("\\U{:08x}", value);
}

std::string escapingUnseen(std::string_view bytes)
{
    if (std::ranges::all_of(bytes, isPlainASCII)) {
        return std::string(bytes);
    }
    const std::string text = escapingInvalidUTF8(bytes);
    std::string result;
    result.reserve(text.size());
    for (std::string_view rest = text; !rest.empty();) {
        const std::string_view before = rest;
        const char32_t scalar = takeScalar(rest);
        if (const auto escape = escapeOfUnseen(scalar)) {
            result += *escape;
        } else {
            result += before.substr(0, before.size() - rest.size());
        }
    }
    return result;
}

} // namespace Platform::Text
