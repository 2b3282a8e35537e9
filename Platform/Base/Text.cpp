#include "Platform/Base/Text.h"

#include "Platform/Base/HexDigits.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/uchar.h>
#include <unicode/utf8.h>

namespace Platform::Text {

namespace {

constexpr char32_t kReplacementCharacter = 0xFFFD;

bool isASCII(char byte)
{
    return static_cast<unsigned char>(byte) < 0x80;
}

/// Most texts are ASCII from end to end, and eight bytes are looked at as cheaply as one.
std::size_t lengthOfASCIIPrefix(std::string_view bytes)
{
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    std::size_t length = 0;
    for (; length + sizeof(std::uint64_t) <= bytes.size(); length += sizeof(std::uint64_t)) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes.data() + length, sizeof word);
        if ((word & highBits) != 0) {
            break;
        }
    }
    while (length < bytes.size() && isASCII(bytes[length])) {
        ++length;
    }
    return length;
}

// ICU's macros convert between signed and unsigned bytes without saying so.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"

/// Takes one character off the front of `rest`, at most four bytes. Of a malformed one only its first byte goes, and
/// the answer is negative.
UChar32 takeCharacter(std::string_view& rest)
{
    const auto window = static_cast<std::int32_t>(std::min<std::size_t>(rest.size(), U8_MAX_LENGTH));
    std::int32_t length = 0;
    UChar32 character = 0;
    U8_NEXT(rest.data(), length, window, character);
    rest.remove_prefix(character < 0 ? 1 : static_cast<std::size_t>(length));
    return character;
}

/// The same at the end of `rest`.
UChar32 takeLastCharacter(std::string_view& rest)
{
    const auto window = static_cast<std::int32_t>(std::min<std::size_t>(rest.size(), U8_MAX_LENGTH));
    const char* const start = rest.data() + rest.size() - window;
    std::int32_t index = window;
    UChar32 character = 0;
    U8_PREV(start, 0, index, character);
    rest.remove_suffix(character < 0 ? 1 : static_cast<std::size_t>(window - index));
    return character;
}

void appendScalar(std::string& text, char32_t scalar)
{
    if (scalar < 0x80) {
        text += static_cast<char>(scalar);
        return;
    }
    const auto codePoint = static_cast<UChar32>(scalar);
    char bytes[U8_MAX_LENGTH];
    std::int32_t length = 0;
    UBool isError = false;
    U8_APPEND(bytes, length, U8_MAX_LENGTH, codePoint, isError);
    if (isError) {
        appendScalar(text, kReplacementCharacter);
        return;
    }
    text.append(bytes, static_cast<std::size_t>(length));
}

#pragma GCC diagnostic pop

bool isInCategories(char32_t scalar, std::uint32_t categories)
{
    return (U_GET_GC_MASK(static_cast<UChar32>(scalar)) & categories) != 0;
}

void appendLowercased(std::string& result, std::string_view validText)
{
    // ICU counts in 32 bits, and lower-casing can triple a text.
    if (validText.size() > std::numeric_limits<std::int32_t>::max() / 4) {
        result.append(validText);
        return;
    }
    UErrorCode status = U_ZERO_ERROR;
    std::string lower;
    icu::StringByteSink<std::string> sink(&lower, static_cast<std::int32_t>(validText.size()));
    icu::CaseMap::utf8ToLower(
        "", 0, icu::StringPiece(validText.data(), static_cast<std::int32_t>(validText.size())), sink, nullptr, status);
    result.append(U_SUCCESS(status) ? std::string_view(lower) : validText);
}

} // namespace

std::size_t lengthOfValidPrefix(std::string_view bytes)
{
    auto rest = bytes;
    for (;;) {
        rest.remove_prefix(lengthOfASCIIPrefix(rest));
        if (rest.empty()) {
            return bytes.size();
        }
        const auto before = rest.size();
        if (takeCharacter(rest) < 0) {
            return bytes.size() - before;
        }
    }
}

bool isValidUTF8(std::string_view bytes)
{
    return lengthOfValidPrefix(bytes) == bytes.size();
}

std::string escapingInvalidUTF8(std::string_view bytes, std::string_view mark)
{
    std::string result;
    forEachRun(
        bytes, [&](std::string_view characters) { result.append(characters); },
        [&](char byte) {
            result.append(mark);
            appendHexDigits(result, static_cast<std::uint8_t>(byte));
        });
    return result;
}

std::string lowercased(std::string_view text)
{
    const auto isUpperASCII = [](char byte) { return byte >= 'A' && byte <= 'Z'; };
    std::string result;
    result.reserve(text.size());
    if (lengthOfASCIIPrefix(text) == text.size()) {
        for (const char byte : text) {
            result += isUpperASCII(byte) ? static_cast<char>(byte - 'A' + 'a') : byte;
        }
        return result;
    }
    forEachRun(
        text, [&](std::string_view characters) { appendLowercased(result, characters); },
        [&](char byte) { result += byte; });
    return result;
}

std::string_view trimmed(std::string_view text)
{
    const auto isBlank = [](UChar32 character) {
        return character >= 0 && isWhitespaceOrNewline(static_cast<char32_t>(character));
    };
    auto rest = text;
    while (!text.empty() && isBlank(takeCharacter(rest))) {
        text = rest;
    }
    rest = text;
    while (!text.empty() && isBlank(takeLastCharacter(rest))) {
        text = rest;
    }
    return text;
}

bool isAlphanumeric(char32_t scalar)
{
    return isInCategories(scalar, U_GC_L_MASK | U_GC_M_MASK | U_GC_N_MASK);
}

bool isNumber(char32_t scalar)
{
    return isInCategories(scalar, U_GC_N_MASK);
}

bool isLowercase(char32_t scalar)
{
    return u_isULowercase(static_cast<UChar32>(scalar)) != 0;
}

bool isWhitespaceOrNewline(char32_t scalar)
{
    return (scalar >= 0x09 && scalar <= 0x0D) || scalar == 0x85 || isInCategories(scalar, U_GC_Z_MASK);
}

bool isUnicodeWhitespace(char32_t scalar)
{
    return u_isUWhiteSpace(static_cast<UChar32>(scalar)) != 0;
}

bool isControl(char32_t scalar)
{
    return isInCategories(scalar, U_GC_CC_MASK);
}

std::size_t columns(char32_t scalar)
{
    constexpr char32_t zeroWidthNonJoiner = 0x200C;
    constexpr char32_t zeroWidthJoiner = 0x200D;
    const auto character = static_cast<UChar32>(scalar);
    const auto category = u_charType(character);
    if (category == U_NON_SPACING_MARK || category == U_ENCLOSING_MARK || scalar == zeroWidthNonJoiner
        || scalar == zeroWidthJoiner) {
        return 0;
    }
    switch (u_getIntPropertyValue(character, UCHAR_HANGUL_SYLLABLE_TYPE)) {
    case U_HST_VOWEL_JAMO:
    case U_HST_TRAILING_JAMO:
        return 0; // drawn into the leading consonant before it
    default:
        break;
    }
    switch (u_getIntPropertyValue(character, UCHAR_EAST_ASIAN_WIDTH)) {
    case U_EA_WIDE:
    case U_EA_FULLWIDTH:
        return 2;
    default:
        return 1;
    }
}

std::size_t columns(std::string_view text)
{
    std::size_t sum = 0;
    while (!text.empty()) {
        sum += columns(takeScalar(text));
    }
    return sum;
}

char32_t takeScalar(std::string_view& text)
{
    const auto character = takeCharacter(text);
    return character < 0 ? kReplacementCharacter : static_cast<char32_t>(character);
}

std::u32string scalars(std::string_view text)
{
    std::u32string result;
    result.reserve(text.size());
    while (!text.empty()) {
        result += takeScalar(text);
    }
    return result;
}

std::string fromScalars(std::u32string_view scalars)
{
    std::string result;
    result.reserve(scalars.size());
    for (const char32_t scalar : scalars) {
        appendScalar(result, scalar);
    }
    return result;
}

} // namespace Platform::Text
