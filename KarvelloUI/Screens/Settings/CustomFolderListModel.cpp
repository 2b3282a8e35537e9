#include "KarvelloUI/Screens/Settings/CustomFolderListModel.h"

namespace KarvelloUI {

QVariant CustomFolderListModel::data(const QModelIndex& index, int role) const
{
    const CustomFolderRow* const row = rowAt(index);
    if (row == nullptr) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
    case pathRole:
        return row->path;
    case addedRole:
        return row->added;
    case problemRole:
        return row->problem;
    default:
        return {};
    }
}

QHash<int, QByteArray> CustomFolderListModel::roleNames() const
{
    return {{pathRole, "path"}, {addedRole, "added"}, {problemRole, "problem"}};
}

} // namespace KarvelloUI
