#include "KarvelloUI/Screens/Evidence/RestoreCenterList.h"

#include "KarvelloUI/Sessions/RestoreCenter.h"
#include "KarvelloUI/Sessions/ShownText.h"
#include "Platform/Base/HomePathAbbreviation.h"

#include <algorithm>
#include <iterator>

namespace KarvelloUI {

using CleanerCore::CleanedItem;

namespace {

/// Whether both are the same move of the same item.
bool isSame(const CleanedItem& left, const CleanedItem& right)
{
    return left.candidate.id == right.candidate.id && left.destinationURL == right.destinationURL;
}

} // namespace

RestoreCenterList::RestoreCenterList(const MacCleanerDashboardModel& dashboard, QObject* parent)
    : QAbstractListModel(parent)
    , m_dashboard(dashboard)
{
}

int RestoreCenterList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant RestoreCenterList::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    const auto& candidate = row.item.candidate;
    const auto words = m_dashboard.words();
    switch (role) {
    case keyRole:
        return row.key;
    case nameRole:
        return shownText(candidate.displayName);
    case pathRole:
        return shownPath(candidate.url);
    case subtitleRole:
        return shown(subtitle(row, words));
    case sizeRole:
        return shown(words.byteSize(candidate.sizeBytes));
    case statusRole:
        return shown(status(row, words));
    case isSelectableRole:
        return row.isSelectable;
    case isSelectedRole:
        return row.isSelected;
    case hasTrashLocationRole:
        return row.item.destinationURL.has_value();
    case trashLocationRole:
        return shown(trashLocation(row, words));
    case isOpenRole:
        return row.isOpen;
    case accessibleNameRole:
        return QStringList{shownText(candidate.displayName), shown(subtitle(row, words)), shownPath(candidate.url),
            shown(status(row, words))}
            .join(QStringLiteral(", "));
    default:
        return {};
    }
}

QHash<int, QByteArray> RestoreCenterList::roleNames() const
{
    return {{keyRole, "key"}, {nameRole, "name"}, {pathRole, "path"}, {subtitleRole, "subtitle"}, {sizeRole, "size"},
        {statusRole, "status"}, {isSelectableRole, "isSelectable"}, {isSelectedRole, "isSelected"},
        {hasTrashLocationRole, "hasTrashLocation"}, {trashLocationRole, "trashLocation"}, {isOpenRole, "isOpen"},
        {accessibleNameRole, "spokenName"}};
}

RestoreCenterList::Outcome RestoreCenterList::show(const CleanerCore::CleanupRestoreCenterSnapshot& snapshot)
{
    const auto& items = snapshot.recentItems;
    const bool isOtherwiseAllowed = m_allowsRestoreAttempts != snapshot.allowsRestoreAttempts;
    m_allowsRestoreAttempts = snapshot.allowsRestoreAttempts;
    if (!isOtherwiseAllowed && holdsInOrder(items)) {
        if (items.size() == m_rows.size()) {
            return Outcome::same;
        }
        removeAllBut(items);
        return Outcome::fewer;
    }
    replace(items);
    return Outcome::others;
}

bool RestoreCenterList::holdsInOrder(const std::vector<CleanedItem>& items) const
{
    auto item = items.begin();
    for (const Row& row : m_rows) {
        if (item != items.end() && isSame(row.item, *item)) {
            ++item;
        }
    }
    return item == items.end();
}

void RestoreCenterList::removeAllBut(const std::vector<CleanedItem>& items)
{
    std::size_t kept = items.size();
    for (auto last = rowCount() - 1; last >= 0;) {
        const auto stays = [&](int place) {
            return kept > 0 && isSame(m_rows[static_cast<std::size_t>(place)].item, items[kept - 1]);
        };
        if (stays(last)) {
            --kept;
            --last;
            continue;
        }
        int first = last;
        while (first > 0 && !stays(first - 1)) {
            --first;
        }
        beginRemoveRows({}, first, last);
        m_rows.erase(m_rows.begin() + first, m_rows.begin() + last + 1);
        endRemoveRows();
        last = first - 1;
    }
    m_selectableCount = static_cast<int>(std::ranges::count_if(m_rows, &Row::isSelectable));
    m_selectedCount = static_cast<int>(std::ranges::count_if(m_rows, &Row::isSelected));
}

void RestoreCenterList::replace(const std::vector<CleanedItem>& items)
{
    beginResetModel();
    m_rows.clear();
    m_rows.reserve(items.size());
    m_selectableCount = 0;
    m_selectedCount = 0;
    for (const CleanedItem& item : items) {
        const bool isSelectable = m_allowsRestoreAttempts && RestoreCenter::isRestorable(item);
        m_selectableCount += isSelectable ? 1 : 0;
        m_rows.push_back({.key = m_nextKey++, .item = item, .isSelectable = isSelectable});
    }
    endResetModel();
}

void RestoreCenterList::setSelected(const IDs& ids)
{
    m_selectedCount = 0;
    int firstChanged = -1;
    for (int place = 0; place < rowCount(); ++place) {
        Row& row = m_rows[static_cast<std::size_t>(place)];
        const bool isSelected = row.isSelectable && ids.contains(row.item.candidate.id);
        m_selectedCount += isSelected ? 1 : 0;
        if (isSelected != row.isSelected) {
            row.isSelected = isSelected;
            firstChanged = firstChanged < 0 ? place : firstChanged;
        } else if (firstChanged >= 0) {
            announce(firstChanged, place - 1, {isSelectedRole});
            firstChanged = -1;
        }
    }
    if (firstChanged >= 0) {
        announce(firstChanged, rowCount() - 1, {isSelectedRole});
    }
}

void RestoreCenterList::setOpen(int key, bool isOpen)
{
    if (const auto* const found = row(key)) {
        const auto place = found - m_rows.data();
        m_rows[static_cast<std::size_t>(place)].isOpen = isOpen;
        announce(static_cast<int>(place), static_cast<int>(place), {isOpenRole});
    }
}

void RestoreCenterList::showOtherWords()
{
    if (!m_rows.empty()) {
        announce(0, rowCount() - 1);
    }
}

void RestoreCenterList::announce(int first, int last, const QList<int>& roles)
{
    Q_EMIT dataChanged(index(first), index(last), roles);
}

const RestoreCenterList::Row* RestoreCenterList::row(int key) const
{
    const auto found = std::ranges::lower_bound(m_rows, key, {}, &Row::key);
    return found != m_rows.end() && found->key == key ? &*found : nullptr;
}

RestoreCenterList::IDs RestoreCenterList::selectableIDs() const
{
    IDs ids;
    for (const Row& row : m_rows) {
        if (row.isSelectable) {
            ids.insert(row.item.candidate.id);
        }
    }
    return ids;
}

QString RestoreCenterList::shownPath(const Platform::FileURL& url) const
{
    return shownText(Platform::HomePathAbbreviation(m_dashboard.services().homeDirectory).abbreviate(url.path()));
}

std::string RestoreCenterList::trashLocation(const Row& row, const DashboardWords& words) const
{
    return row.item.destinationURL
        ? words.restoreCenterTrashLocationLabel() + " " + shownPath(*row.item.destinationURL).toStdString()
        : words.restoreCenterTrashLocationUnavailable();
}

std::string RestoreCenterList::subtitle(const Row& row, const DashboardWords& words) const
{
    if (!row.item.destinationURL) {
        return words.restoreCenterItemSubtitle(row.item.candidate.sizeBytes, std::nullopt);
    }
    return words.restoreCenterItemSubtitle(
        row.item.candidate.sizeBytes, shownPath(*row.item.destinationURL).toStdString());
}

std::string RestoreCenterList::status(const Row& row, const DashboardWords& words) const
{
    return !m_allowsRestoreAttempts ? words.restoreCenterHistoryOnlyStatus()
        : row.isSelectable          ? words.restoreCenterReadyStatus()
                                    : words.restoreCenterUnavailableStatus();
}

} // namespace KarvelloUI
