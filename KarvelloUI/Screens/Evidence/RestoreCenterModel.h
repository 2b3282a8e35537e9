#pragma once

#include "CleanerCore/Cleaning/CleanupRestoreCenterSnapshot.h"
#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Screens/Evidence/RestoreCenterList.h"
#include "KarvelloUI/Screens/Home/ShownRefresh.h"

#include <QAbstractItemModel>
#include <QObject>
#include <QString>
#include <QtQmlIntegration>

namespace KarvelloUI {

/// The restore centre: what the last clean took away, what of it is chosen to be put back, and where it is. What is only
/// known from the log can be looked at. Main thread only.
class RestoreCenterModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The screen has it.")
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString body READ body NOTIFY changed FINAL)
    Q_PROPERTY(QString summary READ summary NOTIFY changed FINAL)
    Q_PROPERTY(QString eligibleText READ eligibleText NOTIFY changed FINAL)
    /// Where the rows come from when it is the log, and what that means; empty for the clean of this session.
    Q_PROPERTY(QString ledgerNote READ ledgerNote NOTIFY changed FINAL)
    /// The last chance to put things back.
    Q_PROPERTY(QString trashNote READ trashNote NOTIFY changed FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed FINAL)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed FINAL)
    Q_PROPERTY(QAbstractItemModel* rows READ rows CONSTANT FINAL)
    Q_PROPERTY(QString revealOriginalTitle READ revealOriginalTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString revealTrashTitle READ revealTrashTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString menuName READ menuName NOTIFY changed FINAL)
    /// Whether something may be put back at all.
    Q_PROPERTY(bool offersRestore READ offersRestore NOTIFY changed FINAL)
    Q_PROPERTY(bool canSelect READ canSelect NOTIFY changed FINAL)
    Q_PROPERTY(QString selectionHint READ selectionHint NOTIFY selectionChanged FINAL)
    Q_PROPERTY(Qt::CheckState checkState READ checkState NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QString checkName READ checkName NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QString restoreTitle READ restoreTitle NOTIFY selectionChanged FINAL)
    Q_PROPERTY(bool canRestore READ canRestore NOTIFY selectionChanged FINAL)
    Q_PROPERTY(bool isRestoring READ isRestoring NOTIFY selectionChanged FINAL)

public:
    /// `dashboard` must outlive the model.
    explicit RestoreCenterModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString body() const;
    [[nodiscard]] QString summary() const;
    [[nodiscard]] QString eligibleText() const;
    [[nodiscard]] QString ledgerNote() const;
    [[nodiscard]] QString trashNote() const;
    [[nodiscard]] bool isEmpty() const { return m_rows.rows().empty(); }
    [[nodiscard]] QString emptyTitle() const;
    [[nodiscard]] QString emptyText() const;
    [[nodiscard]] QAbstractItemModel* rows() { return &m_rows; }
    [[nodiscard]] QString revealOriginalTitle() const;
    [[nodiscard]] QString revealTrashTitle() const;
    [[nodiscard]] QString menuName() const;
    [[nodiscard]] bool offersRestore() const { return m_rows.selectableCount() > 0; }
    [[nodiscard]] bool canSelect() const;
    [[nodiscard]] QString selectionHint() const;
    [[nodiscard]] Qt::CheckState checkState() const;
    [[nodiscard]] QString checkName() const;
    [[nodiscard]] QString restoreTitle() const;
    [[nodiscard]] bool canRestore() const;
    [[nodiscard]] bool isRestoring() const;

    /// Nothing happens to a row that has gone or may not be selected, or while the session works.
    Q_INVOKABLE void toggle(int key);
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void clearSelection();
    /// Selects all unless all are.
    Q_INVOKABLE void toggleAll();
    Q_INVOKABLE void setOpen(int key, bool isOpen) { m_rows.setOpen(key, isOpen); }
    /// Puts back what is selected; nothing happens where nothing can be restored.
    Q_INVOKABLE void restore();
    /// In the file manager; nothing happens to a row that has gone.
    Q_INVOKABLE void revealOriginal(int key);
    Q_INVOKABLE void revealTrashLocation(int key);

Q_SIGNALS:
    void changed();
    void selectionChanged();

private:
    void refresh();
    void showSelection();

    MacCleanerDashboardModel& m_dashboard;
    RestoreCenterList m_rows;
    /// Of the rows, without them.
    struct Facts {
        std::string summary;
        std::optional<CleanerCore::CleanupAuditSource> auditSource;
        std::optional<Platform::Date> recordedAt;
    };
    Facts m_facts;
    ShownRefresh m_refresh;
};

} // namespace KarvelloUI
