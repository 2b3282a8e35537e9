#pragma once

#include "CleanerCore/Cleaning/CleanResult.h"
#include "CleanerCore/Cleaning/CleaningMode.h"
#include "CleanerCore/Insights/DuplicateKeeperRecommendation.h"
#include "KarvelloUI/Sessions/AuditTrail.h"
#include "KarvelloUI/Sessions/ConfirmedClean.h"
#include "KarvelloUI/Sessions/InsightReview.h"
#include "KarvelloUI/Sessions/InsightScan.h"
#include "KarvelloUI/Sessions/Job.h"
#include "KarvelloUI/Sessions/RunMessages.h"
#include "KarvelloUI/Sessions/SessionServices.h"
#include "KarvelloUI/Stores/SystemMetricHistory.h"
#include "KarvelloUI/Stores/SystemMetricHistoryPersistenceScheduler.h"

#include <QFlags>
#include <QObject>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

namespace KarvelloUI {

/// The insights session: shows where the space went, holds which files the user selects, moves those of one section to
/// the Trash, and samples the machine while somebody looks. Main thread only; everything that touches the disk runs
/// elsewhere, on values.
///
/// At most one operation is current. A scan replaces whatever runs; a clean is refused while the session is busy. What an
/// operation that was replaced brings is dropped whole. A sample of the machine runs beside it.
class MacInsightsViewModel final : public QObject {
    Q_OBJECT

public:
    enum class Phase : std::uint8_t {
        /// Nothing was found yet, or results were cleared.
        idle,
        scanning,
        /// A report can be reviewed.
        ready,
        cleaning,
        /// The last clean ran to its end.
        finished,
    };

    using Files = InsightReview::Files;

    struct Setup {
        Platform::FileURL homeDirectory;
        CleanerCore::InsightConfiguration scannerConfiguration = CleanerCore::InsightConfiguration::standard();
        CleanerCore::CleaningMode cleaningMode = CleanerCore::CleaningMode::moveToTrash;
        SystemSnapshotProvider systemSnapshotProvider = [] { return CleanerCore::SystemResourceSnapshot::current(); };
        SystemMetricHistoryPersistenceScheduler::Intervals metricHistoryIntervals{
            .debounceNanoseconds = 30'000'000'000, .maximumDeferredSaveNanoseconds = 120'000'000'000};
        SystemMetricHistoryPersistenceScheduler::Time metricHistoryTime =
            SystemMetricHistoryPersistenceScheduler::Time::ofMachine();
    };

    /// Loads the log and the history. What `services` names and the preferences of the store must outlive the session.
    MacInsightsViewModel(SessionServices services, Setup setup, CleanerCore::CleanupAuditStore auditStore,
        const SystemMetricHistoryStore& systemMetricHistoryStore, QObject* parent = nullptr);

    [[nodiscard]] Phase phase() const { return m_phase; }
    [[nodiscard]] bool isBusy() const { return m_phase == Phase::scanning || isMoving(); }
    /// A clean runs. What it has done by then is written down only if it comes to its end.
    [[nodiscard]] bool isMoving() const { return m_phase == Phase::cleaning; }
    [[nodiscard]] const CleanerCore::MacStorageInsightReport& report() const { return m_review.report(); }
    [[nodiscard]] const std::shared_ptr<const InsightIndex>& index() const { return m_review.index(); }
    [[nodiscard]] const std::optional<CleanerCore::CleanResult>& lastCleanResult() const { return m_lastCleanResult; }
    [[nodiscard]] const std::vector<CleanerCore::CleanupAuditEntry>& auditEntries() const { return m_audit.entries(); }
    [[nodiscard]] bool isAuditLogLoaded() const { return m_audit.isLoaded(); }
    /// The one place where a failure reaches the user.
    [[nodiscard]] const std::optional<std::string>& errorMessage() const { return m_errorMessage; }
    [[nodiscard]] const ActiveScan& activeScan() const { return m_active; }
    /// Of the scan that runs; empty while none does.
    [[nodiscard]] const CleanerCore::InsightScanProgress& scanProgress() const { return m_scanProgress; }

    /// A grant's home takes the place of the session's.
    void scan(const std::optional<ResolvedHomeAccessBookmark>& homeAccessBookmark);
    /// A scan ends at once, and the report from before it stays. A clean comes to its end by itself, soon.
    void cancelCurrentOperation();
    /// Forgets the report and whatever runs. The log and the history stay.
    void clearScanResults();

    [[nodiscard]] const std::unordered_set<std::string>& selectedIDs() const { return m_review.selectedIDs(); }
    [[nodiscard]] qint64 selectedCount() const { return m_review.selectedCount(); }
    [[nodiscard]] qint64 selectedBytes() const { return m_review.selectedBytes(); }
    /// The files are those of the report on show.
    [[nodiscard]] Files files(MacInsightFileSection section) const { return m_review.files(section); }
    [[nodiscard]] Files selectableFiles(MacInsightFileSection section) const;
    [[nodiscard]] Files selectedFiles(MacInsightFileSection section) const { return m_review.selectedFiles(section); }
    [[nodiscard]] bool isSelected(const CleanerCore::FileInsight& file) const { return m_review.isSelected(file.id); }
    [[nodiscard]] bool isSelectable(const CleanerCore::FileInsight& file) const;
    /// Nothing happens to a file that is not selectable.
    void setSelected(const CleanerCore::FileInsight& file, bool isSelected);
    void selectAll(MacInsightFileSection section);
    void clearSelection(MacInsightFileSection section);

    /// Cleans what of the section is selected and may still be cleaned. Nothing happens while the session is busy. The
    /// messages take the place of the session's own.
    void cleanSelected(MacInsightFileSection section, std::optional<std::string> failureMessage = std::nullopt,
        std::optional<std::string> cancellationMessage = std::nullopt);

    /// The groups of duplicates as they are reviewed, in the order of the report.
    [[nodiscard]] const std::vector<DuplicateReviewGroupPresentation>& duplicateReviewGroups() const;
    [[nodiscard]] const std::vector<CleanerCore::DuplicateFileGroup>& duplicateGroupsForReview() const;
    [[nodiscard]] qint64 duplicateFileCount() const;
    [[nodiscard]] qint64 duplicateSelectableCount() const;
    [[nodiscard]] qint64 duplicateSelectedCount() const;
    [[nodiscard]] qint64 duplicateSelectedBytes() const;
    /// Made anew for a group that the report does not know; that one outlives what is given back.
    [[nodiscard]] DuplicateReviewGroupPresentation duplicateReviewGroupPresentation(
        const CleanerCore::DuplicateFileGroup& group) const;
    void selectDuplicateExtras(const CleanerCore::DuplicateFileGroup& group);
    void clearDuplicateGroupSelection(const CleanerCore::DuplicateFileGroup& group);
    [[nodiscard]] bool isDuplicateKeeper(const CleanerCore::FileInsight& file) const;
    /// Of the group that holds the file; nothing for any other.
    [[nodiscard]] const CleanerCore::DuplicateKeeperRecommendation* duplicateKeeperRecommendation(
        const CleanerCore::FileInsight& file) const;

    [[nodiscard]] const SystemMetricHistory& systemMetricHistory() const { return m_systemMetricHistory; }
    [[nodiscard]] const CleanerCore::SystemResourceSnapshot& currentSystemSnapshot() const
    {
        return m_currentSystemSnapshot;
    }
    /// Takes a sample, in the background. Nothing happens while one is under way.
    void refreshSystemSnapshot();
    /// Saves the history now; the write itself goes on in the background.
    void flushSystemMetricHistory();

Q_SIGNALS:
    void phaseChanged();
    void progressChanged();
    void reportChanged();
    void selectionChanged();
    void resultsChanged();
    void auditEntriesChanged();
    void errorMessageChanged();
    void systemMetricsChanged();
    /// These positions of `duplicateReviewGroups` are presented anew, and no others: told before `selectionChanged`. Not
    /// told for a new report.
    void duplicateReviewGroupsChanged(const std::vector<std::size_t>& positions);

private:
    enum class Change : std::uint16_t {
        phase = 1,
        report = 2,
        selection = 4,
        results = 8,
        auditEntries = 16,
        errorMessage = 32,
        systemMetrics = 64,
        duplicateReviewGroups = 128,
        progress = 256,
    };
    Q_DECLARE_FLAGS(Changes, Change)

    struct PreparedScan;
    struct Eligibility;
    struct CleanRun;

    void applyScan(JobOutcome<PreparedScan> outcome);
    void applyReport(InsightReview review);
    void applyEligibility(const Eligibility& eligibility);
    void applyClean(JobOutcome<CleanRun> outcome, Phase phaseBefore, const RunMessages& messages);
    [[nodiscard]] InsightReview emptyReview() const;
    [[nodiscard]] Phase restingPhase() const;
    void recordSystemSnapshot(const CleanerCore::SystemResourceSnapshot& snapshot);

    void setPhase(Phase phase);
    void setErrorMessage(std::optional<std::string> message);
    void setLastCleanResult(std::optional<CleanerCore::CleanResult> result);
    void noteSelection(InsightReview::Outcome outcome);
    void announceDuplicateReviewGroups();
    /// Tells observers of what has changed since the last call, once all of it holds. One of them may destroy the
    /// session: this is the last thing that a function does.
    void publish();
    void noteChange(Change change) { m_changes |= change; }

    SessionServices m_services;
    Platform::FileURL m_homeDirectory;
    CleanerCore::InsightConfiguration m_scannerConfiguration;
    CleanerCore::CleaningMode m_cleaningMode;
    SystemSnapshotProvider m_systemSnapshotProvider;

    Changes m_changes;
    Phase m_phase = Phase::idle;
    InsightReview m_review;
    std::vector<std::size_t> m_changedDuplicateGroups;
    std::optional<CleanerCore::CleanResult> m_lastCleanResult;
    std::optional<std::string> m_errorMessage;
    CleanerCore::InsightScanProgress m_scanProgress;
    ActiveScan m_active;
    SystemMetricHistory m_systemMetricHistory;
    CleanerCore::SystemResourceSnapshot m_currentSystemSnapshot;
    std::int64_t m_systemMetricHistorySaveSequence = 0;
    SystemMetricHistoryPersistenceScheduler m_systemMetricHistoryPersistence;
    AuditTrail m_audit;
    Job m_job;
    Job m_systemSnapshotJob;
};

} // namespace KarvelloUI
