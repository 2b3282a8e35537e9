#include "KarvelloUI/Sessions/CandidateReview.h"

#include <algorithm>

namespace KarvelloUI {

namespace {

/// Drops a filter that nothing passes any more.
template <typename Value>
void reconcile(std::optional<Value>& filter, const std::vector<Value>& available)
{
    if (filter && std::ranges::find(available, *filter) == available.end()) {
        filter.reset();
    }
}

} // namespace

void CandidateReview::apply(std::shared_ptr<const CandidateIndex> index, Filters filters)
{
    m_words.reset();
    if (filters == Filters::reset || index->size() == 0) {
        m_filters = {.groupingMode = m_filters.groupingMode};
    } else {
        reconcile(m_filters.category, index->availableCategories());
        reconcile(m_filters.safety, index->availableSafetyLevels());
    }
    m_selection.setIndex(std::move(index));
}

std::vector<CandidateListSection> CandidateReview::visibleCandidateSections(const KarvelloCopy& copy)
{
    if (!m_words || m_words->language != copy.language) {
        m_words.emplace(copy.language, CandidateSearchTexts(index().searchKeys(), candidateListTextProvider(copy)));
    }
    return CandidateListProjection::sections(index().candidates(), index().searchKeys(), m_words->texts, m_filters);
}

std::unordered_set<std::string> CandidateReview::visibleCandidateIDs(const KarvelloCopy& copy)
{
    std::unordered_set<std::string> ids;
    for (const auto& section : visibleCandidateSections(copy)) {
        for (const auto position : section.candidates) {
            ids.insert(index().candidates()[position].id);
        }
    }
    return ids;
}

CandidateSelectionSnapshot CandidateReview::selectionSnapshot(
    const std::unordered_set<std::string>* visibleCandidateIDs) const
{
    return {.ids = m_selection.ids(),
        .count = m_selection.count(),
        .bytes = m_selection.bytes(),
        .containsNonSafe = m_selection.containsNonSafe(),
        .hiddenSelectedCount = hiddenSelectedCandidateCount(visibleCandidateIDs)};
}

std::int64_t CandidateReview::hiddenSelectedCandidateCount(
    const std::unordered_set<std::string>* visibleCandidateIDs) const
{
    if (visibleCandidateIDs == nullptr) {
        return 0;
    }
    std::int64_t count = 0;
    m_selection.forEach([&](const CleanerCore::CleanupCandidate& candidate) {
        count += visibleCandidateIDs->contains(candidate.id) ? 0 : 1;
    });
    return count;
}

CleanerCore::CleanupSelectionPreview CandidateReview::cleanupPreview(const CandidateSelectionSnapshot* snapshot) const
{
    if (snapshot == nullptr) {
        return m_selection.preview();
    }
    CleanerCore::CleanupSelectionTotals totals;
    for (const auto& id : snapshot->ids) {
        if (const auto* const candidate = index().candidate(id)) {
            totals.add(*candidate);
        }
    }
    return totals.preview();
}

} // namespace KarvelloUI
