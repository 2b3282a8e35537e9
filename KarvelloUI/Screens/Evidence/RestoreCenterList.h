#pragma once

#include "CleanerCore/Cleaning/CleanupRestoreCenterSnapshot.h"
#include "KarvelloUI/Dashboard/DashboardWords.h"
#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"

#include <QAbstractListModel>
#include <QString>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace KarvelloUI {

/// What a clean took away, as rows of a view, in the order of the clean. A row is named by a key that no other row of the
/// model ever has. Its texts are made when a view asks for them.
class RestoreCenterList final : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role : int {
        keyRole = Qt::UserRole + 1,
        nameRole,
        /// Of the item's old place, with "~" for the home.
        pathRole,
        /// Its size, and where in the Trash it is.
        subtitleRole,
        sizeRole,
        statusRole,
        isSelectableRole,
        isSelectedRole,
        hasTrashLocationRole,
        /// In full, or that it is not known.
        trashLocationRole,
        isOpenRole,
        accessibleNameRole,
    };
    using IDs = std::set<std::string, std::less<>>;

    struct Row {
        int key = 0;
        CleanerCore::CleanedItem item;
        bool isSelectable = false;
        bool isSelected = false;
        bool isOpen = false;
    };

    /// What became of the rows.
    enum class Outcome : std::uint8_t { same, fewer, others };

    /// `dashboard` must outlive the list.
    explicit RestoreCenterList(const MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Rows that are still there stay as they are, if no others come in between.
    Outcome show(const CleanerCore::CleanupRestoreCenterSnapshot& snapshot);
    /// Only rows that may be selected are.
    void setSelected(const IDs& ids);
    void setOpen(int key, bool isOpen);
    void showOtherWords();

    [[nodiscard]] const std::vector<Row>& rows() const { return m_rows; }
    /// Nothing for a row that has gone.
    [[nodiscard]] const Row* row(int key) const;
    [[nodiscard]] IDs selectableIDs() const;
    [[nodiscard]] int selectableCount() const { return m_selectableCount; }
    [[nodiscard]] int selectedCount() const { return m_selectedCount; }

private:
    [[nodiscard]] bool holdsInOrder(const std::vector<CleanerCore::CleanedItem>& items) const;
    void removeAllBut(const std::vector<CleanerCore::CleanedItem>& items);
    void replace(const std::vector<CleanerCore::CleanedItem>& items);
    void announce(int first, int last, const QList<int>& roles = {});
    [[nodiscard]] QString shownPath(const Platform::FileURL& url) const;
    [[nodiscard]] std::string trashLocation(const Row& row, const DashboardWords& words) const;
    [[nodiscard]] std::string subtitle(const Row& row, const DashboardWords& words) const;
    [[nodiscard]] std::string status(const Row& row, const DashboardWords& words) const;

    const MacCleanerDashboardModel& m_dashboard;
    std::vector<Row> m_rows;
    bool m_allowsRestoreAttempts = false;
    int m_nextKey = 0;
    int m_selectableCount = 0;
    int m_selectedCount = 0;
};

} // namespace KarvelloUI
