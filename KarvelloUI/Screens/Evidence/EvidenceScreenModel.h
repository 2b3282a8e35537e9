#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Screens/Evidence/CleanupHistoryModel.h"
#include "KarvelloUI/Screens/Evidence/ImpactReportModel.h"
#include "KarvelloUI/Screens/Evidence/LastResultModel.h"
#include "KarvelloUI/Screens/Evidence/RestoreCenterModel.h"
#include "KarvelloUI/Screens/Home/ProjectPanelModel.h"
#include "KarvelloUI/Screens/Home/ReviewLoopModel.h"

#include <QObject>
#include <QString>
#include <QtQmlIntegration>

namespace KarvelloUI {

/// The screen of what was done and what can be taken back, beside what comes up for review. Nothing here cleans.
/// Main thread only.
class EvidenceScreenModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The window has it.")
    Q_PROPERTY(QString title READ title NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString notice READ notice NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString closeName READ closeName NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString cancelTitle READ cancelTitle NOTIFY wordsChanged FINAL)
    /// What went wrong last; empty once it was closed, here or elsewhere.
    Q_PROPERTY(QString errorText READ errorText NOTIFY errorChanged FINAL)
    /// The clean or the restore that runs; empty while none does.
    Q_PROPERTY(QString workTitle READ workTitle NOTIFY workChanged FINAL)
    /// 0 to 1, or below 0 while it is not known.
    Q_PROPERTY(double workProgress READ workProgress NOTIFY workChanged FINAL)
    Q_PROPERTY(QString workProgressText READ workProgressText NOTIFY workChanged FINAL)
    Q_PROPERTY(KarvelloUI::RestoreCenterModel* restoreCenter READ restoreCenter CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::CleanupHistoryModel* history READ history CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::ImpactReportModel* impactReport READ impactReport CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::LastResultModel* lastClean READ lastClean CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::LastResultModel* lastRestore READ lastRestore CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::ReviewLoopModel* reviewLoop READ reviewLoop CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::ProjectPanelModel* projects READ projects CONSTANT FINAL)

public:
    /// `dashboard` must outlive the model.
    explicit EvidenceScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] QString notice() const;
    [[nodiscard]] QString closeName() const;
    [[nodiscard]] QString cancelTitle() const;
    [[nodiscard]] QString errorText() const;
    [[nodiscard]] QString workTitle() const;
    [[nodiscard]] double workProgress() const;
    [[nodiscard]] QString workProgressText() const;
    [[nodiscard]] RestoreCenterModel* restoreCenter() { return &m_restoreCenter; }
    [[nodiscard]] CleanupHistoryModel* history() { return &m_history; }
    [[nodiscard]] ImpactReportModel* impactReport() { return &m_impactReport; }
    [[nodiscard]] LastResultModel* lastClean() { return &m_lastClean; }
    [[nodiscard]] LastResultModel* lastRestore() { return &m_lastRestore; }
    [[nodiscard]] ReviewLoopModel* reviewLoop() { return &m_reviewLoop; }
    [[nodiscard]] ProjectPanelModel* projects() { return &m_projects; }

    /// Until the next failure.
    Q_INVOKABLE void closeError();
    /// What was done by then stays done, and is told.
    Q_INVOKABLE void cancelWork();

Q_SIGNALS:
    void wordsChanged();
    void errorChanged();
    void workChanged();

private:
    MacCleanerDashboardModel& m_dashboard;
    RestoreCenterModel m_restoreCenter;
    CleanupHistoryModel m_history;
    ImpactReportModel m_impactReport;
    LastResultModel m_lastClean;
    LastResultModel m_lastRestore;
    ReviewLoopModel m_reviewLoop;
    ProjectPanelModel m_projects;
};

} // namespace KarvelloUI
