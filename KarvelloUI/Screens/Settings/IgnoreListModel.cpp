#include "KarvelloUI/Screens/Settings/IgnoreListModel.h"

namespace KarvelloUI {

QVariant IgnoreListModel::data(const QModelIndex& index, int role) const
{
    const IgnoreListRow* const row = rowAt(index);
    if (row == nullptr) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
    case pathRole:
        return row->path;
    case sizeRole:
        return row->size;
    case durationRole:
        return row->duration;
    default:
        return {};
    }
}

QHash<int, QByteArray> IgnoreListModel::roleNames() const
{
    return {{pathRole, "path"}, {sizeRole, "size"}, {durationRole, "duration"}};
}

} // namespace KarvelloUI
