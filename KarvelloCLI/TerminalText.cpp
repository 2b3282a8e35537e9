#include "KarvelloCLI/TerminalText.h"

#include "Platform/Base/Text.h"
#include "Platform/Base/UnseenText.h"

#include <fmt/format.h>
#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <optional>

namespace KarvelloCLI {

namespace {

constexpr std::string_view kEllipsis = "…";

std::optional<std::string> escapeOf(UChar32 character, TerminalText::Kind kind)
{
    if (character == '\\') {
        return kind == TerminalText::Kind::name ? std::optional<std::string>("\\\\") : std::nullopt;
    }
    return Platform::Text::escapeOfUnseen(static_cast<char32_t>(character));
}

/// Of a writing without blanks, in which a line may end behind almost any character. Korean has blanks.
bool isIdeographic(std::string_view unit)
{
    const auto character = Platform::Text::takeScalar(unit);
    switch (ublock_getCode(static_cast<UChar32>(character))) {
    case UBLOCK_CJK_SYMBOLS_AND_PUNCTUATION:
    case UBLOCK_HIRAGANA:
    case UBLOCK_KATAKANA:
    case UBLOCK_CJK_UNIFIED_IDEOGRAPHS:
    case UBLOCK_CJK_UNIFIED_IDEOGRAPHS_EXTENSION_A:
    case UBLOCK_HALFWIDTH_AND_FULLWIDTH_FORMS:
        return true;
    default:
        return false;
    }
}

/// What no line ends with.
bool isOpening(std::string_view unit)
{
    constexpr std::string_view characters = "（「『【“‘(";
    return characters.find(unit) != std::string_view::npos;
}

/// What no line begins with.
bool isClosing(std::string_view unit)
{
    constexpr std::string_view characters = "、。，．；：？！）」』】”’ーっゃゅょッャュョ／…,.;:?!)%";
    return characters.find(unit) != std::string_view::npos;
}

bool isPlainASCII(char byte)
{
    return byte >= ' ' && byte <= '~' && byte != '\\';
}

} // namespace

TerminalText::TerminalText(std::string_view bytes, Kind kind)
{
    m_string.reserve(bytes.size());
    m_units.reserve(bytes.size());
    const auto* const data = reinterpret_cast<const std::uint8_t*>(bytes.data());
    const auto length = static_cast<std::int64_t>(bytes.size());
    std::int64_t position = 0;
    while (position < length) {
        const std::int64_t start = position;
        if (isPlainASCII(bytes[static_cast<std::size_t>(start)])) {
            ++position;
            appendUnit(bytes.substr(static_cast<std::size_t>(start), 1), 1);
            continue;
        }
        UChar32 character = U_SENTINEL;
        U8_NEXT(data, position, length, character);
        if (character < 0) {
            // One escape for each byte: how many a decoder takes for one error is its own affair.
            position = start + 1;
            const auto byte = static_cast<unsigned char>(bytes[static_cast<std::size_t>(start)]);
            const std::string escape = fmt::format("\\x{:02x}", byte);
            appendUnit(escape, escape.size());
            continue;
        }
        if (const auto escape = escapeOf(character, kind)) {
            appendUnit(*escape, escape->size());
            continue;
        }
        const auto piece = bytes.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(position - start));
        const std::size_t columns = Platform::Text::columns(static_cast<char32_t>(character));
        if (columns == 0 && !m_units.empty()) {
            m_string += piece;
        } else {
            appendUnit(piece, columns);
        }
    }
}

void TerminalText::appendUnit(std::string_view bytes, std::size_t columns)
{
    m_units.push_back({static_cast<std::uint32_t>(m_string.size()), static_cast<std::uint32_t>(columns)});
    m_string += bytes;
    m_columns += columns;
}

void TerminalText::appendUnits(const TerminalText& source, std::size_t first, std::size_t last)
{
    for (std::size_t index = first; index < last; ++index) {
        appendUnit(source.unitBytes(index), source.m_units[index].columns);
    }
}

std::string_view TerminalText::unitBytes(std::size_t index) const
{
    const std::size_t begin = m_units[index].begin;
    const std::size_t end = index + 1 < m_units.size() ? m_units[index + 1].begin : m_string.size();
    return std::string_view(m_string).substr(begin, end - begin);
}

TerminalText TerminalText::elidedInMiddle(std::size_t columns) const
{
    if (m_columns <= columns) {
        return *this;
    }
    TerminalText result;
    if (columns == 0) {
        return result;
    }
    const std::size_t available = columns - 1;
    const std::size_t forHead = available * 2 / 5;

    std::size_t headEnd = 0;
    std::size_t used = 0;
    while (headEnd < m_units.size() && used + m_units[headEnd].columns <= forHead) {
        used += m_units[headEnd].columns;
        ++headEnd;
    }
    std::size_t tailBegin = m_units.size();
    while (tailBegin > headEnd && used + m_units[tailBegin - 1].columns <= available) {
        --tailBegin;
        used += m_units[tailBegin].columns;
    }
    result.appendUnits(*this, 0, headEnd);
    result.appendUnit(kEllipsis, 1);
    result.appendUnits(*this, tailBegin, m_units.size());
    return result;
}

bool TerminalText::mayBreakBefore(std::size_t index) const
{
    const std::string_view before = unitBytes(index - 1);
    const std::string_view after = unitBytes(index);
    const bool isBetweenIdeographs = isIdeographic(before) || isIdeographic(after);
    return isBetweenIdeographs && before != " " && after != " " && !isOpening(before) && !isClosing(after);
}

std::vector<TerminalText> TerminalText::wrapped(std::size_t columns) const
{
    std::vector<TerminalText> lines;
    std::size_t lineBegin = 0;
    while (lineBegin < m_units.size()) {
        std::size_t end = lineBegin;
        std::size_t used = 0;
        // Where the line may end, and where the next one begins then.
        std::optional<std::size_t> lastEnd;
        std::size_t lastNext = 0;
        while (end < m_units.size() && (used + m_units[end].columns <= columns || end == lineBegin)) {
            if (unitBytes(end) == " ") {
                lastEnd = end;
                lastNext = end + 1;
            } else if (end > lineBegin && mayBreakBefore(end)) {
                lastEnd = end;
                lastNext = end;
            }
            used += m_units[end].columns;
            ++end;
        }
        std::size_t next = end;
        if (end < m_units.size()) {
            if (unitBytes(end) == " ") {
                next = end + 1;
            } else if (!mayBreakBefore(end) && lastEnd && *lastEnd > lineBegin) {
                end = *lastEnd;
                next = lastNext;
            }
        }
        TerminalText line;
        line.appendUnits(*this, lineBegin, end);
        lines.push_back(std::move(line));
        lineBegin = next;
    }
    if (lines.empty()) {
        lines.emplace_back();
    }
    return lines;
}

std::string TerminalText::paddedRight(std::size_t columns) const
{
    return m_columns < columns ? m_string + std::string(columns - m_columns, ' ') : m_string;
}

std::string TerminalText::paddedLeft(std::size_t columns) const
{
    return m_columns < columns ? std::string(columns - m_columns, ' ') + m_string : m_string;
}

std::size_t columnsOf(std::string_view sentence)
{
    return TerminalText(sentence, TerminalText::Kind::sentence).columns();
}

} // namespace KarvelloCLI
