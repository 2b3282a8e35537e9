#pragma once

#include "KarvelloUI/Screens/Settings/CustomFolderListModel.h"
#include "KarvelloUI/Screens/Settings/SettingsListGroupModel.h"

#include <QAbstractItemModel>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace KarvelloUI {

/// The folders that the user added to the cleanup scan. Main thread only.
// The base is named in full for the tool that writes down the types.
class SettingsFoldersModel final : public KarvelloUI::SettingsListGroupModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made with the screen")
    Q_PROPERTY(QString addText READ addText NOTIFY changed FINAL)
    Q_PROPERTY(QString removeText READ removeText NOTIFY changed FINAL)
    Q_PROPERTY(QString revealText READ revealText NOTIFY changed FINAL)

public:
    /// `dashboard` outlives the model.
    explicit SettingsFoldersModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QString text() const override;
    [[nodiscard]] QString emptyText() const override;
    [[nodiscard]] QAbstractItemModel* rows() override { return &m_folders; }
    [[nodiscard]] QString addText() const;
    [[nodiscard]] QString removeText() const;
    [[nodiscard]] QString revealText() const;

    /// Asks for a folder with the desktop's dialog. A folder that was there before takes its own place anew.
    Q_INVOKABLE void add();
    Q_INVOKABLE void remove(int row);
    /// In the file manager.
    Q_INVOKABLE void reveal(int row);

private:
    void refresh() override;
    /// What to do about the folder if the last scan skipped it as a whole.
    [[nodiscard]] QString problemOf(const CustomScanFolder& folder) const;

    CustomFolderListModel m_folders;
};

} // namespace KarvelloUI
