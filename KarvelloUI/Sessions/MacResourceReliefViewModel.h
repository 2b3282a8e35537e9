#pragma once

#include "CleanerCore/Relief/ResourceReliefActionResult.h"
#include "CleanerCore/Relief/ResourceReliefCandidate.h"
#include "CleanerCore/Relief/ResourceReliefEligibility.h"
#include "CleanerCore/Relief/ResourceReliefProcessSnapshot.h"
#include "KarvelloUI/Sessions/Job.h"
#include "KarvelloUI/Sessions/ResourceReliefProviders.h"
#include "KarvelloUI/Sessions/ResourceReliefRequests.h"

#include <QFlags>
#include <QObject>
#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <span>
#include <vector>

namespace KarvelloUI {

/// Which applications take the most of the machine, which of them the user has selected, and the request that these quit.
/// Main thread only; what asks the system runs elsewhere, on values. It may be destroyed at any moment, also by those who
/// observe it: who has not been asked by then is not asked any more.
class MacResourceReliefViewModel final : public QObject {
    Q_OBJECT

public:
    using Candidate = CleanerCore::ResourceReliefCandidate;
    using CandidateID = CleanerCore::ResourceReliefCandidateID;
    using ActionResult = CleanerCore::ResourceReliefActionResult;
    using Refreshed = std::function<void()>;
    using Requested = std::function<void(const std::vector<ActionResult>&)>;

    /// `executor` must outlive the session. `requester` is this application, which is never asked to quit.
    MacResourceReliefViewModel(JobExecutor& executor, ResourceReliefProviders providers,
        ResourceReliefRequester requester, QObject* parent = nullptr);

    /// In the order of the policy.
    [[nodiscard]] const std::vector<Candidate>& candidates() const { return m_candidates; }
    /// Who takes the most first; sorted once for each refresh.
    [[nodiscard]] const std::vector<Candidate>& cpuSortedCandidates() const { return m_cpuSortedCandidates; }
    [[nodiscard]] const std::vector<Candidate>& memorySortedCandidates() const { return m_memorySortedCandidates; }
    [[nodiscard]] const CleanerCore::ResourceReliefCapability& capability() const { return m_capability; }
    [[nodiscard]] bool canRequestQuit() const { return m_capability.canRequestQuitOtherApplications; }
    [[nodiscard]] bool isRefreshing() const { return m_isRefreshing; }
    /// `refreshed` is called when the list is there; at once while another refresh runs, which is not waited for.
    void refreshCandidates(Refreshed refreshed = {});

    /// Only of candidates that may be asked.
    [[nodiscard]] const std::set<CandidateID>& selectedIDs() const { return m_selectedIDs; }
    [[nodiscard]] qint64 selectedCount() const { return static_cast<qint64>(m_selectedIDs.size()); }
    /// In the order of `candidates`.
    [[nodiscard]] std::vector<Candidate> selectedCandidates() const;
    /// Nothing happens for a candidate that may not be asked, or where nobody can be.
    void setSelected(const Candidate& candidate, bool isSelected);
    void clearSelection();

    /// Of the last request.
    [[nodiscard]] const std::vector<ActionResult>& lastResults() const { return m_lastResults; }
    [[nodiscard]] bool isRequestingQuit() const { return m_isRequestingQuit; }
    /// Asks those who are selected, after a second look at each. `requested` gets one result for each when the list is
    /// there again; none, and at once, while another request runs. If somebody was asked, the list is read once more
    /// when they have had time to go.
    void requestQuitForSelection(Requested requested = {});

Q_SIGNALS:
    /// With them the capability and both orders.
    void candidatesChanged();
    void selectionChanged();
    void lastResultsChanged();
    void refreshingChanged();
    void requestingQuitChanged();

private:
    enum class Change : std::uint8_t {
        candidates = 1,
        selection = 2,
        lastResults = 4,
        refreshing = 8,
        requestingQuit = 16,
    };
    Q_DECLARE_FLAGS(Changes, Change)

    /// What is read off the main thread.
    struct Reading {
        std::vector<CleanerCore::ResourceReliefProcessSnapshot> snapshots;
        CleanerCore::ResourceReliefCapability capability;
    };

    void apply(const Reading& reading);
    void finishRequests(std::vector<ActionResult> results, const Requested& requested);
    void schedulePostQuitRefresh();
    /// Tells observers of what has changed since the last call, once all of it holds. False: one of them has destroyed the
    /// session.
    [[nodiscard]] bool publish();

    std::shared_ptr<const ResourceReliefProviders> m_providers;
    ResourceReliefRequester m_requester;
    std::vector<Candidate> m_candidates;
    std::vector<Candidate> m_cpuSortedCandidates;
    std::vector<Candidate> m_memorySortedCandidates;
    CleanerCore::ResourceReliefCapability m_capability = CleanerCore::ResourceReliefCapability::unknown();
    std::set<CandidateID> m_selectedIDs;
    std::vector<ActionResult> m_lastResults;
    bool m_isRefreshing = false;
    bool m_isRequestingQuit = false;
    Changes m_changes;
    Job m_refresh;
    Job m_requests;
    Job m_postQuitRefresh;
};

} // namespace KarvelloUI
