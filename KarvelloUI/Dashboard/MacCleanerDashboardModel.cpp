#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"

#include "CleanerCore/Audit/AuditEntryRetention.h"
#include "CleanerCore/Audit/CleanupAuditStore.h"
#include "KarvelloUI/Dashboard/RawText.h"
#include "KarvelloUI/Stores/KarvelloDashboardLaunchRequestStore.h"

#include <QMetaObject>
#include <QPointer>
#include <algorithm>
#include <utility>

namespace KarvelloUI {

namespace {

/// Whether the sidebar leads to it.
bool isInSidebar(MacDashboardSection section)
{
    return section != MacDashboardSection::iosGuide;
}

bool showsMachine(MacDashboardSection section)
{
    return section == MacDashboardSection::dashboard || section == MacDashboardSection::system
        || section == MacDashboardSection::cpuAnalysis || section == MacDashboardSection::memoryAnalysis;
}

/// Whether it shows what the insights session has found.
bool showsInsights(MacDashboardSection section)
{
    return section == MacDashboardSection::heatmap || section == MacDashboardSection::largeFiles
        || section == MacDashboardSection::downloads || section == MacDashboardSection::duplicates
        || section == MacDashboardSection::security;
}

/// Clears the results of the session if they are overdue, unless it moves files.
template <typename Session>
void clearIfOverdue(Session& session, bool& isOverdue)
{
    if (!isOverdue) {
        return;
    }
    if (session.isMoving()) {
        session.cancelCurrentOperation();
        return;
    }
    isOverdue = false;
    session.clearScanResults();
}

} // namespace

MacCleanerDashboardModel::MacCleanerDashboardModel(DashboardServices services,
    MacCleanerDashboardDependencies dependencies, DashboardPreferences& preferences, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_preferences(preferences)
    , m_dependencies(std::move(dependencies))
    , m_reviewPreferences(m_services.defaults)
    , m_diskSnapshotJob(m_services.session.executor)
{
    connect(&cleaner(), &CleanerViewModel::phaseChanged, this, &MacCleanerDashboardModel::accessChanged);
    connect(&cleaner(), &CleanerViewModel::phaseChanged, this, &MacCleanerDashboardModel::clearOverdueScanResults);
    connect(&insights(), &MacInsightsViewModel::phaseChanged, this, &MacCleanerDashboardModel::clearOverdueScanResults);
    connect(&homeAccess(), &HomeAccessBookmarkStore::bookmarkChanged, this, &MacCleanerDashboardModel::accessChanged);
    connect(&resourceRelief(), &MacResourceReliefViewModel::candidatesChanged, this,
        &MacCleanerDashboardModel::sanitizeScanModeForDistribution);
    connect(&cleaner(), &CleanerViewModel::auditEntriesChanged, this, &MacCleanerDashboardModel::auditEntriesChanged);
    connect(
        &insights(), &MacInsightsViewModel::auditEntriesChanged, this, &MacCleanerDashboardModel::auditEntriesChanged);
    connect(&m_preferences, &DashboardPreferences::scanModeChanged, this, &MacCleanerDashboardModel::clearScanResults);
    connect(&m_systemSnapshotTimer, &QTimer::timeout, this, [this] { insights().refreshSystemSnapshot(); });
    // The observer may be called on any thread.
    m_launchRequests = m_services.defaults.observe([this](std::span<const std::string> keys) {
        if (std::ranges::find(keys, KarvelloDashboardLaunchRequestStore::requestIDDefaultsKey) != keys.end()) {
            QMetaObject::invokeMethod(
                this, [this] { consumePendingDashboardLaunchDestination(); }, Qt::QueuedConnection);
        }
    });
}

void MacCleanerDashboardModel::dashboardLifecycle()
{
    sanitizeScanModeForDistribution();
    consumePendingDashboardLaunchDestination();
    refreshDiskSnapshot();
    insights().refreshSystemSnapshot();
}

std::vector<CleanerCore::CleanupAuditEntry> MacCleanerDashboardModel::auditEntries() const
{
    auto entries = cleaner().auditEntries();
    const auto& others = insights().auditEntries();
    entries.insert(entries.end(), others.begin(), others.end());
    return CleanerCore::AuditEntryRetention::limited(std::move(entries), CleanerCore::CleanupAuditStore::defaultLimit);
}

void MacCleanerDashboardModel::setWindowVisible(bool isVisible)
{
    m_isWindowVisible = isVisible;
    refreshSystemSnapshotWhileVisible();
}

QString MacCleanerDashboardModel::selectedSectionText() const
{
    return rawText(m_selectedSection);
}

void MacCleanerDashboardModel::showSection(MacDashboardSection section)
{
    if (section == m_selectedSection) {
        return;
    }
    m_selectedSection = section;
    refreshSystemSnapshotWhileVisible();
    if (isInSidebar(section)) {
        prepare(section);
    }
    Q_EMIT selectedSectionChanged();
}

void MacCleanerDashboardModel::selectSection(MacDashboardSection section)
{
    showSection(isInSidebar(section) ? section : MacDashboardSection::dashboard);
}

void MacCleanerDashboardModel::selectSectionText(const QString& rawValue)
{
    const auto section = fromRawText<MacDashboardSection>(rawValue);
    selectSection(section.value_or(MacDashboardSection::dashboard));
}

void MacCleanerDashboardModel::prepare(MacDashboardSection section)
{
    if (section == MacDashboardSection::cpuAnalysis || section == MacDashboardSection::memoryAnalysis) {
        resourceRelief().refreshCandidates();
    } else if (!showsInsights(section)) {
        insights().refreshSystemSnapshot();
    }
}

void MacCleanerDashboardModel::refreshSystemSnapshotWhileVisible()
{
    if (!m_isWindowVisible || !showsMachine(m_selectedSection)) {
        m_systemSnapshotTimer.stop();
    } else if (!m_systemSnapshotTimer.isActive()) {
        insights().refreshSystemSnapshot();
        m_systemSnapshotTimer.start(kSystemSnapshotIntervalMilliseconds);
    }
}

MacAccessPolicy MacCleanerDashboardModel::accessPolicy() const
{
    return {
        .supportsDirectDistributionScans = m_services.supportsDirectDistributionScans(),
        .isHomeBookmarkStored = homeAccess().bookmark().has_value(),
        .isBusy = cleaner().isBusy(),
    };
}

bool MacCleanerDashboardModel::canStartCleanupScan() const
{
    const MacAccessPolicy policy = accessPolicy();
    return !policy.isBusy && policy.hasHomeAccess();
}

CleanerCore::CleanupScanMode MacCleanerDashboardModel::scanMode() const
{
    return CleanerCore::sanitized(m_preferences.scanMode(), m_services.supportsDirectDistributionScans());
}

void MacCleanerDashboardModel::sanitizeScanModeForDistribution()
{
    if (const auto mode = scanMode(); mode != m_preferences.scanMode()) {
        m_preferences.setScanMode(mode);
    }
}

void MacCleanerDashboardModel::clearScanResults()
{
    m_isCleanerOverdue = true;
    m_isInsightsOverdue = true;
    clearOverdueScanResults();
}

void MacCleanerDashboardModel::clearOverdueScanResults()
{
    clearIfOverdue(cleaner(), m_isCleanerOverdue);
    clearIfOverdue(insights(), m_isInsightsOverdue);
}

void MacCleanerDashboardModel::consumePendingDashboardLaunchDestination()
{
    if (const auto destination = KarvelloDashboardLaunchRequestStore::consumePending(m_services.defaults)) {
        showDestination(*destination);
    }
}

void MacCleanerDashboardModel::showDestination(KarvelloDashboardLaunchDestination destination)
{
    selectSection(sectionOf(destination));
}

void MacCleanerDashboardModel::scanCleanup()
{
    refreshDiskSnapshot();
    if (cleaner().isBusy()) {
        return;
    }
    if (const auto grant = grantForScan()) {
        cleaner().scanMac(scanMode(), m_services.homeDirectory, customFolders().folders(), *grant,
            m_services.supportsDirectDistributionScans());
    }
}

void MacCleanerDashboardModel::scanInsights()
{
    refreshDiskSnapshot();
    if (insights().isBusy()) {
        return;
    }
    if (const auto grant = grantForScan()) {
        insights().scan(*grant);
    }
}

std::optional<std::optional<ResolvedHomeAccessBookmark>> MacCleanerDashboardModel::grantForScan()
{
    auto grant = homeAccess().resolveBookmark(m_services.session.fileManager);
    if (!grant && !m_services.supportsDirectDistributionScans()) {
        clearScanResults();
        return std::nullopt;
    }
    return grant;
}

void MacCleanerDashboardModel::requestHomeAccess(std::function<void(bool granted)> answered)
{
    const auto copy = words();
    m_services.fileDialogs.chooseFolder(
        {
            .message = copy.homeAccessPanelMessage(),
            .prompt = copy.homeAccessPanelPrompt(),
            .directory = m_services.homeDirectory,
        },
        // The dialog may be open for longer than the dashboard.
        [model = QPointer(this), answered = std::move(answered)](const std::optional<Platform::FileURL>& picked) {
            if (!model) {
                return;
            }
            const auto& session = model->services().session;
            const bool isGranted =
                picked && model->homeAccess().setBookmark(*picked, session.fileManager, session.now());
            if (answered) {
                answered(isGranted);
            }
        });
}

void MacCleanerDashboardModel::refreshDiskSnapshot()
{
    m_diskSnapshotJob.start([read = m_services.diskSnapshot](const std::stop_token&) { return read(); },
        [this](JobOutcome<DiskCapacitySnapshot> outcome) {
            if (!outcome || *outcome == m_diskSnapshot) {
                return;
            }
            m_diskSnapshot = *outcome;
            Q_EMIT diskSnapshotChanged();
        });
}

void MacCleanerDashboardModel::setRestoreCenterSelectedIDs(std::set<std::string, std::less<>> ids)
{
    if (ids != m_restoreCenterSelectedIDs) {
        m_restoreCenterSelectedIDs = std::move(ids);
        Q_EMIT restoreCenterSelectionChanged();
    }
}

void MacCleanerDashboardModel::restoreSelectedTrashMoves()
{
    const auto copy = words();
    cleaner().undoLastTrashClean(
        m_restoreCenterSelectedIDs, copy.restoreFailureMessage(), copy.restoreCancelledMessage());
    setRestoreCenterSelectedIDs({});
}

} // namespace KarvelloUI
