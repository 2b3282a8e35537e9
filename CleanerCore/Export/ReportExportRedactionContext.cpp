#include "CleanerCore/Export/ReportExportRedactionContext.h"

#include "Platform/Base/Text.h"

#include <algorithm>
#include <fmt/format.h>

namespace CleanerCore {

namespace {

namespace Text = Platform::Text;

bool isPathCharacter(char32_t scalar)
{
    return scalar == U'.' || scalar == U'_' || scalar == U'-' || Text::isAlphanumeric(scalar);
}

/// What may stand in front of a path within a text.
bool isBoundary(char32_t scalar)
{
    constexpr std::u32string_view delimiters = U"\"'`“”‘’([{<,:;=";
    return delimiters.find(scalar) != std::u32string_view::npos || Text::isWhitespaceOrNewline(scalar);
}

bool containsFileURL(std::string_view text)
{
    constexpr std::string_view scheme = "file://";
    const auto isSameLetter = [](char left, char right) {
        return (left >= 'A' && left <= 'Z' ? static_cast<char>(left - 'A' + 'a') : left) == right;
    };
    return !std::ranges::search(text, scheme, isSameLetter).empty();
}

bool containsAbsolutePath(std::u32string_view scalars)
{
    for (std::size_t index = 0; index + 1 < scalars.size(); ++index) {
        if (scalars[index] == U'/' && isPathCharacter(scalars[index + 1])
            && (index == 0 || isBoundary(scalars[index - 1]))) {
            return true;
        }
    }
    return false;
}

/// "~/x", or "~name/".
bool startsHomeRelativePath(std::u32string_view scalars)
{
    const auto rest = scalars.substr(1);
    if (rest.starts_with(U'/')) {
        return rest.size() > 1 && isPathCharacter(rest[1]);
    }
    const auto end = std::ranges::find_if_not(rest, isPathCharacter);
    return end != rest.end() && *end == U'/';
}

bool containsHomeRelativePath(std::u32string_view scalars)
{
    for (auto index = scalars.find(U'~'); index != std::u32string_view::npos; index = scalars.find(U'~', index + 1)) {
        if ((index == 0 || isBoundary(scalars[index - 1])) && startsHomeRelativePath(scalars.substr(index))) {
            return true;
        }
    }
    return false;
}

} // namespace

std::string ReportExportRedactionContext::path(std::string_view value, std::string_view label)
{
    return hidden(m_paths, "path", value, label);
}

std::string ReportExportRedactionContext::name(std::string_view value, std::string_view label)
{
    return hidden(m_names, "name", value, label);
}

std::string ReportExportRedactionContext::identifier(std::string_view value, std::string_view label)
{
    return hidden(m_identifiers, "id", value, label);
}

std::string ReportExportRedactionContext::freeText(std::string_view value, std::string_view label)
{
    return containsPath(value) ? hidden(m_freeTexts, "text", value, label) : std::string(value);
}

std::string ReportExportRedactionContext::sanitizedLabel(std::string_view label)
{
    std::string result;
    bool isPieceOpen = false;
    for (const char32_t scalar : Text::scalars(label)) {
        if (!Text::isAlphanumeric(scalar)) {
            isPieceOpen = false;
            continue;
        }
        if (!isPieceOpen && !result.empty()) {
            result += '-';
        }
        isPieceOpen = true;
        // Scalar by scalar: what stands around one does not change its lower-case form.
        result += Text::lowercased(Text::fromScalars({&scalar, 1}));
    }
    return result.empty() ? "item" : result;
}

bool ReportExportRedactionContext::containsPath(std::string_view text)
{
    // Every path has a slash, and most texts have none.
    if (text.find('/') == std::string_view::npos) {
        return false;
    }
    if (containsFileURL(text)) {
        return true;
    }
    const auto scalars = Text::scalars(text);
    return containsHomeRelativePath(scalars) || containsAbsolutePath(scalars);
}

std::string ReportExportRedactionContext::hidden(
    Table& table, std::string_view kind, std::string_view value, std::string_view label)
{
    if (value.empty()) {
        return {};
    }
    const auto& token =
        table.try_emplace(std::string(value), Token{indexOfLabel(label), table.size() + 1}).first->second;
    return fmt::format("<{}:{}-{}>", kind, m_labels[token.label].second, token.number);
}

std::size_t ReportExportRedactionContext::indexOfLabel(std::string_view label)
{
    const auto known = std::ranges::find(m_labels, label, &std::pair<std::string, std::string>::first);
    const auto index = static_cast<std::size_t>(known - m_labels.begin());
    if (known == m_labels.end()) {
        m_labels.emplace_back(label, sanitizedLabel(label));
    }
    return index;
}

} // namespace CleanerCore
