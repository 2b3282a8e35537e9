#include "KarvelloUI/Screens/Cleanup/SkippedListModel.h"

#include "KarvelloUI/Advisors/StoragePermissionAdvisor.h"
#include "KarvelloUI/Sessions/ShownText.h"

#include <utility>

namespace KarvelloUI {

SkippedListModel::SkippedListModel(const Platform::FileURL& home, QObject* parent)
    : QAbstractListModel(parent)
    , m_home(home)
    , m_index(std::make_shared<const CandidateIndex>())
{
}

int SkippedListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_index->report().skippedItems.size());
}

QVariant SkippedListModel::data(const QModelIndex& index, int role) const
{
    if (index.row() < 0 || index.row() >= rowCount()) {
        return {};
    }
    const auto& item = m_index->report().skippedItems[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case pathRole:
        return shownText(m_home.abbreviate(item.url.path()));
    case reasonRole:
        return shownText(m_words.skippedReason(item.reason));
    case isPermissionRole:
        return StoragePermissionAdvisor::isPermissionRelated(item.reason);
    default:
        return {};
    }
}

QHash<int, QByteArray> SkippedListModel::roleNames() const
{
    return {{pathRole, "path"}, {reasonRole, "reason"}, {isPermissionRole, "isPermission"}};
}

void SkippedListModel::show(std::shared_ptr<const CandidateIndex> index, const DashboardWords& words)
{
    const bool isOther = index->report().skippedItems != m_index->report().skippedItems;
    const bool areWordsNew = words != m_words;
    if (isOther) {
        beginResetModel();
    }
    m_index = std::move(index);
    m_words = words;
    if (isOther) {
        endResetModel();
    } else if (areWordsNew && rowCount() > 0) {
        Q_EMIT dataChanged(this->index(0), this->index(rowCount() - 1));
    }
}

} // namespace KarvelloUI
