#include "KarvelloUI/Sessions/DuplicateReviewSnapshot.h"

#include "Platform/Base/CheckedMath.h"

#include <algorithm>
#include <utility>

namespace KarvelloUI {

namespace {

template <typename Map>
std::optional<std::size_t> find(const Map& map, std::string_view id)
{
    const auto found = map.find(id);
    return found == map.end() ? std::nullopt : std::optional(found->second);
}

/// The same rows may be selected as before: only what is selected can have changed.
bool hasStableMembership(const DuplicateReviewGroupPresentation& from, const DuplicateReviewGroupPresentation& to)
{
    return std::ranges::equal(from.rows, to.rows, [](const auto& left, const auto& right) {
        return left.id() == right.id() && left.isSelectableExtra() == right.isSelectableExtra();
    });
}

} // namespace

DuplicateReviewSnapshot::DuplicateReviewSnapshot(Groups source, const DuplicateReviewSelection& selection)
    : m_source(std::move(source))
{
    m_groups.reserve(m_source->size());
    for (const auto& group : *m_source) {
        m_groups.push_back(makeDuplicateReviewGroupPresentation(group, selection));
    }
    fillDerivedFields();
}

const DuplicateReviewGroupPresentation* DuplicateReviewSnapshot::groupByID(std::string_view groupID) const
{
    const auto index = groupIndexByID(groupID);
    return index ? &m_groups[*index] : nullptr;
}

std::optional<std::size_t> DuplicateReviewSnapshot::groupIndexByID(std::string_view groupID) const
{
    return find(m_indexByGroupID, groupID);
}

std::optional<std::size_t> DuplicateReviewSnapshot::groupIndexByFileID(std::string_view fileID) const
{
    return find(m_indexByFileID, fileID);
}

DuplicateReviewSnapshot::Files DuplicateReviewSnapshot::selectedFiles() const
{
    Files files;
    files.reserve(m_selectedIDs.size());
    for (const auto& group : m_groups) {
        for (const auto& row : group.selectedExtras()) {
            files.push_back(row.file);
        }
    }
    return files;
}

std::vector<std::size_t> DuplicateReviewSnapshot::refresh(
    std::span<const std::string> changedFileIDs, const DuplicateReviewSelection& selection)
{
    std::unordered_set<std::size_t> affected;
    for (const auto& id : changedFileIDs) {
        if (const auto index = groupIndexByFileID(id)) {
            affected.insert(*index);
        }
    }
    return replace(affected, selection);
}

std::vector<std::size_t> DuplicateReviewSnapshot::refreshForSelectionDelta(const DuplicateReviewSelection& selection)
{
    std::unordered_set<std::size_t> affected;
    for (const auto id : m_selectedIDs) {
        if (!selection.selectedIDs.contains(std::string(id))) {
            affected.insert(m_indexByFileID.at(id));
        }
    }
    for (const auto& id : selection.selectedIDs) {
        if (m_selectableIDs.contains(id) && !m_selectedIDs.contains(id)) {
            affected.insert(m_indexByFileID.at(id));
        }
    }
    return replace(affected, selection);
}

std::vector<std::size_t> DuplicateReviewSnapshot::replace(
    const std::unordered_set<std::size_t>& affected, const DuplicateReviewSelection& selection)
{
    std::vector<std::size_t> indexes(affected.begin(), affected.end());
    std::ranges::sort(indexes);
    bool isStable = true;
    for (const auto index : indexes) {
        auto& group = m_groups[index];
        auto replacement = makeDuplicateReviewGroupPresentation((*m_source)[index], selection);
        isStable = isStable && hasStableMembership(group, replacement);
        removeSelected(group);
        addSelected(replacement);
        group = std::move(replacement);
    }
    if (!isStable) {
        fillDerivedFields();
    }
    return indexes;
}

void DuplicateReviewSnapshot::fillDerivedFields()
{
    m_files.clear();
    m_selectableFiles.clear();
    m_selectableIDs.clear();
    m_selectedIDs.clear();
    m_indexByGroupID.clear();
    m_indexByFileID.clear();
    m_selectedBytes = 0;
    for (std::size_t index = 0; index < m_groups.size(); ++index) {
        const auto& group = m_groups[index];
        m_indexByGroupID.emplace(group.id(), index);
        for (const auto& row : group.rows) {
            m_files.push_back(row.file);
            m_indexByFileID.emplace(row.id(), index);
        }
        for (const auto& row : group.selectableExtras()) {
            m_selectableFiles.push_back(row.file);
            m_selectableIDs.insert(row.id());
        }
        addSelected(group);
    }
}

void DuplicateReviewSnapshot::addSelected(const DuplicateReviewGroupPresentation& group)
{
    for (const auto& row : group.selectedExtras()) {
        m_selectedIDs.insert(row.id());
    }
    m_selectedBytes = Platform::checkedAdd(m_selectedBytes, group.selectedExtraBytes);
}

void DuplicateReviewSnapshot::removeSelected(const DuplicateReviewGroupPresentation& group)
{
    for (const auto& row : group.selectedExtras()) {
        m_selectedIDs.erase(row.id());
    }
    m_selectedBytes -= group.selectedExtraBytes;
}

} // namespace KarvelloUI
