#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "KarvelloUI/Dashboard/DashboardWords.h"
#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"

#include <QAbstractListModel>
#include <QString>
#include <QStringList>
#include <vector>

namespace KarvelloUI {

/// The entries of the log as rows of a view, the newest first. A new entry comes in above the others, which stay.
class CleanupHistoryList final : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role : int {
        titleRole = Qt::UserRole + 1,
        dateRole,
        summaryRole,
        iconNameRole,
        /// What became of the bytes; empty where nothing was done.
        pillRole,
        /// A value of the palette's pill kinds.
        pillKindRole,
        accessibleNameRole,
        /// Why items were left, and which ones were dealt with; a line each.
        detailsRole,
        hasDetailsRole,
        isOpenRole,
    };

    /// `dashboard` must outlive the list.
    explicit CleanupHistoryList(const MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void show(std::vector<CleanerCore::CleanupAuditEntry> entries);
    void setOpen(int row, bool isOpen);
    void showOtherWords();

private:
    struct Row {
        CleanerCore::CleanupAuditEntry entry;
        bool isOpen = false;
    };

    /// How many of `entries` stand above the first of the rows, or -1 if the rows do not follow on them.
    [[nodiscard]] int newEntries(const std::vector<CleanerCore::CleanupAuditEntry>& entries) const;
    [[nodiscard]] std::string date(const CleanerCore::CleanupAuditEntry& entry, const DashboardWords& words) const;
    [[nodiscard]] QStringList details(const CleanerCore::CleanupAuditEntry& entry, const DashboardWords& words) const;

    const MacCleanerDashboardModel& m_dashboard;
    std::vector<Row> m_rows;
};

} // namespace KarvelloUI
