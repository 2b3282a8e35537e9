#include "Platform/Base/TextFolding.h"

#include "Platform/Base/ASCII.h"
#include "Platform/Base/Text.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <unicode/normalizer2.h>
#include <unicode/stringpiece.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace Platform::Text {

namespace {

/// A mark that stands on a letter without making another one of it. The combining classes (Unicode Standard, section
/// 4.3): 10 to 36 are the points of Hebrew, Arabic and Syriac, 200 and up stand somewhere around the letter.
bool isAccent(UChar32 character)
{
    const auto combiningClass = u_getCombiningClass(character);
    return (combiningClass >= 10 && combiningClass <= 36) || combiningClass >= 200;
}

icu::UnicodeString withoutAccents(const icu::UnicodeString& decomposed)
{
    icu::UnicodeString result;
    for (std::int32_t index = 0; index < decomposed.length(); index = decomposed.moveIndex32(index, 1)) {
        const auto character = decomposed.char32At(index);
        if (!isAccent(character)) {
            result.append(character);
        }
    }
    return result;
}

/// `text` is valid UTF-8. What ICU cannot do stays as it is.
void appendFolded(std::string& result, std::string_view text)
{
    UErrorCode status = U_ZERO_ERROR;
    const auto* const decomposition = icu::Normalizer2::getNFDInstance(status);
    const auto* const composition = icu::Normalizer2::getNFCInstance(status);
    // ICU counts in 32 bits, and folding can triple a text.
    if (U_FAILURE(status) || text.size() > std::numeric_limits<std::int32_t>::max() / 4) {
        result.append(text);
        return;
    }
    auto characters = icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
    const auto decomposed = decomposition->normalize(characters.foldCase(), status);
    const auto folded = composition->normalize(withoutAccents(decomposed), status);
    if (U_SUCCESS(status)) {
        folded.toUTF8String(result);
    } else {
        result.append(text);
    }
}

} // namespace

std::string foldedForSearch(std::string_view text)
{
    std::string result;
    if (ASCII::isASCII(text)) {
        result.resize(text.size());
        std::ranges::transform(text, result.begin(), ASCII::lowercased);
        return result;
    }
    forEachRun(
        text, [&](std::string_view characters) { appendFolded(result, characters); },
        [&](char byte) { result += byte; });
    return result;
}

} // namespace Platform::Text
