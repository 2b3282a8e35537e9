#pragma once

#include "KarvelloUI/Controls/MetricTile.h"
#include "KarvelloUI/Controls/NamedValue.h"
#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Screens/System/LoadChart.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <qqml.h>

namespace KarvelloUI {

/// What "System Pulse" shows: the machine as it is now. Each part is told of alone, and only if it says something else.
/// Main thread only.
class SystemScreenModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString title READ title NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString refreshTitle READ refreshTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString monitorTitle READ monitorTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString notesTitle READ notesTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QStringList notes READ notes NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString factsTitle READ factsTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(KarvelloUI::LoadChart pulse READ pulse NOTIFY pulseChanged FINAL)
    Q_PROPERTY(KarvelloUI::MetricTile memory READ memory NOTIFY memoryChanged FINAL)
    Q_PROPERTY(KarvelloUI::MetricTile thermal READ thermal NOTIFY thermalChanged FINAL)
    Q_PROPERTY(KarvelloUI::MetricTile disk READ disk NOTIFY diskChanged FINAL)
    Q_PROPERTY(KarvelloUI::NamedValue uptime READ uptime NOTIFY uptimeChanged FINAL)
    Q_PROPERTY(KarvelloUI::NamedValue loadAverage READ loadAverage NOTIFY loadAverageChanged FINAL)
    Q_PROPERTY(KarvelloUI::NamedValue activeCores READ activeCores NOTIFY activeCoresChanged FINAL)

public:
    /// `dashboard` outlives this model.
    explicit SystemScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] QString refreshTitle() const;
    [[nodiscard]] QString monitorTitle() const;
    [[nodiscard]] QString notesTitle() const;
    [[nodiscard]] QStringList notes() const;
    [[nodiscard]] QString factsTitle() const;
    [[nodiscard]] LoadChart pulse() const { return m_pulse; }
    [[nodiscard]] MetricTile memory() const { return m_memory; }
    [[nodiscard]] MetricTile thermal() const { return m_thermal; }
    [[nodiscard]] MetricTile disk() const { return m_disk; }
    [[nodiscard]] NamedValue uptime() const { return m_uptime; }
    [[nodiscard]] NamedValue loadAverage() const { return m_loadAverage; }
    [[nodiscard]] NamedValue activeCores() const { return m_activeCores; }

    /// Looks at the machine and its disk now.
    Q_INVOKABLE void refresh();
    Q_INVOKABLE void openMonitor() { m_dashboard.openActivityMonitor(); }

Q_SIGNALS:
    void languageChanged();
    void pulseChanged();
    void memoryChanged();
    void thermalChanged();
    void diskChanged();
    void uptimeChanged();
    void loadAverageChanged();
    void activeCoresChanged();

private:
    void takeSample();
    void takeDisk();
    [[nodiscard]] MetricTile memoryTile(const DashboardWords& words) const;
    [[nodiscard]] MetricTile thermalTile(const DashboardWords& words) const;
    [[nodiscard]] MetricTile diskTile(const DashboardWords& words) const;
    template <typename Part>
    void update(Part& part, Part now, void (SystemScreenModel::*changed)());

    MacCleanerDashboardModel& m_dashboard;
    LoadChart m_pulse;
    MetricTile m_memory;
    MetricTile m_thermal;
    MetricTile m_disk;
    NamedValue m_uptime;
    NamedValue m_loadAverage;
    NamedValue m_activeCores;
};

} // namespace KarvelloUI
