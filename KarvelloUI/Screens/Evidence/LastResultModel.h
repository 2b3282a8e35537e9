#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Screens/Evidence/FailedItemList.h"
#include "KarvelloUI/Screens/Home/ShownRefresh.h"

#include <QAbstractItemModel>
#include <QObject>
#include <QString>
#include <QtQmlIntegration>
#include <cstdint>

namespace KarvelloUI {

/// What the last clean or the last restore of this session did, and what it left alone and why.
/// Main thread only.
class LastResultModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The screen has it.")
    Q_PROPERTY(bool hasResult READ hasResult NOTIFY changed FINAL)
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed FINAL)
    /// What the rows are; empty without any.
    Q_PROPERTY(QString failedTitle READ failedTitle NOTIFY changed FINAL)
    Q_PROPERTY(QAbstractItemModel* failedItems READ failedItems CONSTANT FINAL)

public:
    enum class Run : std::uint8_t { clean, restore };

    /// `dashboard` must outlive the model.
    LastResultModel(MacCleanerDashboardModel& dashboard, Run run, QObject* parent = nullptr);

    [[nodiscard]] bool hasResult() const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] QString failedTitle() const;
    [[nodiscard]] QAbstractItemModel* failedItems() { return &m_failedItems; }

Q_SIGNALS:
    void changed();

private:
    void refresh();

    MacCleanerDashboardModel& m_dashboard;
    Run m_run;
    FailedItemList m_failedItems;
    ShownRefresh m_refresh;
};

} // namespace KarvelloUI
