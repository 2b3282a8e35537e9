#include "KarvelloUI/Screens/Home/HomeScreenModel.h"

#include "KarvelloUI/Screens/Home/HomeFigures.h"

#include <utility>

namespace KarvelloUI {

using Phase = CleanerViewModel::Phase;

namespace {

const std::set<MacDashboardSection> kHome{MacDashboardSection::dashboard};

} // namespace

HomeScreenModel::HomeScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
    , m_diskSnapshotAt(dashboard.services().session.now())
    , m_reviewLoop(dashboard)
    , m_projects(dashboard)
    , m_reportsRefresh(dashboard, kHome, [this] { refreshReports(); })
    , m_logRefresh(dashboard, kHome, [this] { refreshLog(); })
    , m_textsRefresh(dashboard, kHome, [this] { refreshTexts(); })
    , m_adviceRefresh(dashboard, kHome, [this] { refreshAdvice(); })
    , m_metricsRefresh(dashboard, kHome, [this] { refreshMetrics(); })
    , m_flowRefresh(dashboard, kHome, [this] { refreshFlow(); })
{
    connectSources();
    for (auto* const refresh :
        {&m_reportsRefresh, &m_logRefresh, &m_textsRefresh, &m_adviceRefresh, &m_metricsRefresh, &m_flowRefresh}) {
        refresh->request();
    }
}

void HomeScreenModel::connectSources()
{
    const auto requesting = [](auto&... refreshes) { return [&refreshes...] { (refreshes.request(), ...); }; };
    CleanerViewModel& cleaner = m_dashboard.cleaner();
    MacInsightsViewModel& insights = m_dashboard.insights();

    const auto reports = requesting(m_reportsRefresh, m_adviceRefresh, m_flowRefresh);
    connect(&cleaner, &CleanerViewModel::reportChanged, this, reports);
    connect(&insights, &MacInsightsViewModel::reportChanged, this, reports);
    connect(&m_dashboard, &MacCleanerDashboardModel::auditEntriesChanged, this,
        requesting(m_logRefresh, m_adviceRefresh, m_flowRefresh));
    connect(&m_dashboard, &MacCleanerDashboardModel::diskSnapshotChanged, this, requesting(m_adviceRefresh));
    connect(&m_dashboard, &MacCleanerDashboardModel::accessChanged, this,
        requesting(m_textsRefresh, m_adviceRefresh, m_flowRefresh));
    connect(&cleaner, &CleanerViewModel::progressChanged, this, requesting(m_flowRefresh));
    connect(&cleaner, &CleanerViewModel::resultsChanged, this, requesting(m_flowRefresh));
    connect(&insights, &MacInsightsViewModel::systemMetricsChanged, this, requesting(m_metricsRefresh, m_flowRefresh));
    connect(&m_dashboard.preferences(), &DashboardPreferences::languageChanged, this,
        requesting(m_textsRefresh, m_adviceRefresh, m_metricsRefresh, m_flowRefresh));

    const auto readDisk = [this] { m_dashboard.refreshDiskSnapshot(); };
    connect(&cleaner, &CleanerViewModel::resultsChanged, this, readDisk);
    connect(&insights, &MacInsightsViewModel::resultsChanged, this, readDisk);
}

bool HomeScreenModel::isScanning() const
{
    return m_dashboard.cleaner().phase() == Phase::scanning;
}

void HomeScreenModel::startScan()
{
    m_dashboard.scanCleanup();
}

void HomeScreenModel::openSection(const QString& rawValue)
{
    m_dashboard.selectSectionText(rawValue);
}

void HomeScreenModel::refreshReports()
{
    m_figures = StorageReviewFigures::of(m_dashboard.cleaner().report(), m_dashboard.insights().report());
}

void HomeScreenModel::refreshLog()
{
    m_log = m_dashboard.auditEntries();
    m_recordedMoveCount = HomeFigures::recordedMoveCount(m_log);
}

void HomeScreenModel::refreshAdvice()
{
    const auto words = m_dashboard.words();
    const auto& disk = m_dashboard.diskSnapshot();
    m_coach.show(HomeFigures::coach(m_figures, disk, m_dashboard.accessPolicy(), words));
    m_timeline.show(HomeFigures::timeline(disk, m_figures, m_log, words));
    HomeHero hero = HomeFigures::hero(disk, m_figures.reclaimableBytes, words);
    if (hero != m_hero) {
        m_hero = std::move(hero);
        Q_EMIT heroChanged();
    }
}

void HomeScreenModel::refreshMetrics()
{
    const MacInsightsViewModel& insights = m_dashboard.insights();
    m_metrics.show(
        HomeFigures::metrics(insights.currentSystemSnapshot(), insights.systemMetricHistory(), m_dashboard.words()));
    refreshOldDisk();
}

/// Other programs fill and empty the disk.
void HomeScreenModel::refreshOldDisk()
{
    const auto now = m_dashboard.services().session.now();
    if (now.secondsSince(m_diskSnapshotAt) >= kDiskSnapshotIntervalSeconds) {
        m_diskSnapshotAt = now;
        m_dashboard.refreshDiskSnapshot();
    }
}

void HomeScreenModel::refreshFlow()
{
    const CleanerViewModel& cleaner = m_dashboard.cleaner();
    m_flow.show(HomeFigures::flow(
        {
            .phase = cleaner.phase(),
            .percentage = cleaner.scanProgress().percentage(),
            .candidateCount = std::ssize(cleaner.report().candidates),
            .secondsSinceScan = m_dashboard.services().session.now().secondsSince(cleaner.report().scannedAt),
            .recordedMoveCount = m_recordedMoveCount,
            .isLogLoaded = m_dashboard.isAuditLogLoaded(),
            .canRestore = cleaner.canUndoLastTrashClean(),
        },
        m_dashboard.words()));
}

} // namespace KarvelloUI
