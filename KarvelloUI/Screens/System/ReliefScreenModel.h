#pragma once

#include "KarvelloUI/Copy/Vocabulary/ResourceReliefMetric.h"
#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Screens/System/LoadChart.h"
#include "KarvelloUI/Screens/System/ReliefListModel.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <qqml.h>

namespace KarvelloUI {

/// What "CPU Analysis" and "Memory Analysis" show: how hard the machine works, what that means, and which applications
/// could be asked to quit. It sends no request itself; that takes the dashboard's confirmation. Main thread only.
class ReliefScreenModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString title READ title NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString refreshTitle READ refreshTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString monitorTitle READ monitorTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(KarvelloUI::LoadChart chart READ chart NOTIFY chartChanged FINAL)
    Q_PROPERTY(QString interpretationTitle READ interpretationTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString interpretation READ interpretation NOTIFY interpretationChanged FINAL)
    Q_PROPERTY(QString suggestedAction READ suggestedAction NOTIFY interpretationChanged FINAL)
    Q_PROPERTY(QString guarantee READ guarantee NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString reliefTitle READ reliefTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString reliefBody READ reliefBody NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString refreshAppsTitle READ refreshAppsTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString closeTitle READ closeTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(bool isRefreshing READ isRefreshing NOTIFY listStateChanged FINAL)
    Q_PROPERTY(QAbstractItemModel* candidates READ candidates CONSTANT FINAL)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY listStateChanged FINAL)
    Q_PROPERTY(QString limit READ limit NOTIFY listStateChanged FINAL)
    Q_PROPERTY(QStringList results READ results NOTIFY resultsChanged FINAL)
    Q_PROPERTY(bool areAllSent READ areAllSent NOTIFY resultsChanged FINAL)
    Q_PROPERTY(QString footerText READ footerText NOTIFY requestChanged FINAL)
    Q_PROPERTY(QString quitTitle READ quitTitle NOTIFY requestChanged FINAL)
    Q_PROPERTY(bool canRequestQuit READ canRequestQuit NOTIFY requestChanged FINAL)
    Q_PROPERTY(bool isRequestingQuit READ isRequestingQuit NOTIFY requestChanged FINAL)
    Q_PROPERTY(QString quitDisabledReason READ quitDisabledReason NOTIFY requestChanged FINAL)

public:
    /// `dashboard` outlives this model.
    ReliefScreenModel(MacCleanerDashboardModel& dashboard, ResourceReliefMetric metric, QObject* parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] QString refreshTitle() const;
    [[nodiscard]] QString monitorTitle() const;
    [[nodiscard]] LoadChart chart() const { return m_chart; }
    [[nodiscard]] QString interpretationTitle() const;
    [[nodiscard]] QString interpretation() const;
    [[nodiscard]] QString suggestedAction() const;
    /// What is never done for the user.
    [[nodiscard]] QString guarantee() const;
    [[nodiscard]] QString reliefTitle() const;
    [[nodiscard]] QString reliefBody() const;
    [[nodiscard]] QString refreshAppsTitle() const;
    [[nodiscard]] QString closeTitle() const;

    [[nodiscard]] bool isRefreshing() const { return relief().isRefreshing(); }
    /// Who takes the most first.
    [[nodiscard]] QAbstractItemModel* candidates() { return &m_candidates; }
    [[nodiscard]] const ReliefListModel& list() const { return m_candidates; }
    /// Why the list is empty; empty if it is not.
    [[nodiscard]] QString emptyTitle() const;
    /// Why nobody can be asked here; empty where somebody can, and before that is known.
    [[nodiscard]] QString limit() const;

    /// What became of the last request, until the user has read it.
    [[nodiscard]] QStringList results() const;
    [[nodiscard]] bool areAllSent() const;

    [[nodiscard]] QString footerText() const;
    [[nodiscard]] QString quitTitle() const;
    [[nodiscard]] bool canRequestQuit() const;
    [[nodiscard]] bool isRequestingQuit() const { return relief().isRequestingQuit(); }
    [[nodiscard]] QString quitDisabledReason() const;

    /// Looks at the machine and at the running applications now.
    Q_INVOKABLE void refresh();
    Q_INVOKABLE void refreshApps() { relief().refreshCandidates(); }
    Q_INVOKABLE void openMonitor() { m_dashboard.openActivityMonitor(); }
    /// Nothing happens for a row that may not be selected, and while a request is under way.
    Q_INVOKABLE void toggle(int row);
    Q_INVOKABLE void clearSelection();
    /// Leads to the confirmation.
    Q_INVOKABLE void requestQuit();
    Q_INVOKABLE void dismissResults();

Q_SIGNALS:
    void languageChanged();
    void chartChanged();
    void interpretationChanged();
    void listStateChanged();
    void resultsChanged();
    void requestChanged();

private:
    [[nodiscard]] MacResourceReliefViewModel& relief() const { return m_dashboard.resourceRelief(); }
    [[nodiscard]] bool isCPU() const { return m_metric == ResourceReliefMetric::cpu; }
    [[nodiscard]] bool hasReading() const;
    [[nodiscard]] LoadLevel level() const;
    void takeSample();
    void takeCandidates();
    void takeLanguage();

    MacCleanerDashboardModel& m_dashboard;
    ResourceReliefMetric m_metric;
    LoadChart m_chart;
    QString m_interpretation;
    ReliefListModel m_candidates;
    /// The applications have been looked at.
    bool m_isLoaded = false;
    bool m_areResultsRead = false;
};

} // namespace KarvelloUI
