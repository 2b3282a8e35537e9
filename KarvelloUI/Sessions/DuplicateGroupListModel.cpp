#include "KarvelloUI/Sessions/DuplicateGroupListModel.h"

#include "KarvelloUI/Sessions/ShownText.h"

#include <QVariantList>
#include <QVariantMap>

namespace KarvelloUI {

namespace {

QString nameOf(DuplicateGroupSelectionState state)
{
    switch (state) {
    case DuplicateGroupSelectionState::unavailable:
        return QStringLiteral("unavailable");
    case DuplicateGroupSelectionState::none:
        return QStringLiteral("none");
    case DuplicateGroupSelectionState::partial:
        return QStringLiteral("partial");
    case DuplicateGroupSelectionState::all:
        return QStringLiteral("all");
    }
    return {};
}

QVariantMap shown(const DuplicateReviewFilePresentation& row)
{
    return {
        {QStringLiteral("id"), shownText(row.id())},
        {QStringLiteral("name"), shownText(row.file->displayName)},
        {QStringLiteral("path"), shownText(row.file->url.path())},
        {QStringLiteral("sizeBytes"), static_cast<qlonglong>(row.file->sizeBytes)},
        {QStringLiteral("isKeeper"), !row.isExtra()},
        {QStringLiteral("isSelectable"), row.isSelectable},
        {QStringLiteral("isSelected"), row.isSelected},
    };
}

} // namespace

DuplicateGroupListModel::DuplicateGroupListModel(const MacInsightsViewModel& session, QObject* parent)
    : QAbstractListModel(parent)
    , m_session(session)
    , m_count(static_cast<int>(session.duplicateReviewGroups().size()))
{
    connect(&session, &MacInsightsViewModel::reportChanged, this, &DuplicateGroupListModel::showReport);
    connect(&session, &MacInsightsViewModel::duplicateReviewGroupsChanged, this, &DuplicateGroupListModel::announce);
}

int DuplicateGroupListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_count;
}

QVariant DuplicateGroupListModel::data(const QModelIndex& index, int role) const
{
    const auto* const found = group(index.row());
    if (found == nullptr) {
        return {};
    }
    const auto& group = *found;
    switch (role) {
    case idRole:
        return shownText(group.id());
    case sizeBytesRole:
        return static_cast<qlonglong>(group.group->sizeBytes);
    case totalExtraBytesRole:
        return static_cast<qlonglong>(group.totalExtraBytes);
    case selectableExtraBytesRole:
        return static_cast<qlonglong>(group.selectableExtraBytes);
    case selectedExtraBytesRole:
        return static_cast<qlonglong>(group.selectedExtraBytes);
    case selectionStateRole:
        return nameOf(group.selectionState);
    case filesRole: {
        QVariantList files;
        for (const auto& row : group.rows) {
            files.append(shown(row));
        }
        return files;
    }
    default:
        return {};
    }
}

QHash<int, QByteArray> DuplicateGroupListModel::roleNames() const
{
    return {{idRole, "groupID"}, {sizeBytesRole, "sizeBytes"}, {totalExtraBytesRole, "totalExtraBytes"},
        {selectableExtraBytesRole, "selectableExtraBytes"}, {selectedExtraBytesRole, "selectedExtraBytes"},
        {selectionStateRole, "selectionState"}, {filesRole, "files"}};
}

const DuplicateReviewGroupPresentation* DuplicateGroupListModel::group(int row) const
{
    // Between a new report and its rows, the session may have fewer groups.
    const auto& groups = m_session.duplicateReviewGroups();
    return row < 0 || row >= std::ssize(groups) ? nullptr : &groups[static_cast<std::size_t>(row)];
}

QList<int> DuplicateGroupListModel::selectionRoles() const
{
    return {selectedExtraBytesRole, selectionStateRole, filesRole};
}

void DuplicateGroupListModel::showReport()
{
    beginResetModel();
    m_count = static_cast<int>(m_session.duplicateReviewGroups().size());
    endResetModel();
    Q_EMIT countChanged();
}

void DuplicateGroupListModel::announce(const std::vector<std::size_t>& positions)
{
    for (const auto position : positions) {
        const auto row = index(static_cast<int>(position));
        Q_EMIT dataChanged(row, row, selectionRoles());
    }
}

} // namespace KarvelloUI
