#include "KarvelloUI/Screens/Evidence/CleanupHistoryList.h"

#include "KarvelloUI/Design/KarvelloPill.h"
#include "KarvelloUI/Sessions/ShownText.h"
#include "Platform/Base/HomePathAbbreviation.h"
#include "Platform/Base/LocalizedText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace KarvelloUI {

using CleanerCore::CleaningMode;
using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupAuditOperation;

namespace {

/// Moved bytes still take their space: only what has come free again is shown as safe.
KarvelloPillKind pillKind(const CleanupAuditEntry& entry)
{
    if (entry.operation == CleanupAuditOperation::restore) {
        return KarvelloPillKind::safe;
    }
    return !entry.mode                             ? KarvelloPillKind::neutral
        : *entry.mode == CleaningMode::moveToTrash ? KarvelloPillKind::caution
                                                   : KarvelloPillKind::safe;
}

std::string pill(const CleanupAuditEntry& entry, const DashboardWords& words)
{
    if (entry.succeededItemCount < 1) {
        return {};
    }
    return entry.operation == CleanupAuditOperation::restore ? words.say("Restored")
                                                             : words.cleanupImpactActualLabel(entry.mode);
}

/// Whether the log has put a token in the reason's place.
bool isToken(std::string_view reason)
{
    return reason.starts_with("<text:") && reason.ends_with('>');
}

bool hasDetails(const CleanupAuditEntry& entry)
{
    return !entry.failureReasons.empty() || !entry.cleanedItems.empty();
}

} // namespace

CleanupHistoryList::CleanupHistoryList(const MacCleanerDashboardModel& dashboard, QObject* parent)
    : QAbstractListModel(parent)
    , m_dashboard(dashboard)
{
}

int CleanupHistoryList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant CleanupHistoryList::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const auto& [entry, isOpen] = m_rows[static_cast<std::size_t>(index.row())];
    const auto words = m_dashboard.words();
    switch (role) {
    case titleRole:
        return shown(words.auditOperationName(entry.operation));
    case dateRole:
        return shown(date(entry, words));
    case summaryRole:
        return shown(words.joinedParts({words.auditSourceName(entry.source), words.auditEntrySummary(entry)}));
    case iconNameRole:
        return entry.operation == CleanupAuditOperation::clean ? QStringLiteral("trash") : QStringLiteral("restore");
    case pillRole:
        return shown(pill(entry, words));
    case pillKindRole:
        return static_cast<int>(pillKind(entry));
    case accessibleNameRole:
        return shown(words.auditEntryAccessibilityLabel(entry, date(entry, words)));
    case detailsRole:
        return details(entry, words);
    case hasDetailsRole:
        return hasDetails(entry);
    case isOpenRole:
        return isOpen;
    default:
        return {};
    }
}

QHash<int, QByteArray> CleanupHistoryList::roleNames() const
{
    return {{titleRole, "title"}, {dateRole, "date"}, {summaryRole, "summary"}, {iconNameRole, "iconName"},
        {pillRole, "pill"}, {pillKindRole, "pillKind"}, {accessibleNameRole, "spokenName"}, {detailsRole, "details"},
        {hasDetailsRole, "hasDetails"}, {isOpenRole, "isOpen"}};
}

void CleanupHistoryList::show(std::vector<CleanupAuditEntry> entries)
{
    const int above = newEntries(entries);
    if (above < 0) {
        beginResetModel();
        m_rows.clear();
        for (CleanupAuditEntry& entry : entries) {
            m_rows.push_back({.entry = std::move(entry)});
        }
        endResetModel();
        return;
    }
    if (above > 0) {
        beginInsertRows({}, 0, above - 1);
        std::vector<Row> rows(static_cast<std::size_t>(above));
        std::ranges::move(m_rows, std::back_inserter(rows));
        m_rows = std::move(rows);
        for (std::size_t place = 0; place < static_cast<std::size_t>(above); ++place) {
            m_rows[place].entry = entries[place];
        }
        endInsertRows();
    }
    if (m_rows.size() > entries.size()) {
        beginRemoveRows({}, static_cast<int>(entries.size()), rowCount() - 1);
        m_rows.resize(entries.size());
        endRemoveRows();
    }
    for (std::size_t place = 0; place < m_rows.size(); ++place) {
        if (m_rows[place].entry != entries[place]) {
            m_rows[place].entry = std::move(entries[place]);
            const auto changed = index(static_cast<int>(place));
            Q_EMIT dataChanged(changed, changed);
        }
    }
}

int CleanupHistoryList::newEntries(const std::vector<CleanupAuditEntry>& entries) const
{
    if (m_rows.empty()) {
        return -1;
    }
    const auto first = std::ranges::find(entries, m_rows.front().entry.id, &CleanupAuditEntry::id);
    const auto above = std::distance(entries.begin(), first);
    if (first == entries.end() || static_cast<std::size_t>(above) + m_rows.size() < entries.size()) {
        return -1;
    }
    const bool follow = std::equal(first, entries.end(), m_rows.begin(),
        [](const CleanupAuditEntry& entry, const Row& row) { return entry.id == row.entry.id; });
    return follow ? static_cast<int>(above) : -1;
}

void CleanupHistoryList::setOpen(int row, bool isOpen)
{
    if (row >= 0 && row < rowCount() && hasDetails(m_rows[static_cast<std::size_t>(row)].entry)) {
        m_rows[static_cast<std::size_t>(row)].isOpen = isOpen;
        Q_EMIT dataChanged(index(row), index(row), {isOpenRole});
    }
}

void CleanupHistoryList::showOtherWords()
{
    if (!m_rows.empty()) {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    }
}

std::string CleanupHistoryList::date(const CleanupAuditEntry& entry, const DashboardWords& words) const
{
    return Platform::LocalizedText::mediumMoment(entry.occurredAt, words.locale());
}

QStringList CleanupHistoryList::details(const CleanupAuditEntry& entry, const DashboardWords& words) const
{
    QStringList lines;
    for (const std::string& reason : entry.failureReasons) {
        if (!isToken(reason)) {
            lines.append(shownText(words.skippedReason(reason)));
        }
    }
    if (std::ranges::any_of(entry.failureReasons, isToken)) {
        lines.append(shown(words.say("The history keeps no reason that names a path.")));
    }
    const Platform::HomePathAbbreviation home(m_dashboard.services().homeDirectory);
    for (const auto& item : entry.cleanedItems) {
        lines.append(shownText(
            words.joinedParts({home.abbreviate(item.candidate.url.path()), words.byteSize(item.candidate.sizeBytes)})));
    }
    const auto unlisted = entry.succeededItemCount - std::ssize(entry.cleanedItems);
    if (!entry.cleanedItems.empty() && unlisted > 0) {
        lines.append(shown(words.count(
            unlisted, "The history keeps no list of {} more item.", "The history keeps no list of {} more items.")));
    }
    return lines;
}

} // namespace KarvelloUI
