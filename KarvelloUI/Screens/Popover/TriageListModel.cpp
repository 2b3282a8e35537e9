#include "KarvelloUI/Screens/Popover/TriageListModel.h"

#include "KarvelloUI/Dashboard/RawText.h"
#include "KarvelloUI/Screens/Popover/PopoverIcons.h"
#include "KarvelloUI/Sessions/ShownText.h"

namespace KarvelloUI {

QVariant TriageListModel::data(const QModelIndex& index, int role) const
{
    const TriageListRow* const found = rowAt(index);
    if (found == nullptr) {
        return {};
    }
    const auto& row = found->row;
    switch (role) {
    case iconNameRole:
        return popoverIcon(row.symbol);
    case Qt::DisplayRole:
    case detailRole:
        return shownText(row.detail);
    case buttonTitleRole:
        return shownText(row.buttonTitle);
    case destinationRole:
        return rawText(row.destination);
    case isCriticalRole:
        return row.severity == KarvelloMenuBarReminder::Severity::critical;
    default:
        return {};
    }
}

QHash<int, QByteArray> TriageListModel::roleNames() const
{
    return {
        {iconNameRole, "iconName"},
        {detailRole, "detail"},
        {buttonTitleRole, "buttonTitle"},
        {destinationRole, "destination"},
        {isCriticalRole, "isCritical"},
    };
}

} // namespace KarvelloUI
