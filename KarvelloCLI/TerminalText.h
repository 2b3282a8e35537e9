#pragma once

#include "Platform/Base/HomePathAbbreviation.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloCLI {

/// Text for one line of a terminal, with the columns that it takes there. Names of files are hostile: whatever could
/// move the cursor, reorder the line or hide is shown as an escape instead ("\n", "\x1b", "\u202e", and "\xff" for a
/// byte that is part of no character).
///
/// Columns are counted as terminals do: two for wide East Asian characters and emoji, none for combining marks and for
/// the vowels and finals of decomposed Hangul. Nothing ever cuts a character from its marks, nor an escape in two.
class TerminalText {
public:
    enum class Kind : std::uint8_t {
        /// A name or path: its backslashes are doubled, so that it cannot imitate an escape.
        name,
        /// Words that may hold escaped names already.
        sentence,
    };

    TerminalText() = default;
    explicit TerminalText(std::string_view bytes, Kind kind = Kind::name);

    [[nodiscard]] const std::string& string() const { return m_string; }
    [[nodiscard]] std::size_t columns() const { return m_columns; }

    /// At most `columns` wide: what is too much gives way to one "…", with a little more kept of the end than of the
    /// beginning, since the end of a path tells more.
    [[nodiscard]] TerminalText elidedInMiddle(std::size_t columns) const;
    /// Lines of at most `columns`, broken at blanks and between the characters of Chinese and Japanese, and within a word
    /// only where it alone is too long. At least one.
    [[nodiscard]] std::vector<TerminalText> wrapped(std::size_t columns) const;

    /// With blanks behind or before it, up to `columns`.
    [[nodiscard]] std::string paddedRight(std::size_t columns) const;
    [[nodiscard]] std::string paddedLeft(std::size_t columns) const;

private:
    /// What is kept or dropped as one: a character with its marks, or an escape.
    struct Unit {
        std::uint32_t begin = 0;
        std::uint32_t columns = 0;
    };

    void appendUnit(std::string_view bytes, std::size_t columns);
    void appendUnits(const TerminalText& source, std::size_t first, std::size_t last);
    [[nodiscard]] std::string_view unitBytes(std::size_t index) const;
    [[nodiscard]] bool mayBreakBefore(std::size_t index) const;

    std::string m_string;
    std::vector<Unit> m_units;
    std::size_t m_columns = 0;
};

/// The columns of words that may hold escaped names.
[[nodiscard]] std::size_t columnsOf(std::string_view sentence);

using Platform::HomePathAbbreviation;

} // namespace KarvelloCLI
