#pragma once

#include "KarvelloUI/Dashboard/IgnoredItemList.h"
#include "KarvelloUI/Screens/Settings/SettingsListGroupModel.h"

#include <QAbstractItemModel>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace KarvelloUI {

/// The rules that keep candidates out of the review, as far as they hold now. Main thread only.
// The base is named in full for the tool that writes down the types.
class SettingsIgnoreModel final : public KarvelloUI::SettingsListGroupModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made with the screen")
    Q_PROPERTY(QString countText READ countText NOTIFY changed FINAL)
    Q_PROPERTY(QString showAgainText READ showAgainText NOTIFY changed FINAL)
    Q_PROPERTY(QString clearText READ clearText NOTIFY changed FINAL)

public:
    /// `dashboard` outlives the model.
    explicit SettingsIgnoreModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QString text() const override;
    [[nodiscard]] QString emptyText() const override;
    [[nodiscard]] QAbstractItemModel* rows() override { return &m_items; }
    [[nodiscard]] QString countText() const;
    [[nodiscard]] QString showAgainText() const;
    [[nodiscard]] QString clearText() const;

    /// The candidate of this row comes back with the next scan.
    Q_INVOKABLE void showAgain(int row);
    Q_INVOKABLE void clear();

private:
    void refresh() override;

    IgnoredItemList m_items;
};

} // namespace KarvelloUI
