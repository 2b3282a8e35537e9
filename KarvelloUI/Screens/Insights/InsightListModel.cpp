#include "KarvelloUI/Screens/Insights/InsightListModel.h"

#include "KarvelloUI/Sessions/ShownText.h"

#include <utility>

namespace KarvelloUI {

int InsightListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant InsightListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
        return {};
    }
    const auto position = static_cast<std::size_t>(index.row());
    const Row& row = m_rows[position];
    const Texts& texts = m_texts[position];
    switch (role) {
    case keyRole:
        return m_firstKey + index.row();
    case Qt::DisplayRole:
    case nameRole:
        return texts.name;
    case pathRole:
        return texts.path;
    case iconNameRole:
        return texts.iconName;
    case ageRole:
        return texts.age;
    case sizeRole:
        return texts.size;
    case reasonRole:
        return texts.reason;
    case pillRole:
        return texts.pill;
    case accessibleNameRole:
        return texts.accessibleName;
    case fullPathRole:
        return shownText(row.file.url.path());
    case explanationRole:
        return texts.explanation;
    case isOpenRole:
        return static_cast<bool>(m_isOpen[position]);
    case isSelectableRole:
        return row.isSelectable;
    case isSelectedRole:
        return row.isSelected;
    default:
        return {};
    }
}

QHash<int, QByteArray> InsightListModel::roleNames() const
{
    return {{keyRole, "key"}, {nameRole, "name"}, {pathRole, "path"}, {iconNameRole, "iconName"}, {ageRole, "age"},
        {sizeRole, "size"}, {reasonRole, "reason"}, {pillRole, "pillText"}, {accessibleNameRole, "spokenName"},
        {fullPathRole, "fullPath"}, {explanationRole, "explanation"}, {isOpenRole, "isOpen"},
        {isSelectableRole, "isSelectable"}, {isSelectedRole, "isSelected"}};
}

void InsightListModel::show(std::vector<Row> rows, std::vector<Texts> texts)
{
    Q_ASSERT(rows.size() == texts.size());
    beginResetModel();
    m_firstKey += static_cast<int>(m_rows.size());
    m_rows = std::move(rows);
    m_texts = std::move(texts);
    m_isOpen.assign(m_rows.size(), false);
    endResetModel();
}

void InsightListModel::setTexts(std::vector<Texts> texts)
{
    Q_ASSERT(m_rows.size() == texts.size());
    m_texts = std::move(texts);
    if (!m_rows.empty()) {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    }
}

void InsightListModel::setSelected(const std::vector<bool>& isSelected)
{
    for (std::size_t position = 0; position < m_rows.size() && position < isSelected.size(); ++position) {
        if (std::exchange(m_rows[position].isSelected, isSelected[position]) != isSelected[position]) {
            const auto changed = index(static_cast<int>(position));
            Q_EMIT dataChanged(changed, changed, {isSelectedRole});
        }
    }
}

void InsightListModel::setOpen(int key, bool isOpen)
{
    if (row(key) == nullptr) {
        return;
    }
    m_isOpen[static_cast<std::size_t>(key - m_firstKey)] = isOpen;
    const auto changed = index(key - m_firstKey);
    Q_EMIT dataChanged(changed, changed, {isOpenRole});
}

const InsightListModel::Row* InsightListModel::row(int key) const
{
    const int position = key - m_firstKey;
    return position < 0 || position >= rowCount() ? nullptr : &m_rows[static_cast<std::size_t>(position)];
}

} // namespace KarvelloUI
