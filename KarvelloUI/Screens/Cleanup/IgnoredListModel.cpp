#include "KarvelloUI/Screens/Cleanup/IgnoredListModel.h"

#include "KarvelloUI/Sessions/ShownText.h"
#include "Platform/Base/LocalizedText.h"

#include <algorithm>

namespace KarvelloUI {

IgnoredListModel::IgnoredListModel(const Platform::FileURL& home, QObject* parent)
    : QAbstractListModel(parent)
    , m_home(home)
{
}

int IgnoredListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant IgnoredListModel::data(const QModelIndex& index, int role) const
{
    if (index.row() < 0 || index.row() >= rowCount()) {
        return {};
    }
    const auto& item = m_items[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case nameRole:
        return shownText(item.displayName);
    case pathRole:
        return shownText(m_home.abbreviate(item.path));
    case sizeRole:
        return shown(m_words.byteSize(item.sizeBytes));
    case durationRole: {
        const auto until =
            item.expiresAt ? Platform::LocalizedText::mediumMoment(*item.expiresAt, m_words.locale()) : std::string();
        return shown(m_words.ignoredCandidateDurationDescription(item.duration, until));
    }
    default:
        return {};
    }
}

QHash<int, QByteArray> IgnoredListModel::roleNames() const
{
    return {{nameRole, "name"}, {pathRole, "path"}, {durationRole, "duration"}, {sizeRole, "size"}};
}

void IgnoredListModel::show(const std::vector<IgnoredCleanupItem>& items, const DashboardWords& words)
{
    const bool areWordsNew = words != m_words;
    m_words = words;
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (std::ranges::find(items, m_items[static_cast<std::size_t>(row)]) == items.end()) {
            beginRemoveRows({}, row, row);
            m_items.erase(m_items.begin() + row);
            endRemoveRows();
        }
    }
    if (m_items != items) {
        beginResetModel();
        m_items = items;
        endResetModel();
    } else if (areWordsNew && rowCount() > 0) {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    }
}

std::string IgnoredListModel::itemID(int row) const
{
    return row < 0 || row >= rowCount() ? std::string() : m_items[static_cast<std::size_t>(row)].id;
}

} // namespace KarvelloUI
