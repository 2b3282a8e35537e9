#pragma once

#include "KarvelloUI/Advisors/DeveloperProjectAdvisory.h"
#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Screens/Home/RowList.h"
#include "KarvelloUI/Screens/Home/ShownRefresh.h"

#include <QObject>
#include <QString>
#include <QtQmlIntegration>
#include <memory>

namespace KarvelloUI {

class CandidateIndex;

/// A folder of a project that could be made anew. Texts alone: nothing here leads to the folder itself.
struct ProjectRow {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString path MEMBER path FINAL)
    Q_PROPERTY(QString detail MEMBER detail FINAL)
    Q_PROPERTY(QString note MEMBER note FINAL)
    Q_PROPERTY(QString size MEMBER size FINAL)

public:
    QString name = {};
    /// Of the project.
    QString path = {};
    /// What it is, and how long the project has been at rest.
    QString detail = {};
    QString note = {};
    QString size = {};

    friend bool operator==(const ProjectRow&, const ProjectRow&) = default;
};

/// The panel of build and dependency folders in the projects that the user added. It explains and leads to two screens;
/// it runs, selects and moves nothing. Main thread only.
class ProjectPanelModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the screens.")
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed FINAL)
    Q_PROPERTY(QString pillText READ pillText NOTIFY changed FINAL)
    /// Whether there is anything to tell; without it, `emptyTitle` and `emptyText` say why.
    Q_PROPERTY(bool hasProjects READ hasProjects NOTIFY changed FINAL)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed FINAL)
    Q_PROPERTY(QString note READ note NOTIFY changed FINAL)
    Q_PROPERTY(QString openReviewTitle READ openReviewTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString openSettingsTitle READ openSettingsTitle NOTIFY changed FINAL)
    /// Of `NamedValue`.
    Q_PROPERTY(KarvelloUI::RowList* figures READ figures CONSTANT FINAL)
    /// Of `ProjectRow`, three at most, projects at rest first.
    Q_PROPERTY(KarvelloUI::RowList* projects READ projects CONSTANT FINAL)

public:
    /// `dashboard` must outlive the model.
    explicit ProjectPanelModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString title() const { return m_texts.title; }
    [[nodiscard]] QString subtitle() const { return m_texts.subtitle; }
    [[nodiscard]] QString pillText() const { return m_texts.pillText; }
    [[nodiscard]] bool hasProjects() const { return m_texts.hasProjects; }
    [[nodiscard]] QString emptyTitle() const { return m_texts.emptyTitle; }
    [[nodiscard]] QString emptyText() const { return m_texts.emptyText; }
    [[nodiscard]] QString note() const { return m_texts.note; }
    [[nodiscard]] QString openReviewTitle() const { return m_texts.openReviewTitle; }
    [[nodiscard]] QString openSettingsTitle() const { return m_texts.openSettingsTitle; }
    [[nodiscard]] RowList* figures() { return &m_figures; }
    [[nodiscard]] RowList* projects() { return &m_projects; }

    Q_INVOKABLE void openReview();
    Q_INVOKABLE void openSettings();

Q_SIGNALS:
    void changed();

private:
    struct Texts {
        QString title;
        QString subtitle;
        QString pillText;
        bool hasProjects = false;
        QString emptyTitle;
        QString emptyText;
        QString note;
        QString openReviewTitle;
        QString openSettingsTitle;

        friend bool operator==(const Texts&, const Texts&) = default;
    };

    void refresh();
    void summarize();
    void showSummary(const DashboardWords& words);

    MacCleanerDashboardModel& m_dashboard;
    /// The report that `m_summary` is of.
    std::shared_ptr<const CandidateIndex> m_summarized;
    DeveloperProjectAdvisorySummary m_summary;
    Texts m_texts;
    RowList m_figures;
    RowList m_projects;
    ShownRefresh m_refresh;
};

} // namespace KarvelloUI
