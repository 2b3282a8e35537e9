#include "PlatformDesktop/NotificationText.h"

#include "Platform/Base/ASCII.h"
#include "Platform/Base/Text.h"

#include <cstddef>

namespace PlatformDesktop::NotificationText {

namespace Text = Platform::Text;

namespace {

constexpr std::size_t kLongestTitle = 200;
constexpr std::size_t kLongestBody = 2000;

/// The explicit embeddings, overrides and isolates of the bidirectional algorithm: one without its end reaches into what
/// the service shows behind the text.
bool turnsTextAround(char32_t scalar)
{
    return (scalar >= U'\u202A' && scalar <= U'\u202E') || (scalar >= U'\u2066' && scalar <= U'\u2069');
}

bool endsALine(char32_t scalar)
{
    return scalar == U'\u2028' || scalar == U'\u2029' || scalar == U'\u0085';
}

std::string shown(std::string_view text, char32_t lineFeed, std::size_t longest)
{
    std::u32string result;
    for (const char32_t scalar : Text::scalars(Text::escapingInvalidUTF8(text))) {
        if (turnsTextAround(scalar)) {
            continue;
        }
        if (result.size() == longest) {
            result.back() = U'…';
            break;
        }
        if (scalar == U'\n') {
            result.push_back(lineFeed);
        } else {
            result.push_back(Text::isControl(scalar) || endsALine(scalar) ? U' ' : scalar);
        }
    }
    return Text::fromScalars(result);
}

} // namespace

std::string title(std::string_view text)
{
    return shown(text, U' ', kLongestTitle);
}

std::string body(std::string_view text)
{
    return shown(text, U'\n', kLongestBody);
}

std::string escapedMarkup(std::string_view text)
{
    std::string escaped;
    for (const char character : text) {
        switch (character) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        default:
            escaped += character;
        }
    }
    return escaped;
}

std::string withoutTags(std::string_view text)
{
    std::string plain;
    for (std::size_t index = 0; index < text.size(); ++index) {
        const char next = index + 1 < text.size() ? text[index + 1] : ' ';
        const char letter = Platform::ASCII::lowercased(next);
        const bool isInATag = (letter >= 'a' && letter <= 'z') || next == '/' || next == '!' || next == '?';
        const bool beginsATag = text[index] == '<' && isInATag;
        if (beginsATag) {
            plain += "‹";
        } else {
            plain += text[index];
        }
    }
    return plain;
}

} // namespace PlatformDesktop::NotificationText
