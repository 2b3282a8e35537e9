#pragma once

#include <QAbstractListModel>
#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace KarvelloUI {

/// A short list whose rows are known by a key. What stays on show keeps its row object in the view, wherever it moves to,
/// so that focus and hover stay with it. `Row` has a `key()` and is compared by all that it shows; no two rows have the
/// same key. Meant for some hundred rows: each one looks for its place.
template <typename Row>
class KeyedListModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const final
    {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }
    [[nodiscard]] const std::vector<Row>& rows() const { return m_rows; }
    /// Nothing for a place outside of the list. It holds until the list changes.
    [[nodiscard]] const Row* row(int place) const
    {
        return place >= 0 && place < rowCount() ? &m_rows[static_cast<std::size_t>(place)] : nullptr;
    }

    /// Shows `rows` in their order.
    void show(std::vector<Row> rows)
    {
        removeAllBut(rows);
        for (std::size_t place = 0; place < rows.size(); ++place) {
            put(std::move(rows[place]), static_cast<int>(place));
        }
    }

protected:
    /// Of an index that is one of the list's; nothing for any other.
    [[nodiscard]] const Row* rowAt(const QModelIndex& index) const
    {
        return checkIndex(index, CheckIndexOption::IndexIsValid) ? row(index.row()) : nullptr;
    }

private:
    static auto find(auto first, auto last, const Row& row)
    {
        return std::find_if(first, last, [&row](const Row& other) { return other.key() == row.key(); });
    }

    void removeAllBut(const std::vector<Row>& rows)
    {
        for (int place = rowCount() - 1; place >= 0; --place) {
            if (find(rows.begin(), rows.end(), m_rows[static_cast<std::size_t>(place)]) == rows.end()) {
                beginRemoveRows({}, place, place);
                m_rows.erase(m_rows.begin() + place);
                endRemoveRows();
            }
        }
    }

    /// All rows before the place are in theirs.
    void put(Row row, int place)
    {
        const auto here = m_rows.begin() + place;
        const auto found = find(here, m_rows.end(), row);
        if (found == m_rows.end()) {
            beginInsertRows({}, place, place);
            m_rows.insert(here, std::move(row));
            endInsertRows();
            return;
        }
        if (found != here) {
            const int from = static_cast<int>(std::distance(m_rows.begin(), found));
            beginMoveRows({}, from, from, {}, place);
            std::rotate(here, found, std::next(found));
            endMoveRows();
        }
        if (Row& shown = m_rows[static_cast<std::size_t>(place)]; !(shown == row)) {
            shown = std::move(row);
            Q_EMIT dataChanged(index(place), index(place));
        }
    }

    std::vector<Row> m_rows;
};

} // namespace KarvelloUI
