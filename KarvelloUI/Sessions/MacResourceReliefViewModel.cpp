#include "KarvelloUI/Sessions/MacResourceReliefViewModel.h"

#include "CleanerCore/Relief/ResourceReliefPolicy.h"
#include "KarvelloUI/Sessions/ResourceReliefOrder.h"
#include "KarvelloUI/Sessions/SessionChanges.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace KarvelloUI {

using CleanerCore::ResourceReliefActionStatus;

MacResourceReliefViewModel::MacResourceReliefViewModel(
    JobExecutor& executor, ResourceReliefProviders providers, ResourceReliefRequester requester, QObject* parent)
    : QObject(parent)
    , m_providers(std::make_shared<const ResourceReliefProviders>(std::move(providers)))
    , m_requester(std::move(requester))
    , m_refresh(executor)
    , m_requests(executor)
    , m_postQuitRefresh(executor)
{
}

bool MacResourceReliefViewModel::publish()
{
    static constexpr std::array signalOf{
        std::pair(Change::candidates, &MacResourceReliefViewModel::candidatesChanged),
        std::pair(Change::selection, &MacResourceReliefViewModel::selectionChanged),
        std::pair(Change::lastResults, &MacResourceReliefViewModel::lastResultsChanged),
        std::pair(Change::refreshing, &MacResourceReliefViewModel::refreshingChanged),
        std::pair(Change::requestingQuit, &MacResourceReliefViewModel::requestingQuitChanged),
    };
    return announceChanges(*this, std::exchange(m_changes, {}), signalOf);
}

void MacResourceReliefViewModel::refreshCandidates(Refreshed refreshed)
{
    if (m_isRefreshing) {
        if (refreshed) {
            refreshed();
        }
        return;
    }
    m_isRefreshing = true;
    m_changes |= Change::refreshing;
    m_refresh.start(
        [providers = m_providers](const std::stop_token& stop) {
            auto snapshots = providers->candidateProvider(stop);
            return Reading{.snapshots = std::move(snapshots), .capability = providers->capabilityProvider()};
        },
        [this, refreshed = std::move(refreshed)](const JobOutcome<Reading>& reading) {
            if (reading) {
                apply(*reading);
            }
            m_isRefreshing = false;
            m_changes |= Change::refreshing;
            if (publish() && refreshed) {
                refreshed();
            }
        });
    static_cast<void>(publish());
}

void MacResourceReliefViewModel::apply(const Reading& reading)
{
    m_capability = reading.capability;
    m_candidates = m_requester.policy(m_capability).candidates(reading.snapshots);
    m_cpuSortedCandidates = sortedCandidates(m_candidates, ResourceReliefMetric::cpu);
    m_memorySortedCandidates = sortedCandidates(m_candidates, ResourceReliefMetric::memory);
    std::set<CandidateID> kept;
    for (const auto& candidate : m_candidates) {
        if (candidate.eligibility.isActionable && m_selectedIDs.contains(candidate.id)) {
            kept.insert(candidate.id);
        }
    }
    m_changes |= Change::candidates;
    if (std::exchange(m_selectedIDs, kept) != kept) {
        m_changes |= Change::selection;
    }
}

std::vector<MacResourceReliefViewModel::Candidate> MacResourceReliefViewModel::selectedCandidates() const
{
    std::vector<Candidate> selected;
    std::ranges::copy_if(m_candidates, std::back_inserter(selected),
        [this](const Candidate& candidate) { return m_selectedIDs.contains(candidate.id); });
    return selected;
}

void MacResourceReliefViewModel::setSelected(const Candidate& candidate, bool isSelected)
{
    if (!candidate.eligibility.isActionable || !m_capability.canRequestQuitOtherApplications) {
        return;
    }
    const bool isChange =
        isSelected ? m_selectedIDs.insert(candidate.id).second : m_selectedIDs.erase(candidate.id) > 0;
    if (isChange) {
        Q_EMIT selectionChanged();
    }
}

void MacResourceReliefViewModel::clearSelection()
{
    if (!std::exchange(m_selectedIDs, {}).empty()) {
        Q_EMIT selectionChanged();
    }
}

void MacResourceReliefViewModel::requestQuitForSelection(Requested requested)
{
    if (m_isRequestingQuit) {
        if (requested) {
            requested({});
        }
        return;
    }
    m_isRequestingQuit = true;
    m_changes |= Change::requestingQuit;
    m_requests.start([candidates = selectedCandidates(), providers = m_providers, requester = m_requester](
                         const std::stop_token& stop) { return requestQuits(candidates, *providers, requester, stop); },
        [this, requested = std::move(requested)](JobOutcome<std::vector<ActionResult>> results) {
            finishRequests(std::move(results).value_or(std::vector<ActionResult>()), requested);
        });
    static_cast<void>(publish());
}

void MacResourceReliefViewModel::finishRequests(std::vector<ActionResult> results, const Requested& requested)
{
    for (const auto& result : results) {
        if (m_selectedIDs.erase(result.candidateID) > 0) {
            m_changes |= Change::selection;
        }
    }
    m_lastResults = results;
    m_changes |= Change::lastResults;
    if (!publish()) {
        return;
    }
    refreshCandidates([this, results = std::move(results), requested] {
        const bool isSomebodyAsked =
            std::ranges::find(results, ResourceReliefActionStatus::requestSent, &ActionResult::status) != results.end();
        if (isSomebodyAsked) {
            schedulePostQuitRefresh();
        }
        m_isRequestingQuit = false;
        m_changes |= Change::requestingQuit;
        if (publish() && requested) {
            requested(results);
        }
    });
}

void MacResourceReliefViewModel::schedulePostQuitRefresh()
{
    // Takes the place of one that waits.
    m_postQuitRefresh.start(
        [providers = m_providers](const std::stop_token& stop) { providers->postQuitRefreshDelay(stop); },
        [this](const JobOutcome<void>&) { refreshCandidates(); });
}

} // namespace KarvelloUI
