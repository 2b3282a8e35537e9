#include "KarvelloUI/Sessions/CandidateSelection.h"

#include <utility>

namespace KarvelloUI {

using CleanerCore::CleanupCandidate;

CandidateSelection::CandidateSelection()
    : m_index(std::make_shared<const CandidateIndex>())
{
}

void CandidateSelection::setIndex(std::shared_ptr<const CandidateIndex> index)
{
    std::vector<bool> kept(index->size());
    for (std::uint32_t position = 0; position < m_isSelected.size(); ++position) {
        if (m_isSelected[position]) {
            if (const auto found = index->position(m_index->candidates()[position].id)) {
                kept[*found] = true;
            }
        }
    }
    m_index = std::move(index);
    select(std::move(kept));
}

bool CandidateSelection::setSelected(std::string_view id, bool isSelected)
{
    const auto position = m_index->position(id);
    return position && setSelected(*position, isSelected);
}

bool CandidateSelection::setSelected(std::uint32_t position, bool isSelected)
{
    return setSelected(std::span(&position, 1), isSelected);
}

bool CandidateSelection::setSelected(std::span<const std::uint32_t> positions, bool isSelected)
{
    bool isChanged = false;
    for (const auto position : positions) {
        if (m_isSelected[position] == isSelected) {
            continue;
        }
        isChanged = true;
        m_isSelected[position] = isSelected;
        const auto& candidate = m_index->candidates()[position];
        if (isSelected) {
            m_totals.add(candidate);
        } else {
            m_totals.remove(candidate);
        }
    }
    if (isChanged) {
        m_preview = m_totals.preview();
    }
    return isChanged;
}

void CandidateSelection::selectAll()
{
    select(std::vector<bool>(m_index->size(), true));
}

void CandidateSelection::clear()
{
    select(std::vector<bool>(m_index->size(), false));
}

void CandidateSelection::selectDefaults()
{
    std::vector<bool> defaults;
    defaults.reserve(m_index->size());
    for (const auto& candidate : m_index->candidates()) {
        defaults.push_back(candidate.isSelectedByDefault);
    }
    select(std::move(defaults));
}

bool CandidateSelection::isSelected(std::string_view id) const
{
    const auto position = m_index->position(id);
    return position && m_isSelected[*position];
}

bool CandidateSelection::areAllSelected() const
{
    return m_index->size() > 0 && std::cmp_equal(count(), m_index->size());
}

std::unordered_set<std::string> CandidateSelection::ids() const
{
    std::unordered_set<std::string> ids;
    ids.reserve(static_cast<std::size_t>(count()));
    forEach([&ids](const CleanupCandidate& candidate) { ids.insert(candidate.id); });
    return ids;
}

std::vector<CleanupCandidate> CandidateSelection::candidates() const
{
    std::vector<CleanupCandidate> candidates;
    candidates.reserve(static_cast<std::size_t>(count()));
    forEach([&candidates](const CleanupCandidate& candidate) { candidates.push_back(candidate); });
    return candidates;
}

void CandidateSelection::select(std::vector<bool> isSelected)
{
    m_isSelected = std::move(isSelected);
    m_totals = {};
    forEach([this](const CleanupCandidate& candidate) { m_totals.add(candidate); });
    m_preview = m_totals.preview();
}

} // namespace KarvelloUI
