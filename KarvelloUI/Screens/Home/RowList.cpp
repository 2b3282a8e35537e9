#include "KarvelloUI/Screens/Home/RowList.h"

#include <algorithm>
#include <utility>

namespace KarvelloUI {

int RowList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant RowList::data(const QModelIndex& index, int role) const
{
    return index.isValid() && index.row() < count() && role == entryRole ? row(index.row()) : QVariant();
}

QHash<int, QByteArray> RowList::roleNames() const
{
    return {{entryRole, "entry"}};
}

void RowList::replace(std::vector<QVariant> rows)
{
    const int oldCount = count();
    const int newCount = static_cast<int>(rows.size());
    for (int place = 0; place < std::min(oldCount, newCount); ++place) {
        QVariant& mine = m_rows[static_cast<std::size_t>(place)];
        QVariant& next = rows[static_cast<std::size_t>(place)];
        if (mine != next) {
            mine = std::move(next);
            Q_EMIT dataChanged(index(place), index(place), {entryRole});
        }
    }
    if (newCount > oldCount) {
        beginInsertRows({}, oldCount, newCount - 1);
        std::move(rows.begin() + oldCount, rows.end(), std::back_inserter(m_rows));
        endInsertRows();
    } else if (newCount < oldCount) {
        beginRemoveRows({}, newCount, oldCount - 1);
        m_rows.resize(static_cast<std::size_t>(newCount));
        endRemoveRows();
    }
    if (newCount != oldCount) {
        Q_EMIT countChanged();
    }
}

} // namespace KarvelloUI
