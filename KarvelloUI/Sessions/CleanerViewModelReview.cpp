#include "KarvelloUI/Sessions/CleanerViewModel.h"

#include <utility>

// Selecting, filtering and ignoring: the side of the session that a person reviews on.
namespace KarvelloUI {

using CleanerCore::CleanupCandidate;

bool CleanerViewModel::isSelected(const CleanupCandidate& candidate) const
{
    return m_review.selection().isSelected(candidate.id);
}

void CleanerViewModel::setSelected(const CleanupCandidate& candidate, bool isSelected)
{
    if (m_review.selection().setSelected(candidate.id, isSelected)) {
        noteChange(Change::selection);
    }
    publish();
}

void CleanerViewModel::setSelected(std::span<const std::uint32_t> positions, bool isSelected)
{
    if (m_review.selection().setSelected(positions, isSelected)) {
        noteChange(Change::selection);
    }
    publish();
}

void CleanerViewModel::selectAllCandidates()
{
    m_review.selection().selectAll();
    noteChange(Change::selection);
    publish();
}

void CleanerViewModel::clearSelection()
{
    m_review.selection().clear();
    noteChange(Change::selection);
    publish();
}

void CleanerViewModel::setFilters(CandidateListFilters filters)
{
    if (filters != m_review.filters()) {
        m_review.setFilters(std::move(filters));
        noteChange(Change::filters);
    }
    publish();
}

std::vector<CandidateListSection> CleanerViewModel::visibleCandidateSections(const KarvelloCopy& copy)
{
    return m_review.visibleCandidateSections(copy);
}

std::unordered_set<std::string> CleanerViewModel::visibleCandidateIDs(const KarvelloCopy& copy)
{
    return m_review.visibleCandidateIDs(copy);
}

void CleanerViewModel::ignoreCandidate(const CleanupCandidate& candidate)
{
    snoozeCandidate(candidate, CleanupIgnoreStore::defaultDuration(candidate));
}

void CleanerViewModel::snoozeCandidate(const CleanupCandidate& candidate, CleanupIgnoreDuration duration)
{
    const std::string id = candidate.id;
    const auto* const known = m_index->candidate(id);
    if (known == nullptr) {
        return;
    }
    const bool isIgnored = m_ignored.snooze(*known, duration, m_services.now());
    takeUpIgnoreStore();
    if (isIgnored) {
        applyReport(
            std::make_shared<CandidateIndex>(m_index->reportWithout({id})), CandidateReview::Filters::reconcile);
    }
    publish();
}

bool CleanerViewModel::removeIgnoredItem(const std::string& id)
{
    const bool isRemoved = m_ignored.remove(id);
    takeUpIgnoreStore();
    publish();
    return isRemoved;
}

void CleanerViewModel::clearIgnoredItems()
{
    m_ignored.removeAll(m_services.now());
    takeUpIgnoreStore();
    publish();
}

void CleanerViewModel::takeUpIgnoreStore()
{
    m_ignoredItems = m_ignored.store().activeItems(m_services.now());
    noteChange(Change::ignoredItems);
    applyIgnoreStoreError();
}

void CleanerViewModel::applyIgnoreStoreError()
{
    const auto& message = m_ignored.store().lastErrorMessage();
    if (message) {
        m_propagatedIgnoreStoreErrorMessage = message;
        setErrorMessage(message);
    } else if (m_errorMessage == std::exchange(m_propagatedIgnoreStoreErrorMessage, std::nullopt)) {
        // The error of another operation is not the store's to take back.
        setErrorMessage(std::nullopt);
    }
}

} // namespace KarvelloUI
