#pragma once

#include "KarvelloCLI/Ink.h"
#include "KarvelloCLI/TerminalText.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace KarvelloCLI {

/// One candidate, or another file, as a table shows it.
struct CandidateRow {
    bool isMarked = false;
    TerminalText size;
    TerminalText age;
    TerminalText name;
    /// Empty in all rows: there is no column for it.
    TerminalText kind;
    /// The folder that holds the item, or its token.
    TerminalText place;
    /// Something more to say, on a line of its own; empty where there is nothing.
    TerminalText note;
    /// The whole path for tables too narrow for `name` and `place`.
    TerminalText path;
};

/// Puts rows into columns that fit a width. A wide table has the columns name and folder, a very wide one the kind
/// as well; a narrow one has the path alone.
class CandidateColumns {
public:
    /// `rows` are those that will be shown: the columns are as wide as these need.
    CandidateColumns(
        std::span<const CandidateRow* const> rows, std::size_t columns, Painter painter, std::string_view placeTitle);

    /// The titles, without the line's end.
    [[nodiscard]] std::string header() const;
    [[nodiscard]] std::string line(const CandidateRow& row) const;
    /// Words on several candidates in one, with their size in its column.
    [[nodiscard]] std::string summaryLine(const TerminalText& size, const TerminalText& words) const;

private:
    [[nodiscard]] std::string join(std::string_view mark, const TerminalText& size, const TerminalText& age,
        const TerminalText& name, const TerminalText& kind, const TerminalText& place, const TerminalText& path) const;

    Painter m_painter;
    TerminalText m_placeTitle;
    std::size_t m_columns;
    std::size_t m_sizeWidth = 0;
    std::size_t m_ageWidth = 0;
    /// 0 in a narrow table.
    std::size_t m_nameWidth = 0;
    /// 0 unless the table is very wide.
    std::size_t m_kindWidth = 0;
    std::size_t m_placeWidth = 0;
};

} // namespace KarvelloCLI
