#include "KarvelloCLI/CandidateRows.h"

#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/TableLayout.h"

#include <algorithm>

namespace KarvelloCLI {

namespace {

TerminalText sizeTitle()
{
    return TerminalText(say("Size"));
}

TerminalText ageTitle()
{
    return TerminalText(say("Age"));
}

TerminalText nameTitle()
{
    return TerminalText(say("Name"));
}

TerminalText kindTitle()
{
    return TerminalText(say("Kind"));
}

TerminalText pathTitle()
{
    return TerminalText(say("Path"));
}

std::size_t widest(
    std::span<const CandidateRow* const> rows, TerminalText CandidateRow::* cell, const TerminalText& title)
{
    std::size_t columns = title.columns();
    for (const CandidateRow* const row : rows) {
        columns = std::max(columns, (row->*cell).columns());
    }
    return columns;
}

} // namespace

CandidateColumns::CandidateColumns(
    std::span<const CandidateRow* const> rows, std::size_t columns, Painter painter, std::string_view placeTitle)
    : m_painter(painter)
    , m_placeTitle(placeTitle)
    , m_columns(columns)
    , m_sizeWidth(widest(rows, &CandidateRow::size, sizeTitle()))
    , m_ageWidth(widest(rows, &CandidateRow::age, ageTitle()))
{
    const std::size_t taken = kMarkWidth + m_sizeWidth + kColumnGap.size() + m_ageWidth + kColumnGap.size();
    std::size_t left = columns > taken ? columns - taken : 1;
    if (columns < kWideTable) {
        m_placeWidth = left;
        return;
    }
    const bool hasKinds = std::ranges::any_of(rows, [](const CandidateRow* row) { return row->kind.columns() > 0; });
    if (columns >= kVeryWideTable && hasKinds) {
        m_kindWidth = widest(rows, &CandidateRow::kind, kindTitle());
        left -= m_kindWidth + kColumnGap.size();
    }
    const std::size_t longestName = widest(rows, &CandidateRow::name, nameTitle());
    const std::size_t longestPlace = widest(rows, &CandidateRow::place, m_placeTitle);
    left -= kColumnGap.size();
    // Half of the room is each one's own; what one does not need goes to the other.
    const std::size_t roomBesidePlace = left - std::min(longestPlace, left / 2);
    m_nameWidth = std::min(longestName, roomBesidePlace);
    m_placeWidth = left - m_nameWidth;
}

std::string CandidateColumns::join(std::string_view mark, const TerminalText& size, const TerminalText& age,
    const TerminalText& name, const TerminalText& kind, const TerminalText& place, const TerminalText& path) const
{
    std::string line(mark);
    line += ' ';
    line += size.paddedLeft(m_sizeWidth);
    line += kColumnGap;
    line += age.paddedLeft(m_ageWidth);
    line += kColumnGap;
    if (m_nameWidth == 0) {
        return line + path.elidedInMiddle(m_placeWidth).string();
    }
    line += name.elidedInMiddle(m_nameWidth).paddedRight(m_nameWidth);
    line += kColumnGap;
    if (m_kindWidth != 0) {
        line += kind.paddedRight(m_kindWidth);
        line += kColumnGap;
    }
    return line + place.elidedInMiddle(m_placeWidth).string();
}

std::string CandidateColumns::header() const
{
    return m_painter(
        Ink::quiet, join(" ", sizeTitle(), ageTitle(), nameTitle(), kindTitle(), m_placeTitle, pathTitle()));
}

std::string CandidateColumns::line(const CandidateRow& row) const
{
    const std::string mark = row.isMarked ? m_painter(Ink::safe, "*") : " ";
    return join(mark, row.size, row.age, row.name, row.kind, row.place, row.path);
}

std::string CandidateColumns::summaryLine(const TerminalText& size, const TerminalText& words) const
{
    std::string line = "  ";
    line += size.paddedLeft(m_sizeWidth);
    line += kColumnGap;
    const std::size_t taken = kMarkWidth + std::max(m_sizeWidth, size.columns()) + kColumnGap.size();
    line += words.elidedInMiddle(m_columns > taken ? m_columns - taken : 1).string();
    return m_painter(Ink::quiet, line);
}

} // namespace KarvelloCLI
