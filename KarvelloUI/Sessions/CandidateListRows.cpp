#include "KarvelloUI/Sessions/CandidateListRows.h"

#include "Platform/Base/CheckedMath.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace KarvelloUI {

namespace {

using Run = CandidateListChange::Run;

std::optional<std::uint32_t> positionIn(
    const CandidateListRows& to, const CandidateListRows& from, std::uint32_t position)
{
    return to.index == from.index ? position : to.index->position(from.index->candidates()[position].id);
}

void extend(std::vector<Run>& runs, int row)
{
    if (!runs.empty() && runs.back().last == row - 1) {
        runs.back().last = row;
    } else {
        runs.push_back({.first = row, .last = row});
    }
}

} // namespace

CandidateListRows::CandidateListRows()
    : index(std::make_shared<const CandidateIndex>())
{
}

CandidateListRows::CandidateListRows(std::shared_ptr<const CandidateIndex> ofIndex,
    const std::vector<CandidateListSection>& ofSections, CandidateListHeaders headers,
    const QSet<QString>& closedSections)
    : index(std::move(ofIndex))
    , m_headers(headers)
{
    sections.reserve(ofSections.size());
    for (const auto& source : ofSections) {
        Section section{.id = QString::fromStdString(source.id),
            .title = QString::fromStdString(source.title),
            .candidates = source.candidates};
        for (const auto position : section.candidates) {
            const auto& candidate = index->candidates()[position];
            section.bytes = Platform::checkedAdd(section.bytes, candidate.sizeBytes);
            section.defaultCount += candidate.isSelectedByDefault ? 1 : 0;
        }
        sections.push_back(std::move(section));
    }
    addRows(closedSections);
}

CandidateListRows CandidateListRows::withClosed(const QSet<QString>& closedSections) const
{
    CandidateListRows other(*this);
    other.addRows(closedSections);
    return other;
}

const CandidateListRows::Section* CandidateListRows::section(const QString& id) const
{
    const auto found = std::ranges::find(sections, id, &Section::id);
    return found == sections.end() ? nullptr : &*found;
}

void CandidateListRows::addRows(const QSet<QString>& closedSections)
{
    rows.clear();
    rows.reserve(index->size() + sections.size());
    for (std::uint32_t number = 0; auto& section : sections) {
        const bool hasHeader = m_headers == CandidateListHeaders::rows && !section.title.isEmpty();
        section.headerRow = hasHeader ? static_cast<int>(rows.size()) : -1;
        section.isOpen = !hasHeader || !closedSections.contains(section.id);
        if (hasHeader) {
            rows.push_back({.position = Row::kHeader, .section = number});
        }
        if (section.isOpen) {
            for (const auto position : section.candidates) {
                rows.push_back({.position = position, .section = number});
            }
        }
        ++number;
    }
}

CandidateListChange::CandidateListChange(const CandidateListRows& from, const CandidateListRows& to)
{
    std::vector<int> rowOfPosition(to.index->size(), -1);
    for (int row = 0; row < std::ssize(to.rows); ++row) {
        if (const auto& target = to.rows[static_cast<std::size_t>(row)]; !target.isHeader()) {
            rowOfPosition[target.position] = row;
        }
    }
    const auto newRowOf = [&](const CandidateListRows::Row& row) {
        if (row.isHeader()) {
            const auto* const section = to.section(from.sections[row.section].id);
            return section == nullptr ? -1 : section->headerRow;
        }
        const auto position = positionIn(to, from, row.position);
        return position ? rowOfPosition[*position] : -1;
    };
    std::vector<bool> isKept(to.rows.size());
    newRows.reserve(from.rows.size());
    int last = -1;
    for (int row = 0; row < std::ssize(from.rows); ++row) {
        const int newRow = newRowOf(from.rows[static_cast<std::size_t>(row)]);
        newRows.push_back(newRow);
        if (newRow < 0) {
            extend(removed, row);
            continue;
        }
        isKept[static_cast<std::size_t>(newRow)] = true;
        isOrdered = isOrdered && newRow > last;
        last = newRow;
    }
    for (int row = 0; row < std::ssize(to.rows); ++row) {
        if (!isKept[static_cast<std::size_t>(row)]) {
            extend(inserted, row);
        }
    }
}

} // namespace KarvelloUI
