#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Screens/Settings/CustomFolderListModel.h"

#include <QAbstractItemModel>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace KarvelloUI {

/// The folders that the user added to the cleanup scan. Main thread only.
class SettingsFoldersModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made with the screen")
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString text READ text NOTIFY changed FINAL)
    /// In place of a list without rows.
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed FINAL)
    Q_PROPERTY(QAbstractItemModel* folders READ folders CONSTANT FINAL)
    Q_PROPERTY(int count READ count NOTIFY changed FINAL)
    Q_PROPERTY(QString addText READ addText NOTIFY changed FINAL)
    Q_PROPERTY(QString removeText READ removeText NOTIFY changed FINAL)
    Q_PROPERTY(QString revealText READ revealText NOTIFY changed FINAL)
    /// Empty for none.
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed FINAL)

public:
    /// `dashboard` outlives the model.
    explicit SettingsFoldersModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString text() const;
    [[nodiscard]] QString emptyText() const;
    [[nodiscard]] QAbstractItemModel* folders() { return &m_folders; }
    [[nodiscard]] int count() const { return m_folders.rowCount(); }
    [[nodiscard]] QString addText() const;
    [[nodiscard]] QString removeText() const;
    [[nodiscard]] QString revealText() const;
    [[nodiscard]] QString errorText() const;

    /// Asks for a folder with the desktop's dialog. A folder that was there before takes its own place anew.
    Q_INVOKABLE void add();
    Q_INVOKABLE void remove(int row);
    /// In the file manager.
    Q_INVOKABLE void reveal(int row);
    Q_INVOKABLE void dismissError();

Q_SIGNALS:
    void changed();

private:
    void refresh();
    /// What to do about the folder if the last scan skipped it as a whole.
    [[nodiscard]] QString problemOf(const CustomScanFolder& folder) const;
    [[nodiscard]] const CustomFolderRow* row(int place) const;

    MacCleanerDashboardModel& m_dashboard;
    CustomFolderListModel m_folders;
};

} // namespace KarvelloUI
