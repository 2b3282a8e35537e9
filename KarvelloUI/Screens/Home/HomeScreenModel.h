#pragma once

#include "KarvelloUI/Advisors/StorageReviewFigures.h"
#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Screens/Home/HomeRows.h"
#include "KarvelloUI/Screens/Home/ProjectPanelModel.h"
#include "KarvelloUI/Screens/Home/ReviewLoopModel.h"
#include "KarvelloUI/Screens/Home/RowList.h"
#include "KarvelloUI/Screens/Home/ShownRefresh.h"

#include <QObject>
#include <QString>
#include <QtQmlIntegration>

namespace KarvelloUI {

/// The home screen: status and summary. Everything on it leads to a section or starts a scan; it has no way to select or
/// to move a file. Reports are summed up when they change, never for a sample of the machine. Main thread only.
class HomeScreenModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application.")
    Q_PROPERTY(KarvelloUI::HomeTexts texts READ texts NOTIFY textsChanged FINAL)
    Q_PROPERTY(bool canStartScan READ canStartScan NOTIFY textsChanged FINAL)
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY textsChanged FINAL)
    Q_PROPERTY(KarvelloUI::HomeHero hero READ hero NOTIFY heroChanged FINAL)
    /// Of `MetricTile`: processors, memory, heat.
    Q_PROPERTY(KarvelloUI::RowList* metrics READ metrics CONSTANT FINAL)
    /// Of `HomeFlowStep`, four.
    Q_PROPERTY(KarvelloUI::RowList* flow READ flow CONSTANT FINAL)
    /// Of `HomeCoachCard`, one to three, the best first.
    Q_PROPERTY(KarvelloUI::RowList* coach READ coach CONSTANT FINAL)
    /// Of `HomeTimelinePoint`, the present first.
    Q_PROPERTY(KarvelloUI::RowList* timeline READ timeline CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::ReviewLoopModel* reviewLoop READ reviewLoop CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::ProjectPanelModel* projects READ projects CONSTANT FINAL)

public:
    /// While the screen is on show, the disk is looked at this often.
    static constexpr double kDiskSnapshotIntervalSeconds = 30;

    /// `dashboard` must outlive the model.
    explicit HomeScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] const HomeTexts& texts() const { return m_texts; }
    [[nodiscard]] bool canStartScan() const { return m_dashboard.canStartCleanupScan(); }
    [[nodiscard]] bool isScanning() const;
    [[nodiscard]] const HomeHero& hero() const { return m_hero; }
    [[nodiscard]] RowList* metrics() { return &m_metrics; }
    [[nodiscard]] RowList* flow() { return &m_flow; }
    [[nodiscard]] RowList* coach() { return &m_coach; }
    [[nodiscard]] RowList* timeline() { return &m_timeline; }
    [[nodiscard]] ReviewLoopModel* reviewLoop() { return &m_reviewLoop; }
    [[nodiscard]] ProjectPanelModel* projects() { return &m_projects; }

    /// Nothing happens where none can start; `texts` says why.
    Q_INVOKABLE void startScan();
    /// Shows a section of the sidebar, by its raw value.
    Q_INVOKABLE void openSection(const QString& rawValue);

Q_SIGNALS:
    void textsChanged();
    void heroChanged();

private:
    void connectSources();
    void refreshTexts();
    void refreshReports();
    void refreshLog();
    void refreshAdvice();
    void refreshMetrics();
    void refreshFlow();
    void refreshOldDisk();

    MacCleanerDashboardModel& m_dashboard;
    StorageReviewFigures m_figures;
    std::vector<CleanerCore::CleanupAuditEntry> m_log;
    std::int64_t m_recordedMoveCount = 0;
    Platform::Date m_diskSnapshotAt;
    HomeTexts m_texts;
    HomeHero m_hero;
    RowList m_metrics;
    RowList m_flow;
    RowList m_coach;
    RowList m_timeline;
    ReviewLoopModel m_reviewLoop;
    ProjectPanelModel m_projects;
    // In the order in which they build on each other, for when the screen comes back on show.
    ShownRefresh m_reportsRefresh;
    ShownRefresh m_logRefresh;
    ShownRefresh m_textsRefresh;
    ShownRefresh m_adviceRefresh;
    ShownRefresh m_metricsRefresh;
    ShownRefresh m_flowRefresh;
};

} // namespace KarvelloUI
