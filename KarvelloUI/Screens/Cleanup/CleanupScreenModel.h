#pragma once

#include "KarvelloUI/Advisors/StoragePermissionAdvisor.h"
#include "KarvelloUI/Dashboard/IgnoredItemList.h"
#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Screens/Cleanup/CleanupListModel.h"
#include "KarvelloUI/Screens/Cleanup/SkippedListModel.h"
#include "KarvelloUI/Screens/Exports/ExportMenuModel.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>
#include <QtQmlIntegration>
#include <cstdint>
#include <string>
#include <vector>

namespace KarvelloUI {

/// The review of what a cleanup scan found: which face the screen has, its words, its list, and what the user does there.
/// Nothing moves from here; the footer's button asks the dashboard for a confirmation. Main thread only.
class CleanupScreenModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The dashboard has it.")
    /// "idle", "denied", "scanning", "empty" or "list".
    Q_PROPERTY(QString face READ faceName NOTIFY faceChanged FINAL)
    /// A clean or a restore runs over the list.
    Q_PROPERTY(bool isMoving READ isMoving NOTIFY faceChanged FINAL)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY faceChanged FINAL)
    /// What does not change but with the language, by name.
    Q_PROPERTY(QVariant texts READ texts NOTIFY textsChanged FINAL)
    /// Title, text and so on of the face without a list.
    Q_PROPERTY(QVariant placeholder READ placeholder NOTIFY faceChanged FINAL)

    Q_PROPERTY(QString scanText READ scanText NOTIFY faceChanged FINAL)
    Q_PROPERTY(bool canScan READ canScan NOTIFY faceChanged FINAL)
    Q_PROPERTY(QVariantList scanModes READ scanModes NOTIFY textsChanged FINAL)
    Q_PROPERTY(QString scanMode READ scanMode WRITE setScanMode NOTIFY scanModeChanged FINAL)

    /// Not while a session is at work.
    Q_PROPERTY(bool canChooseScanMode READ canChooseScanMode NOTIFY canChooseScanModeChanged FINAL)

    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY filtersChanged FINAL)
    /// Each choice has the raw value of a category and so on, empty for all.
    Q_PROPERTY(QVariantList categories READ categories NOTIFY choicesChanged FINAL)
    Q_PROPERTY(QString category READ category WRITE setCategory NOTIFY filtersChanged FINAL)
    Q_PROPERTY(QVariantList safetyLevels READ safetyLevels NOTIFY choicesChanged FINAL)
    Q_PROPERTY(QString safety READ safety WRITE setSafety NOTIFY filtersChanged FINAL)
    Q_PROPERTY(QVariantList groupings READ groupings NOTIFY choicesChanged FINAL)
    Q_PROPERTY(QString grouping READ grouping WRITE setGrouping NOTIFY filtersChanged FINAL)
    Q_PROPERTY(bool canFilter READ canFilter NOTIFY faceChanged FINAL)

    Q_PROPERTY(QString summary READ summary NOTIFY listChanged FINAL)
    Q_PROPERTY(QString scannedAt READ scannedAt NOTIFY listChanged FINAL)
    Q_PROPERTY(QString skippedText READ skippedText NOTIFY listChanged FINAL)
    Q_PROPERTY(QString skippedCount READ skippedCount NOTIFY listChanged FINAL)
    Q_PROPERTY(QString skippedSummary READ skippedSummary NOTIFY listChanged FINAL)
    Q_PROPERTY(QString ignoredText READ ignoredText NOTIFY listChanged FINAL)
    Q_PROPERTY(QString ignoredSummary READ ignoredSummary NOTIFY listChanged FINAL)
    Q_PROPERTY(KarvelloUI::CleanupListModel* list READ list CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::SkippedListModel* skipped READ skipped CONSTANT FINAL)
    Q_PROPERTY(QAbstractItemModel* ignored READ ignored CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::ExportMenuModel* exportMenu READ exportMenu CONSTANT FINAL)
    /// The report has candidates, and none passes the filters.
    Q_PROPERTY(bool isEverythingFiltered READ isEverythingFiltered NOTIFY listChanged FINAL)

    /// A `CleanupBanner`; null without one.
    Q_PROPERTY(QVariant banner READ banner NOTIFY bannerChanged FINAL)

    Q_PROPERTY(QString progressTitle READ progressTitle NOTIFY progressChanged FINAL)
    Q_PROPERTY(QString visiting READ visiting NOTIFY progressChanged FINAL)
    /// 0 to 1, negative where it is not known.
    Q_PROPERTY(qreal progress READ progress NOTIFY progressChanged FINAL)
    Q_PROPERTY(QString progressText READ progressText NOTIFY progressChanged FINAL)
    /// Of { value, label }: what the scan has counted.
    Q_PROPERTY(QVariantList figures READ figures NOTIFY progressChanged FINAL)

    Q_PROPERTY(QString selectionTitle READ selectionTitle NOTIFY selectionChanged FINAL)
    /// Of `ConfidencePill`.
    Q_PROPERTY(QVariantList selectionPills READ selectionPills NOTIFY selectionChanged FINAL)
    /// A `Qt::CheckState`.
    Q_PROPERTY(int selectionState READ selectionState NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QString selectionValue READ selectionValue NOTIFY selectionChanged FINAL)
    Q_PROPERTY(bool hasSelection READ hasSelection NOTIFY selectionChanged FINAL)
    Q_PROPERTY(bool canSelectAll READ canSelectAll NOTIFY selectionChanged FINAL)

public:
    // NOLINTNEXTLINE(readability-identifier-naming)
    enum class Face : std::uint8_t { Idle, Denied, Scanning, Empty, List };

    /// `dashboard` outlives the model.
    explicit CleanupScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] Face face() const;
    [[nodiscard]] QString faceName() const;
    [[nodiscard]] bool isMoving() const { return session().isMoving(); }
    [[nodiscard]] bool isBusy() const { return session().isBusy(); }
    [[nodiscard]] QVariantMap texts() const;
    [[nodiscard]] QVariantMap placeholder() const;
    [[nodiscard]] QString scanText() const;
    [[nodiscard]] bool canScan() const { return m_dashboard.canStartCleanupScan(); }
    [[nodiscard]] QVariantList scanModes() const;
    [[nodiscard]] QString scanMode() const;
    /// Another mode clears the results of both sessions.
    void setScanMode(const QString& rawValue);
    [[nodiscard]] bool canChooseScanMode() const { return m_dashboard.canChooseScanMode(); }

    [[nodiscard]] QString searchText() const { return shown(session().filters().searchText); }
    void setSearchText(const QString& text);
    [[nodiscard]] QVariantList categories() const;
    [[nodiscard]] QString category() const;
    void setCategory(const QString& rawValue);
    [[nodiscard]] QVariantList safetyLevels() const;
    [[nodiscard]] QString safety() const;
    void setSafety(const QString& rawValue);
    [[nodiscard]] QVariantList groupings() const;
    [[nodiscard]] QString grouping() const;
    void setGrouping(const QString& rawValue);
    [[nodiscard]] bool canFilter() const { return face() == Face::List && !isBusy(); }
    Q_INVOKABLE void clearFilters();

    [[nodiscard]] QString summary() const;
    [[nodiscard]] QString scannedAt() const;
    [[nodiscard]] QString skippedText() const;
    [[nodiscard]] QString skippedCount() const;
    [[nodiscard]] QString skippedSummary() const;
    [[nodiscard]] QString ignoredText() const;
    [[nodiscard]] QString ignoredSummary() const;
    [[nodiscard]] CleanupListModel* list() { return &m_list; }
    [[nodiscard]] SkippedListModel* skipped() { return &m_skipped; }
    [[nodiscard]] IgnoredItemList* ignored() { return &m_ignored; }
    [[nodiscard]] ExportMenuModel* exportMenu() { return &m_exportMenu; }
    [[nodiscard]] bool isEverythingFiltered() const { return face() == Face::List && m_list.visibleCount() == 0; }

    [[nodiscard]] QVariant banner() const;
    Q_INVOKABLE void closeBanner();
    /// What the banner's button says.
    Q_INVOKABLE void followBanner();

    [[nodiscard]] QString progressTitle() const;
    [[nodiscard]] QString visiting() const;
    [[nodiscard]] qreal progress() const;
    [[nodiscard]] QString progressText() const;
    [[nodiscard]] QVariantList figures() const;

    [[nodiscard]] QString selectionTitle() const;
    [[nodiscard]] QVariantList selectionPills() const;
    [[nodiscard]] int selectionState() const;
    [[nodiscard]] QString selectionValue() const;
    [[nodiscard]] bool hasSelection() const { return session().hasSelection(); }
    [[nodiscard]] bool canSelectAll() const;

    Q_INVOKABLE void scan() { m_dashboard.scanCleanup(); }
    /// The scan begins once access is granted.
    Q_INVOKABLE void grantAccess();
    Q_INVOKABLE void cancel() { session().cancelCurrentOperation(); }
    Q_INVOKABLE void openSettings() { m_dashboard.selectSection(MacDashboardSection::settings); }
    /// The button of the face without a list.
    Q_INVOKABLE void followPlaceholder();
    Q_INVOKABLE void askToClean() { m_dashboard.requestCleanSelected(); }

    // Rows are those of the list now. Nothing happens, and nothing is told, for a row that is no candidate; nothing changes
    // the selection while the session works.
    Q_INVOKABLE void toggle(int row);
    /// All candidates of the section that pass the filters, or none if all of them are selected.
    Q_INVOKABLE void toggleSection(const QString& id);
    Q_INVOKABLE void setSectionOpen(const QString& id, bool isOpen) { m_list.setSectionOpen(id, isOpen); }
    Q_INVOKABLE void setOpen(int row, bool isOpen);
    [[nodiscard]] Q_INVOKABLE bool isRowOpen(int row) const;
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void clearSelection();
    /// Selects all unless all are.
    Q_INVOKABLE void toggleAll();
    /// List of `NamedValue`: what an open row tells.
    [[nodiscard]] Q_INVOKABLE QVariantList factsOf(int row) const;
    [[nodiscard]] Q_INVOKABLE QString menuNameOf(int row) const;
    /// { value, text } for how long the candidate may be hidden.
    [[nodiscard]] Q_INVOKABLE QVariantList snoozesOf(int row) const;
    /// Hides the candidate; `duration` is one of those values.
    Q_INVOKABLE void snooze(int row, const QString& duration);
    /// In the file manager.
    Q_INVOKABLE void reveal(int row);
    /// A row of the hidden items: its candidate comes back with the next scan.
    Q_INVOKABLE void showAgain(int row);
    Q_INVOKABLE void showAllAgain() { session().clearIgnoredItems(); }

Q_SIGNALS:
    void faceChanged();
    void textsChanged();
    void scanModeChanged();
    void canChooseScanModeChanged();
    void filtersChanged();
    void choicesChanged();
    void listChanged();
    void bannerChanged();
    void progressChanged();
    void selectionChanged();

private:
    /// Which of the banners there could be is on show.
    enum class Notice : std::uint8_t { none, failure, result, aggressive, permission };

    [[nodiscard]] CleanerViewModel& session() const { return m_dashboard.cleaner(); }
    [[nodiscard]] DashboardWords words() const { return m_dashboard.words(); }
    [[nodiscard]] Notice notice() const;
    [[nodiscard]] CleanupBanner bannerOf(Notice notice) const;
    void takeUpLanguage();
    void takeUpReport();
    void takeUpSelection();
    void takeUpPhase();
    void takeUpIgnoredItems();
    void showList();
    void setFilters(const CandidateListFilters& filters);

    MacCleanerDashboardModel& m_dashboard;
    CleanupListModel m_list;
    SkippedListModel m_skipped;
    IgnoredItemList m_ignored;
    ExportMenuModel m_exportMenu;
    /// The candidate whose selection is being changed; empty for any number.
    std::string m_toggledID;
    /// The user has put these banners away, until there is another reason for them.
    bool m_isResultClosed = true;
    bool m_isPermissionClosed = false;
    /// What the permissions kept the scan from, as the banner tells it.
    std::vector<StoragePermissionDiagnosis> m_diagnoses;
};

} // namespace KarvelloUI
