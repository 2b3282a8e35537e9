#pragma once

#include "CleanerCore/Cleaning/CleanupSelectionPreview.h"
#include "KarvelloUI/Advisors/DiskCapacitySnapshot.h"
#include "KarvelloUI/Advisors/MacAccessPolicy.h"
#include "KarvelloUI/Copy/Vocabulary/MacDashboardSection.h"
#include "KarvelloUI/Copy/Vocabulary/MacInsightFileSection.h"
#include "KarvelloUI/Dashboard/DashboardMessage.h"
#include "KarvelloUI/Dashboard/DashboardPreferences.h"
#include "KarvelloUI/Dashboard/DashboardServices.h"
#include "KarvelloUI/Dashboard/MacCleanerDashboardDependencies.h"
#include "KarvelloUI/Sessions/CandidateReview.h"
#include "KarvelloUI/Sessions/Job.h"
#include "KarvelloUI/Stores/CleanupReviewPreferencesStore.h"
#include "KarvelloUI/Stores/KarvelloDashboardLaunchRequest.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <deque>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace KarvelloUI {

/// The state of the dashboard's window: which section is on show, what waits for a confirmation, what there is to tell. It
/// guards the way to every move: only a confirmation leads to the sessions. Main thread only.
class MacCleanerDashboardModel final : public QObject {
    Q_OBJECT

public:
    static constexpr int kSystemSnapshotIntervalMilliseconds = 1'000;

    /// `services` names what outlives the model.
    MacCleanerDashboardModel(DashboardServices services, MacCleanerDashboardDependencies dependencies,
        DashboardPreferences& preferences, QObject* parent = nullptr);

    [[nodiscard]] const DashboardServices& services() const { return m_services; }
    [[nodiscard]] DashboardPreferences& preferences() const { return m_preferences; }
    [[nodiscard]] DashboardWords words() const { return m_preferences.words(); }
    [[nodiscard]] CleanerViewModel& cleaner() const { return *m_dependencies.cleanerViewModel; }
    [[nodiscard]] MacInsightsViewModel& insights() const { return *m_dependencies.insightsViewModel; }
    [[nodiscard]] MacResourceReliefViewModel& resourceRelief() const { return *m_dependencies.resourceReliefViewModel; }
    [[nodiscard]] CustomScanFolderStore& customFolders() const { return *m_dependencies.customFolderStore; }
    [[nodiscard]] HomeAccessBookmarkStore& homeAccess() const { return *m_dependencies.homeAccessBookmarkStore; }
    [[nodiscard]] CleanupIgnoreStore& ignoreStore() const { return *m_dependencies.ignoreStore; }
    [[nodiscard]] CleanupReviewPreferencesStore& reviewPreferences() { return m_reviewPreferences; }

    /// The log as its two writers know it, the newest first: each shows at once what it recorded itself.
    [[nodiscard]] std::vector<CleanerCore::CleanupAuditEntry> auditEntries() const;
    [[nodiscard]] bool isAuditLogLoaded() const
    {
        return cleaner().isAuditLogLoaded() && insights().isAuditLogLoaded();
    }

    /// The first appearance of the window: a stored mode that the build does not offer is given up, a waiting launch
    /// request is taken, disk and machine are looked at.
    void dashboardLifecycle();
    /// The section that a launch request asks for.
    void showDestination(KarvelloDashboardLaunchDestination destination);
    /// Nothing is polled for a window that nobody sees.
    void setWindowVisible(bool isVisible);

    [[nodiscard]] MacDashboardSection selectedSection() const { return m_selectedSection; }
    [[nodiscard]] QString selectedSectionText() const;
    /// Any section, the iOS guide as well: it belongs to no group, so only this leads to it.
    void showSection(MacDashboardSection section);
    /// A selection as it may be stored anywhere: what no group of the sidebar holds becomes the dashboard.
    void selectSection(MacDashboardSection section);
    void selectSectionText(const QString& rawValue);
    void openIOSGuide() { showSection(MacDashboardSection::iosGuide); }

    [[nodiscard]] MacAccessPolicy accessPolicy() const;
    [[nodiscard]] bool hasHomeAccess() const { return accessPolicy().hasHomeAccess(); }
    [[nodiscard]] bool canStartCleanupScan() const;
    /// The mode that scans use.
    [[nodiscard]] CleanerCore::CleanupScanMode scanMode() const;
    /// Another mode clears the results of both sessions: neither may be at work.
    [[nodiscard]] bool canChooseScanMode() const { return !cleaner().isBusy() && !insights().isBusy(); }

    /// Nothing happens while the session is busy. Without access to the home there is nothing to scan, and the results of
    /// both sessions go, those of a clean or a restore that runs once it has come to its end.
    void scanCleanup();
    void scanInsights();
    /// Asks for the home folder with the desktop's dialog; `granted` tells whether it is granted now. Nobody is told once
    /// the dashboard has gone.
    void requestHomeAccess(std::function<void(bool granted)> answered = {});

    [[nodiscard]] const DiskCapacitySnapshot& diskSnapshot() const { return m_diskSnapshot; }
    void refreshDiskSnapshot();

    /// The only way to a clean of the review: what is confirmed is what was asked about, whatever is selected by then.
    void requestCleanSelected();
    void cleanSelected();
    void requestInsightClean(MacInsightFileSection section);
    void cleanSelectedInsight();
    void requestQuitSelected();
    void quitSelected();
    /// Any of the three; nothing is pending then.
    void cancelConfirmation();
    [[nodiscard]] bool isShowingCleanConfirmation() const { return m_pendingCleanSelection.has_value(); }
    [[nodiscard]] bool isShowingInsightCleanConfirmation() const { return m_pendingInsightSection.has_value(); }
    [[nodiscard]] bool isShowingResourceReliefConfirmation() const { return m_isResourceReliefPending; }
    [[nodiscard]] const std::optional<CandidateSelectionSnapshot>& pendingCleanSelection() const
    {
        return m_pendingCleanSelection;
    }
    [[nodiscard]] const CleanerCore::CleanupSelectionPreview& pendingCleanPreview() const
    {
        return m_pendingCleanPreview;
    }
    [[nodiscard]] std::optional<MacInsightFileSection> pendingInsightSection() const { return m_pendingInsightSection; }

    [[nodiscard]] const std::set<std::string, std::less<>>& restoreCenterSelectedIDs() const
    {
        return m_restoreCenterSelectedIDs;
    }
    void setRestoreCenterSelectedIDs(std::set<std::string, std::less<>> ids);
    void restoreSelectedTrashMoves();

    /// Shows the item in the file manager, or its folder if it has gone, or says why neither can be.
    void revealInFinder(const Platform::FileURL& item);
    [[nodiscard]] const std::optional<FinderRevealAlert>& alert() const { return m_alert; }
    [[nodiscard]] const std::optional<FinderRevealNotice>& notice() const { return m_notice; }
    /// Each is shown until it is dismissed, in order; one that says the same as another that waits or is shown is not
    /// told twice.
    void showAlert(FinderRevealAlert alert);
    void showNotice(FinderRevealNotice notice);
    /// The next one is shown then.
    void dismissAlert();
    void dismissNotice();
    void openActivityMonitor();

Q_SIGNALS:
    void selectedSectionChanged();
    void accessChanged();
    void diskSnapshotChanged();
    void auditEntriesChanged();
    void confirmationChanged();
    void restoreCenterSelectionChanged();
    void alertChanged();
    void noticeChanged();

private:
    void sanitizeScanModeForDistribution();
    void consumePendingDashboardLaunchDestination();
    /// A session that moves files is asked to stop, and its results go when it has: dropped at once, what it has moved would
    /// be in no log.
    void clearScanResults();
    void clearOverdueScanResults();
    /// What to scan with, possibly no grant; nothing where a scan needs one that there is not.
    [[nodiscard]] std::optional<std::optional<ResolvedHomeAccessBookmark>> grantForScan();
    void prepare(MacDashboardSection section);
    void refreshSystemSnapshotWhileVisible();
    void openParent(const Platform::FileURL& item);
    [[nodiscard]] bool isStanding(const Platform::FileURL& item) const;

    DashboardServices m_services;
    DashboardPreferences& m_preferences;
    MacCleanerDashboardDependencies m_dependencies;
    CleanupReviewPreferencesStore m_reviewPreferences;

    MacDashboardSection m_selectedSection = MacDashboardSection::dashboard;
    bool m_isWindowVisible = false;
    /// The results of the session are to go.
    bool m_isCleanerOverdue = false;
    bool m_isInsightsOverdue = false;
    DiskCapacitySnapshot m_diskSnapshot;
    std::optional<CandidateSelectionSnapshot> m_pendingCleanSelection;
    CleanerCore::CleanupSelectionPreview m_pendingCleanPreview;
    std::optional<MacInsightFileSection> m_pendingInsightSection;
    bool m_isResourceReliefPending = false;
    std::set<std::string, std::less<>> m_restoreCenterSelectedIDs;
    std::optional<FinderRevealAlert> m_alert;
    std::deque<FinderRevealAlert> m_waitingAlerts;
    std::optional<FinderRevealNotice> m_notice;
    QTimer m_systemSnapshotTimer;
    Job m_diskSnapshotJob;
    Platform::UserDefaults::Observation m_launchRequests;
};

} // namespace KarvelloUI
