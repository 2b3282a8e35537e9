#include "KarvelloUI/Screens/Evidence/FailedItemList.h"

#include "KarvelloUI/Sessions/ShownText.h"
#include "Platform/Base/HomePathAbbreviation.h"

#include <utility>

namespace KarvelloUI {

int FailedItemList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant FailedItemList::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case nameRole:
        return shownText(row.name);
    case pathRole:
        return shownText(
            Platform::HomePathAbbreviation(m_dashboard.services().homeDirectory).abbreviate(row.url.path()));
    case reasonRole:
        return shownText(m_dashboard.words().skippedReason(row.reason));
    default:
        return {};
    }
}

QHash<int, QByteArray> FailedItemList::roleNames() const
{
    return {{nameRole, "name"}, {pathRole, "path"}, {reasonRole, "reason"}};
}

void FailedItemList::show(std::vector<Row> rows)
{
    if (rows == m_rows) {
        return;
    }
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

void FailedItemList::showOtherWords()
{
    if (!m_rows.empty()) {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {reasonRole});
    }
}

} // namespace KarvelloUI
