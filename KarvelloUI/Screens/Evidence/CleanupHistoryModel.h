#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Screens/Evidence/CleanupHistoryList.h"
#include "KarvelloUI/Screens/Exports/ExportMenuModel.h"
#include "KarvelloUI/Screens/Home/ShownRefresh.h"

#include <QAbstractItemModel>
#include <QObject>
#include <QString>
#include <QtQmlIntegration>

namespace KarvelloUI {

/// The history of cleans and restores, with what is needed to export it. Main thread only.
class CleanupHistoryModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The screen has it.")
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed FINAL)
    /// In place of the rows: that there are none, or none yet. Empty where there are some.
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed FINAL)
    Q_PROPERTY(QString openName READ openName NOTIFY changed FINAL)
    Q_PROPERTY(QAbstractItemModel* rows READ rows CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::ExportMenuModel* exportMenu READ exportMenu CONSTANT FINAL)

public:
    /// `dashboard` must outlive the model.
    explicit CleanupHistoryModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] bool isLoading() const { return !m_dashboard.isAuditLogLoaded(); }
    [[nodiscard]] QString emptyText() const;
    [[nodiscard]] QString openName() const;
    [[nodiscard]] QAbstractItemModel* rows() { return &m_rows; }
    [[nodiscard]] ExportMenuModel* exportMenu() { return &m_exportMenu; }

    Q_INVOKABLE void setOpen(int row, bool isOpen) { m_rows.setOpen(row, isOpen); }

Q_SIGNALS:
    void changed();

private:
    void refresh();

    MacCleanerDashboardModel& m_dashboard;
    CleanupHistoryList m_rows;
    ExportMenuModel m_exportMenu;
    ShownRefresh m_refresh;
};

} // namespace KarvelloUI
