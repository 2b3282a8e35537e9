#include "KarvelloUI/Sessions/InsightReview.h"

#include "Platform/Base/CheckedMath.h"

#include <array>
#include <utility>

namespace KarvelloUI {

InsightReview::InsightReview(std::shared_ptr<const InsightIndex> index, std::unordered_set<std::string> selectedIDs)
    : m_index(std::move(index))
    , m_selectedIDs(std::move(selectedIDs))
{
    std::erase_if(m_selectedIDs, [this](const std::string& id) { return !isSelectable(id); });
    for (const auto& id : m_selectedIDs) {
        m_selectedBytes = Platform::checkedAdd(m_selectedBytes, m_index->file(id)->sizeBytes);
    }
    m_duplicates =
        DuplicateReviewSnapshot(DuplicateReviewSnapshot::Groups(m_index, &report().duplicateGroups), selection());
}

InsightReview::Files InsightReview::files(MacInsightFileSection section) const
{
    return section == MacInsightFileSection::duplicates ? m_duplicates.files() : m_index->files(section);
}

InsightReview::Files InsightReview::selectableFiles(MacInsightFileSection section) const
{
    if (section == MacInsightFileSection::duplicates) {
        return m_duplicates.selectableFiles();
    }
    auto files = m_index->files(section);
    std::erase_if(files, [this](const auto* file) { return !isSelectable(file->id); });
    return files;
}

InsightReview::Files InsightReview::selectedFiles(MacInsightFileSection section) const
{
    if (section == MacInsightFileSection::duplicates) {
        return m_duplicates.selectedFiles();
    }
    auto files = m_index->files(section);
    std::erase_if(files, [this](const auto* file) { return !isSelected(file->id); });
    return files;
}

InsightReview::Outcome InsightReview::setSelected(const std::string& id, bool isSelected)
{
    if (!isSelectable(id) || isSelected == this->isSelected(id)) {
        return {};
    }
    // `id` may be the one that goes.
    const std::array changed{id};
    if (isSelected) {
        m_selectedIDs.insert(changed.front());
    } else {
        m_selectedIDs.erase(changed.front());
    }
    return refresh(changed);
}

InsightReview::Outcome InsightReview::selectAll(MacInsightFileSection section)
{
    std::vector<std::string> changed;
    for (const auto* const file : selectableFiles(section)) {
        if (m_selectedIDs.insert(file->id).second) {
            changed.push_back(file->id);
        }
    }
    return refresh(changed);
}

InsightReview::Outcome InsightReview::clear(MacInsightFileSection section)
{
    std::vector<std::string> changed;
    for (const auto* const file : files(section)) {
        if (m_selectedIDs.erase(file->id) > 0) {
            changed.push_back(file->id);
        }
    }
    return refresh(changed);
}

InsightReview::Outcome InsightReview::selectDuplicateExtras(const DuplicateReviewGroupPresentation& group)
{
    return refresh(KarvelloUI::selectDuplicateExtras(group, m_selectedIDs));
}

InsightReview::Outcome InsightReview::clearDuplicateGroupSelection(const DuplicateReviewGroupPresentation& group)
{
    return refresh(KarvelloUI::clearDuplicateGroupSelection(group, m_selectedIDs));
}

InsightReview::Outcome InsightReview::deselect(std::span<const std::string> ids)
{
    std::vector<std::string> changed;
    for (const auto& id : ids) {
        if (m_selectedIDs.erase(id) > 0) {
            changed.push_back(id);
        }
    }
    return refresh(changed);
}

void InsightReview::replaceSelection(const std::unordered_set<std::string>& ids)
{
    std::vector<std::string> changed;
    for (const auto& id : m_selectedIDs) {
        if (!ids.contains(id)) {
            changed.push_back(id);
        }
    }
    for (const auto& id : ids) {
        if (isSelectable(id) && !isSelected(id)) {
            changed.push_back(id);
        }
    }
    for (const auto& id : changed) {
        if (m_selectedIDs.erase(id) == 0) {
            m_selectedIDs.insert(id);
        }
    }
    refresh(changed);
}

InsightReview::Outcome InsightReview::refresh(std::span<const std::string> changedIDs)
{
    for (const auto& id : changedIDs) {
        const auto bytes = m_index->file(id)->sizeBytes;
        m_selectedBytes = Platform::checkedAdd(m_selectedBytes, isSelected(id) ? bytes : -bytes);
    }
    return {.isChanged = !changedIDs.empty(), .groups = m_duplicates.refresh(changedIDs, selection())};
}

} // namespace KarvelloUI
