#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"

#include <QAbstractItemModel>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace KarvelloUI {

/// A group of the settings that lists what a store keeps, and tells what the store could not do. Main thread only.
class SettingsListGroupModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made with the screen")
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString text READ text NOTIFY changed FINAL)
    /// In place of a list without rows.
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed FINAL)
    Q_PROPERTY(QAbstractItemModel* rows READ rows CONSTANT FINAL)
    Q_PROPERTY(int count READ count NOTIFY changed FINAL)
    /// Empty for none.
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed FINAL)

public:
    [[nodiscard]] virtual QString title() const = 0;
    [[nodiscard]] virtual QString text() const = 0;
    [[nodiscard]] virtual QString emptyText() const = 0;
    /// The same for as long as the group lives, and its own.
    [[nodiscard]] virtual QAbstractItemModel* rows() = 0;
    [[nodiscard]] int count() { return rows()->rowCount(); }
    [[nodiscard]] QString errorText() const;

    Q_INVOKABLE void dismissError() { m_store.clearError(); }

Q_SIGNALS:
    void changed();

protected:
    /// `dashboard` and its store outlive the group.
    SettingsListGroupModel(MacCleanerDashboardModel& dashboard, PreferenceStore& store, QObject* parent);

    [[nodiscard]] MacCleanerDashboardModel& dashboard() const { return m_dashboard; }
    /// Makes the rows anew, and tells that the group changed. Called for another language, too.
    virtual void refresh() = 0;

private:
    MacCleanerDashboardModel& m_dashboard;
    PreferenceStore& m_store;
};

} // namespace KarvelloUI
