#include "KarvelloUI/Sessions/MacInsightsViewModel.h"

#include "KarvelloUI/Sessions/MacInsightsViewModelRuns.h"
#include "KarvelloUI/Sessions/SessionChanges.h"

#include <array>
#include <utility>

namespace KarvelloUI {

using CleanerCore::InsightScanProgress;
using CleanerCore::MacStorageInsightReport;
using CleanerCore::SystemResourceSnapshot;

MacInsightsViewModel::MacInsightsViewModel(SessionServices services, Setup setup,
    CleanerCore::CleanupAuditStore auditStore, const SystemMetricHistoryStore& systemMetricHistoryStore,
    QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_homeDirectory(std::move(setup.homeDirectory))
    , m_scannerConfiguration(setup.scannerConfiguration)
    , m_cleaningMode(setup.cleaningMode)
    , m_systemSnapshotProvider(std::move(setup.systemSnapshotProvider))
    , m_review(emptyReview())
    , m_active(ActiveScan::none(m_services.fileManager))
    , m_systemMetricHistory(systemMetricHistoryStore.load())
    , m_currentSystemSnapshot(report().systemSnapshot)
    , m_systemMetricHistoryPersistence(
          systemMetricHistoryStore, setup.metricHistoryIntervals, std::move(setup.metricHistoryTime))
    , m_audit(std::move(auditStore), m_services.executor,
          [this] {
              noteChange(Change::auditEntries);
              publish();
          })
    , m_job(m_services.executor)
    , m_systemSnapshotJob(m_services.executor)
{
}

void MacInsightsViewModel::scan(const std::optional<ResolvedHomeAccessBookmark>& homeAccessBookmark)
{
    setPhase(Phase::scanning);
    setErrorMessage(std::nullopt);
    setLastCleanResult(std::nullopt);
    InsightScanRequest request{
        .homeDirectory = homeAccessBookmark ? homeAccessBookmark->effectiveHomeDirectory : m_homeDirectory,
        .homeAccessBookmark = homeAccessBookmark,
        .configuration = m_scannerConfiguration,
        .systemSnapshotProvider = m_systemSnapshotProvider};
    m_job.start<InsightScanProgress>(
        [services = m_services, request = std::move(request), selectedIDs = selectedIDs()](
            const std::stop_token& stop, const JobProgress<InsightScanProgress>& progress) mutable {
            auto result = performInsightScan(services, request, progress, stop);
            auto index =
                std::make_shared<const InsightIndex>(std::move(result.report), result.scanned, services.fileManager);
            return PreparedScan{.review = InsightReview(std::move(index), std::move(selectedIDs)),
                .scanned = std::move(result.scanned),
                .homeAccessSkippedItem = std::move(result.homeAccessSkippedItem)};
        },
        [this](InsightScanProgress progress) {
            m_scanProgress = std::move(progress);
            noteChange(Change::progress);
            publish();
        },
        [this](JobOutcome<PreparedScan> outcome) { applyScan(std::move(outcome)); });
    publish();
}

void MacInsightsViewModel::applyScan(JobOutcome<PreparedScan> outcome)
{
    if (!outcome) {
        setErrorMessage(std::move(outcome.error().reason));
        setPhase(restingPhase());
        publish();
        return;
    }
    m_active = std::move(outcome->scanned);
    applyReport(std::move(outcome->review));
    recordSystemSnapshot(report().systemSnapshot);
    if (outcome->homeAccessSkippedItem) {
        setErrorMessage(std::move(outcome->homeAccessSkippedItem->reason));
    }
    setPhase(Phase::ready);
    publish();
}

void MacInsightsViewModel::applyReport(InsightReview review)
{
    // The user went on selecting while the review was made.
    review.replaceSelection(selectedIDs());
    m_review = std::move(review);
    m_currentSystemSnapshot = report().systemSnapshot;
    // Whoever shows groups takes them all anew.
    m_changedDuplicateGroups.clear();
    m_changes.setFlag(Change::duplicateReviewGroups, false);
    noteChange(Change::report);
    noteChange(Change::selection);
    noteChange(Change::systemMetrics);
}

void MacInsightsViewModel::cancelCurrentOperation()
{
    if (m_phase == Phase::scanning) {
        m_job.cancel();
        setPhase(restingPhase());
    } else {
        m_job.requestStop();
    }
    publish();
}

void MacInsightsViewModel::clearScanResults()
{
    m_job.cancel();
    m_active = ActiveScan::none(m_services.fileManager);
    applyReport(emptyReview());
    setPhase(Phase::idle);
    setErrorMessage(std::nullopt);
    setLastCleanResult(std::nullopt);
    publish();
}

InsightReview MacInsightsViewModel::emptyReview() const
{
    MacStorageInsightReport empty({.scannedAt = m_services.now(), .systemSnapshot = m_systemSnapshotProvider()});
    return {std::make_shared<const InsightIndex>(std::move(empty)), {}};
}

MacInsightsViewModel::Phase MacInsightsViewModel::restingPhase() const
{
    return report().heatmapItems.empty() ? Phase::idle : Phase::ready;
}

void MacInsightsViewModel::refreshSystemSnapshot()
{
    if (m_systemSnapshotJob.isRunning()) {
        return;
    }
    m_systemSnapshotJob.start([provider = m_systemSnapshotProvider](const std::stop_token&) { return provider(); },
        [this](JobOutcome<SystemResourceSnapshot> snapshot) {
            if (snapshot) {
                m_currentSystemSnapshot = *std::move(snapshot);
                recordSystemSnapshot(m_currentSystemSnapshot);
            }
            publish();
        });
}

void MacInsightsViewModel::recordSystemSnapshot(const SystemResourceSnapshot& snapshot)
{
    m_systemMetricHistory.append(snapshot);
    m_systemMetricHistoryPersistence.scheduleSave(m_systemMetricHistory, ++m_systemMetricHistorySaveSequence);
    noteChange(Change::systemMetrics);
}

void MacInsightsViewModel::flushSystemMetricHistory()
{
    m_systemMetricHistoryPersistence.flush(m_systemMetricHistory, ++m_systemMetricHistorySaveSequence);
}

void MacInsightsViewModel::setPhase(Phase phase)
{
    if (phase != m_phase) {
        m_phase = phase;
        noteChange(Change::phase);
    }
    if (m_scanProgress.totalRoots != 0) {
        m_scanProgress = {};
        noteChange(Change::progress);
    }
}

void MacInsightsViewModel::setErrorMessage(std::optional<std::string> message)
{
    if (message != m_errorMessage) {
        m_errorMessage = std::move(message);
        noteChange(Change::errorMessage);
    }
}

void MacInsightsViewModel::setLastCleanResult(std::optional<CleanerCore::CleanResult> result)
{
    m_lastCleanResult = std::move(result);
    noteChange(Change::results);
}

void MacInsightsViewModel::announceDuplicateReviewGroups()
{
    const auto positions = std::exchange(m_changedDuplicateGroups, {});
    Q_EMIT duplicateReviewGroupsChanged(positions);
}

void MacInsightsViewModel::publish()
{
    using Announcement = void (MacInsightsViewModel::*)();
    static constexpr std::array<std::pair<Change, Announcement>, 9> announcementOf{{
        {Change::report, &MacInsightsViewModel::reportChanged},
        {Change::duplicateReviewGroups, &MacInsightsViewModel::announceDuplicateReviewGroups},
        {Change::selection, &MacInsightsViewModel::selectionChanged},
        {Change::systemMetrics, &MacInsightsViewModel::systemMetricsChanged},
        {Change::results, &MacInsightsViewModel::resultsChanged},
        {Change::auditEntries, &MacInsightsViewModel::auditEntriesChanged},
        {Change::errorMessage, &MacInsightsViewModel::errorMessageChanged},
        {Change::progress, &MacInsightsViewModel::progressChanged},
        {Change::phase, &MacInsightsViewModel::phaseChanged},
    }};
    announceChanges(*this, std::exchange(m_changes, {}), announcementOf);
}

} // namespace KarvelloUI
