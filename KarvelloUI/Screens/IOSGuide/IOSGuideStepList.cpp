#include "KarvelloUI/Screens/IOSGuide/IOSGuideStepList.h"

#include "KarvelloUI/Dashboard/DashboardWords.h"
#include "KarvelloUI/Dashboard/RawText.h"

#include <utility>

namespace KarvelloUI {

int IOSGuideStepList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant IOSGuideStepList::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case stepRole:
        return rawText(row.step.id);
    case numberRole:
        return index.row() + 1;
    case titleRole:
        return shown(row.step.title);
    case detailRole:
        return shown(row.step.detail);
    case pathRole:
        return shown(row.step.path);
    case safetyNoteRole:
        return shown(row.step.safetyNote);
    case actorRole:
        return row.actor;
    case isElsewhereRole:
        return row.step.actor != IOSStorageChecklistActor::karvelloSandbox;
    case statusRole:
        return rawText(row.step.status);
    case isDoneRole:
        return row.step.status == IOSStorageChecklistStatus::done;
    case pickerNameRole:
        return row.pickerName;
    default:
        return {};
    }
}

QHash<int, QByteArray> IOSGuideStepList::roleNames() const
{
    return {{stepRole, "step"}, {numberRole, "number"}, {titleRole, "title"}, {detailRole, "detail"},
        {pathRole, "path"}, {safetyNoteRole, "safetyNote"}, {actorRole, "actor"}, {isElsewhereRole, "isElsewhere"},
        {statusRole, "status"}, {isDoneRole, "isDone"}, {pickerNameRole, "pickerName"}};
}

void IOSGuideStepList::show(std::vector<Row> rows)
{
    if (m_rows.empty()) {
        beginInsertRows({}, 0, static_cast<int>(rows.size()) - 1);
        m_rows = std::move(rows);
        endInsertRows();
        return;
    }
    for (std::size_t place = 0; place < m_rows.size(); ++place) {
        if (m_rows[place] != rows[place]) {
            m_rows[place] = std::move(rows[place]);
            const auto changed = index(static_cast<int>(place));
            Q_EMIT dataChanged(changed, changed);
        }
    }
}

} // namespace KarvelloUI
