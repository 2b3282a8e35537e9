#pragma once

#include "CleanerCore/Scan/CleanupCandidate.h"
#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"

#include <QAbstractListModel>
#include <string>
#include <vector>

namespace KarvelloUI {

/// The items that a run left where they were, and why, as rows of a view.
class FailedItemList final : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role : int {
        nameRole = Qt::UserRole + 1,
        /// With "~" for the home.
        pathRole,
        reasonRole,
    };
    struct Row {
        std::string name;
        Platform::FileURL url;
        std::string reason;

        friend bool operator==(const Row&, const Row&) = default;
    };

    /// `dashboard` must outlive the list.
    explicit FailedItemList(const MacCleanerDashboardModel& dashboard, QObject* parent = nullptr)
        : QAbstractListModel(parent)
        , m_dashboard(dashboard)
    {
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void show(std::vector<Row> rows);
    void showOtherWords();

private:
    const MacCleanerDashboardModel& m_dashboard;
    std::vector<Row> m_rows;
};

} // namespace KarvelloUI
