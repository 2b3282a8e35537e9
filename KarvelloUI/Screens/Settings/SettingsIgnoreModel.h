#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Screens/Settings/IgnoreListModel.h"

#include <QAbstractItemModel>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace KarvelloUI {

/// The rules that keep candidates out of the review, as far as they hold now. Main thread only.
class SettingsIgnoreModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made with the screen")
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString text READ text NOTIFY changed FINAL)
    /// In place of a list without rows.
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed FINAL)
    Q_PROPERTY(QAbstractItemModel* items READ items CONSTANT FINAL)
    Q_PROPERTY(int count READ count NOTIFY changed FINAL)
    Q_PROPERTY(QString countText READ countText NOTIFY changed FINAL)
    Q_PROPERTY(QString showAgainText READ showAgainText NOTIFY changed FINAL)
    Q_PROPERTY(QString clearText READ clearText NOTIFY changed FINAL)
    /// Empty for none.
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed FINAL)

public:
    /// `dashboard` outlives the model.
    explicit SettingsIgnoreModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString text() const;
    [[nodiscard]] QString emptyText() const;
    [[nodiscard]] QAbstractItemModel* items() { return &m_items; }
    [[nodiscard]] int count() const { return m_items.rowCount(); }
    [[nodiscard]] QString countText() const;
    [[nodiscard]] QString showAgainText() const;
    [[nodiscard]] QString clearText() const;
    [[nodiscard]] QString errorText() const;

    /// The candidate of this row comes back with the next scan.
    Q_INVOKABLE void showAgain(int row);
    Q_INVOKABLE void clear();
    Q_INVOKABLE void dismissError();

Q_SIGNALS:
    void changed();

private:
    void refresh();

    MacCleanerDashboardModel& m_dashboard;
    IgnoreListModel m_items;
};

} // namespace KarvelloUI
