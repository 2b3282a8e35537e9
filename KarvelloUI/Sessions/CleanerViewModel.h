#pragma once

#include "CleanerCore/Cleaning/CleanResult.h"
#include "CleanerCore/Cleaning/CleanupRestoreCenterSnapshot.h"
#include "CleanerCore/Cleaning/RestoreResult.h"
#include "CleanerCore/Scan/CleanupScanMode.h"
#include "CleanerCore/Scan/StorageScanProgress.h"
#include "KarvelloUI/Sessions/AuditTrail.h"
#include "KarvelloUI/Sessions/CandidateReview.h"
#include "KarvelloUI/Sessions/CleanupScan.h"
#include "KarvelloUI/Sessions/ConfirmedClean.h"
#include "KarvelloUI/Sessions/IgnoredCandidates.h"
#include "KarvelloUI/Sessions/Job.h"
#include "KarvelloUI/Sessions/RunMessages.h"
#include "KarvelloUI/Sessions/SessionServices.h"

#include <QFlags>
#include <QObject>
#include <QString>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace KarvelloUI {

/// The cleanup session: scans, holds what the user reviews and selects, moves what was confirmed, puts it back, and
/// writes the log. Main thread only; everything that touches the disk runs elsewhere, on values.
///
/// At most one operation is current. A scan replaces whatever runs; a clean or a restore is refused while the session is
/// busy. What an operation that was replaced brings is dropped whole. A clean is judged against exactly the folders of the
/// scan whose report is on show, and nothing is scanned again after it.
class CleanerViewModel final : public QObject {
    Q_OBJECT

public:
    enum class Phase : std::uint8_t {
        /// Nothing was found yet, or results were cleared.
        idle,
        scanning,
        /// A report can be reviewed, one without candidates, too.
        ready,
        cleaning,
        restoring,
        /// The last clean or restore ran to its end.
        finished,
    };

    /// Loads the log. `ignoreStore` and what `services` names must outlive the session. Without a `cleanAction` the
    /// cleaning service does the work.
    CleanerViewModel(SessionServices services, CleanerCore::CleanupAuditStore auditStore,
        CleanupIgnoreStore& ignoreStore, AppCacheRunningAppProvider appCacheRunningAppProvider,
        CleanAction cleanAction = {}, QObject* parent = nullptr);

    [[nodiscard]] Phase phase() const { return m_phase; }
    [[nodiscard]] bool isBusy() const;
    /// A clean or a restore runs. What it has done by then is written down only if it comes to its end.
    [[nodiscard]] bool isMoving() const { return m_phase == Phase::cleaning || m_phase == Phase::restoring; }
    /// Without the ignored candidates.
    [[nodiscard]] const CleanerCore::ScanReport& report() const { return m_review.report(); }
    [[nodiscard]] const std::shared_ptr<const CandidateIndex>& index() const { return m_index; }
    [[nodiscard]] const CleanerCore::StorageScanProgress& scanProgress() const { return m_scanProgress; }
    /// How far the clean or restore is that runs.
    [[nodiscard]] const CleanerCore::ItemProgress& itemProgress() const { return m_itemProgress; }
    /// What restores put back is no longer in it.
    [[nodiscard]] const std::optional<CleanerCore::CleanResult>& lastCleanResult() const { return m_lastCleanResult; }
    [[nodiscard]] const std::optional<CleanerCore::RestoreResult>& lastRestoreResult() const
    {
        return m_lastRestoreResult;
    }
    [[nodiscard]] const std::vector<CleanerCore::CleanupAuditEntry>& auditEntries() const { return m_audit.entries(); }
    [[nodiscard]] bool isAuditLogLoaded() const { return m_audit.isLoaded(); }
    /// The one place where a failure reaches the user.
    [[nodiscard]] const std::optional<std::string>& errorMessage() const { return m_errorMessage; }
    [[nodiscard]] QString errorText() const;
    /// The user has read it. The same failure is told anew the next time.
    void dismissError();
    [[nodiscard]] const ActiveScan& activeScan() const { return m_active; }

    void scanMacDefaults();
    /// A grant's home takes the place of `homeDirectory`.
    void scanMac(CleanerCore::CleanupScanMode mode, const Platform::FileURL& homeDirectory,
        std::vector<CustomScanFolder> customFolders, std::optional<ResolvedHomeAccessBookmark> homeAccessBookmark,
        bool includesDirectDistribution);
    void scanAppSandbox();
    void scan(std::vector<CleanerCore::ScanLocation> locations);
    /// A scan ends at once, and the report from before it stays. A clean or restore comes to its end by itself, soon.
    void cancelCurrentOperation();
    /// Forgets the report and whatever runs. The log and the ignored items stay.
    void clearScanResults();

    [[nodiscard]] qint64 selectedCount() const { return m_review.selection().count(); }
    [[nodiscard]] qint64 selectedBytes() const { return m_review.selection().bytes(); }
    [[nodiscard]] bool hasSelection() const { return selectedCount() > 0; }
    [[nodiscard]] bool areAllCandidatesSelected() const { return m_review.selection().areAllSelected(); }
    [[nodiscard]] bool selectionContainsNonSafe() const { return m_review.selection().containsNonSafe(); }
    [[nodiscard]] const CandidateReview& review() const { return m_review; }
    [[nodiscard]] bool isSelected(const CleanerCore::CleanupCandidate& candidate) const;
    void setSelected(const CleanerCore::CleanupCandidate& candidate, bool isSelected);
    /// Any number at once: positions in the report on show.
    void setSelected(std::span<const std::uint32_t> positions, bool isSelected);
    void selectAllCandidates();
    void clearSelection();

    [[nodiscard]] const CandidateListFilters& filters() const { return m_review.filters(); }
    void setFilters(CandidateListFilters filters);
    [[nodiscard]] std::vector<CandidateListSection> visibleCandidateSections(const KarvelloCopy& copy);
    [[nodiscard]] std::unordered_set<std::string> visibleCandidateIDs(const KarvelloCopy& copy);

    /// Those that are active.
    [[nodiscard]] const std::vector<IgnoredCleanupItem>& ignoredItems() const { return m_ignoredItems; }
    /// Of the report on show.
    [[nodiscard]] qint64 ignoredCandidateCount() const { return static_cast<qint64>(m_ignored.countInReport()); }
    void ignoreCandidate(const CleanerCore::CleanupCandidate& candidate);
    void snoozeCandidate(const CleanerCore::CleanupCandidate& candidate, CleanupIgnoreDuration duration);
    /// Whether there was such an item, and it is gone. Its candidate comes back with the next scan.
    bool removeIgnoredItem(const std::string& id);
    void clearIgnoredItems();

    /// Cleans what `snapshot` holds, or without one what is selected. Nothing happens while the session is busy, or for
    /// candidates that have all left the report. The messages take the place of the session's own.
    void cleanSelected(CleanerCore::CleaningMode mode,
        const std::optional<CandidateSelectionSnapshot>& snapshot = std::nullopt,
        std::optional<std::string> failureMessage = std::nullopt,
        std::optional<std::string> cancellationMessage = std::nullopt);
    /// Puts items of the last clean back.
    void undoLastTrashClean(const std::set<std::string, std::less<>>& candidateIDs,
        std::optional<std::string> failureMessage = std::nullopt,
        std::optional<std::string> cancellationMessage = std::nullopt);
    [[nodiscard]] bool canUndoLastTrashClean() const;
    [[nodiscard]] CleanerCore::CleanupRestoreCenterSnapshot restoreCenterSnapshot() const;

Q_SIGNALS:
    void phaseChanged();
    void reportChanged();
    void selectionChanged();
    void filtersChanged();
    void progressChanged();
    void resultsChanged();
    void auditEntriesChanged();
    void ignoredItemsChanged();
    void errorMessageChanged();

private:
    enum class Change : std::uint16_t {
        phase = 1,
        report = 2,
        selection = 4,
        filters = 8,
        progress = 16,
        results = 32,
        auditEntries = 64,
        ignoredItems = 128,
        errorMessage = 256,
    };
    Q_DECLARE_FLAGS(Changes, Change)

    struct PreparedScan;
    struct CleanRun;
    struct RestoreRun;

    void scan(ScanLocationProvider resolveLocations);
    void applyScan(JobOutcome<PreparedScan> outcome);
    void applyReport(std::shared_ptr<const CandidateIndex> index, CandidateReview::Filters filters);
    void applyClean(JobOutcome<CleanRun> outcome, std::span<const CleanerCore::CleanupCandidate> candidates,
        CleanerCore::CleaningMode mode, const RunMessages& messages);
    void applyRestore(JobOutcome<RestoreRun> outcome, std::span<const CleanerCore::CleanedItem> items,
        CleanerCore::CleanResult cleaned, const RunMessages& messages);
    void endRun(bool wasCancelled, bool hasBegun, std::optional<std::string> message);
    void addRestoredCandidates(const CleanerCore::RestoreResult& result);
    [[nodiscard]] Phase restingPhase() const;

    void setPhase(Phase phase);
    void setScanProgress(CleanerCore::StorageScanProgress progress);
    void setItemProgress(CleanerCore::ItemProgress progress);
    void setErrorMessage(std::optional<std::string> message);
    void dropResults();
    void takeUpIgnoreStore();
    void applyIgnoreStoreError();
    /// Tells observers of what has changed since the last call, once all of it holds. One of them may destroy the
    /// session: this is the last thing that a function does.
    void publish();
    void noteChange(Change change) { m_changes |= change; }

    SessionServices m_services;
    AppCacheRunningAppProvider m_runningApplications;
    CleanAction m_cleanAction;

    Changes m_changes;
    Phase m_phase = Phase::idle;
    CandidateReview m_review;
    std::shared_ptr<const CandidateIndex> m_index = std::make_shared<CandidateIndex>(CleanerCore::ScanReport::empty());
    CleanerCore::StorageScanProgress m_scanProgress;
    CleanerCore::ItemProgress m_itemProgress;
    std::optional<CleanerCore::CleanResult> m_lastCleanResult;
    std::optional<CleanerCore::RestoreResult> m_lastRestoreResult;
    std::optional<std::string> m_errorMessage;
    std::optional<std::string> m_propagatedIgnoreStoreErrorMessage;
    IgnoredCandidates m_ignored;
    std::vector<IgnoredCleanupItem> m_ignoredItems;
    ActiveScan m_active;
    AuditTrail m_audit;
    Job m_job;
};

} // namespace KarvelloUI
