#pragma once

#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>

/// Text as Unicode defines it, through ICU. Strings are UTF-8; where one may hold other bytes (a file name), the
/// function says what becomes of them. Every function may be called from any thread.
namespace Platform::Text {

[[nodiscard]] bool isValidUTF8(std::string_view bytes);
/// The number of leading bytes that form characters.
[[nodiscard]] std::size_t lengthOfValidPrefix(std::string_view bytes);

/// Hands over all of `bytes` in their order: what forms characters in runs, each byte that is part of none by itself.
template <std::invocable<std::string_view> Characters, std::invocable<char> Byte>
void forEachRun(std::string_view bytes, Characters characters, Byte strayByte)
{
    for (;;) {
        if (const auto valid = lengthOfValidPrefix(bytes); valid != 0) {
            characters(bytes.substr(0, valid));
            bytes.remove_prefix(valid);
        }
        if (bytes.empty()) {
            return;
        }
        strayByte(bytes.front());
        bytes.remove_prefix(1);
    }
}

/// Valid UTF-8 for any bytes: each byte that is part of no character becomes `mark` and two upper-case hexadecimal
/// digits, "\xHH" unless told otherwise; the rest stands as it is.
[[nodiscard]] std::string escapingInvalidUTF8(std::string_view bytes, std::string_view mark = "\\x");

/// Lower-cased with the root locale's full mapping. Bytes that are part of no character stay as they are.
[[nodiscard]] std::string lowercased(std::string_view text);

/// Without white space and new lines (general categories Z*, U+0009 to U+000D, U+0085) at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);

/// The character classes that the rules name. A code point that is not a Unicode scalar belongs to none.
[[nodiscard]] bool isAlphanumeric(char32_t scalar);        // general categories L*, M* and N*
[[nodiscard]] bool isNumber(char32_t scalar);              // general categories N*
[[nodiscard]] bool isLowercase(char32_t scalar);           // the property Lowercase
[[nodiscard]] bool isWhitespaceOrNewline(char32_t scalar); // Z*, U+0009 to U+000D, U+0085
[[nodiscard]] bool isUnicodeWhitespace(char32_t scalar);   // the property White_Space
[[nodiscard]] bool isControl(char32_t scalar);             // general category Cc

/// The columns that a terminal gives a character: two for wide East Asian ones and emoji, none for marks and joiners and
/// for the vowels and finals of decomposed Hangul, one for the rest.
[[nodiscard]] std::size_t columns(char32_t scalar);
/// The sum of its characters.
[[nodiscard]] std::size_t columns(std::string_view text);

/// Takes the first scalar off `text`, which is not empty; a byte that is part of no character gives U+FFFD.
char32_t takeScalar(std::string_view& text);
/// The scalars of `text`; a byte that is part of no character gives U+FFFD.
[[nodiscard]] std::u32string scalars(std::string_view text);
/// What is no Unicode scalar gives U+FFFD.
[[nodiscard]] std::string fromScalars(std::u32string_view scalars);

} // namespace Platform::Text
