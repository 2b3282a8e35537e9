#include "KarvelloUI/Sessions/CandidateListModel.h"

#include "CleanerCore/Scan/ByteSizeFormatter.h"
#include "KarvelloUI/Sessions/ShownText.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <ranges>
#include <utility>

namespace KarvelloUI {

namespace {

/// A view handles each run by itself; beyond some it is quicker to look at everything anew.
constexpr std::size_t kMostRuns = 100;

QString ascii(std::string_view text)
{
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

CandidateListModel::CandidateListModel(
    const CandidateSelection& selection, QObject* parent, CandidateListHeaders headers)
    : QAbstractListModel(parent)
    , m_selection(selection)
    , m_headers(headers)
{
    setLanguage(m_copy);
}

int CandidateListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant CandidateListModel::data(const QModelIndex& index, int role) const
{
    if (index.row() < 0 || index.row() >= count()) {
        return {};
    }
    const auto& row = m_content.rows[static_cast<std::size_t>(index.row())];
    if (row.isHeader()) {
        return headerData(row, role);
    }
    const auto* const candidate = this->candidate(index.row());
    switch (role) {
    case idRole:
        return QString::fromStdString(candidate->id);
    case Qt::DisplayRole:
    case nameRole:
        return shownText(candidate->displayName);
    case pathRole:
        return shownText(candidate->url.path());
    case sizeBytesRole:
        return QVariant::fromValue<qint64>(candidate->sizeBytes);
    case sizeTextRole:
        return QString::fromStdString(CleanerCore::ByteSizeFormatter::string(candidate->sizeBytes, m_copy.locale()));
    case categoryRole:
        return ascii(Platform::rawValue(candidate->category));
    case categoryNameRole:
        return m_categoryNames[static_cast<std::size_t>(candidate->category)];
    case safetyRole:
        return ascii(Platform::rawValue(candidate->safety));
    case safetyNameRole:
        return m_safetyNames[static_cast<std::size_t>(candidate->safety)];
    case isSelectedRole:
        return isSelected(m_content, row.position);
    case checkStateRole:
        return isSelected(m_content, row.position) ? Qt::Checked : Qt::Unchecked;
    case isHeaderRole:
        return false;
    case sectionIDRole:
        return m_content.sections[row.section].id;
    case sectionTitleRole:
        return m_content.sections[row.section].title;
    default:
        return {};
    }
}

QVariant CandidateListModel::headerData(const Row& row, int role) const
{
    const auto& section = m_content.sections[row.section];
    const bool isAllSelected = section.selectedCount == std::ssize(section.candidates);
    switch (role) {
    case idRole:
    case sectionIDRole:
        return section.id;
    case Qt::DisplayRole:
    case nameRole:
    case sectionTitleRole:
        return section.title;
    case sizeBytesRole:
        return QVariant::fromValue<qint64>(section.bytes);
    case isSelectedRole:
        return isAllSelected;
    case checkStateRole:
        return isAllSelected ? Qt::Checked : section.selectedCount > 0 ? Qt::PartiallyChecked : Qt::Unchecked;
    case isHeaderRole:
        return true;
    default:
        return {};
    }
}

QHash<int, QByteArray> CandidateListModel::roleNames() const
{
    return {
        {idRole, "candidateID"},
        {nameRole, "name"},
        {pathRole, "path"},
        {sizeBytesRole, "sizeBytes"},
        {sizeTextRole, "sizeText"},
        {categoryRole, "category"},
        {categoryNameRole, "categoryName"},
        {safetyRole, "safety"},
        {safetyNameRole, "safetyName"},
        {isSelectedRole, "isSelected"},
        {sectionIDRole, "sectionID"},
        {sectionTitleRole, "sectionTitle"},
        {isHeaderRole, "isHeader"},
        {checkStateRole, "checkState"},
    };
}

const CleanerCore::CleanupCandidate* CandidateListModel::candidate(int row) const
{
    if (row < 0 || row >= count() || m_content.rows[static_cast<std::size_t>(row)].isHeader()) {
        return nullptr;
    }
    return &m_content.index->candidates()[m_content.rows[static_cast<std::size_t>(row)].position];
}

const CandidateListRows::Section* CandidateListModel::section(int row) const
{
    return row < 0 || row >= count() ? nullptr
                                     : &m_content.sections[m_content.rows[static_cast<std::size_t>(row)].section];
}

int CandidateListModel::row(std::string_view candidateID) const
{
    const auto position = m_content.index->position(candidateID);
    return position ? m_places[*position].row : -1;
}

std::int64_t CandidateListModel::visibleCount() const
{
    std::int64_t visible = 0;
    for (const auto& section : m_content.sections) {
        visible += std::ssize(section.candidates);
    }
    return visible;
}

void CandidateListModel::show(std::shared_ptr<const CandidateIndex> index,
    const std::vector<CandidateListSection>& sections, const KarvelloCopy& copy)
{
    const bool areTextsNew = copy.language != m_copy.language;
    if (areTextsNew) {
        setLanguage(copy);
    }
    apply({std::move(index), sections, m_headers, m_closedSections}, areTextsNew);
}

void CandidateListModel::setSectionOpen(const QString& id, bool isOpen)
{
    const auto* const section = m_content.section(id);
    if (section == nullptr || section->headerRow < 0 || section->isOpen == isOpen) {
        return;
    }
    if (isOpen) {
        m_closedSections.remove(id);
    } else {
        m_closedSections.insert(id);
    }
    apply(m_content.withClosed(m_closedSections), false);
}

void CandidateListModel::apply(CandidateListRows content, bool areTextsNew)
{
    countSelected(content);
    const CandidateListChange change(m_content, content);
    const auto before = m_content;
    if (change.isOrdered && change.removed.size() + change.inserted.size() <= kMostRuns) {
        removeAndInsert(std::move(content), change);
        announceChangedRows(before, change, areTextsNew);
    } else if (change.removed.empty() && change.inserted.empty()) {
        reorder(std::move(content), change);
        announceChangedRows(before, change, areTextsNew);
    } else {
        beginResetModel();
        m_content = std::move(content);
        endResetModel();
    }
    m_places.assign(m_content.index->size(), {});
    for (int number = 0; const auto& section : m_content.sections) {
        for (const auto position : section.candidates) {
            m_places[position].section = number;
        }
        ++number;
    }
    for (int row = 0; row < count(); ++row) {
        if (const auto& shown = m_content.rows[static_cast<std::size_t>(row)]; !shown.isHeader()) {
            m_places[shown.position].row = row;
        }
    }
    announceHeaders();
    if (before.rows.size() != m_content.rows.size()) {
        Q_EMIT countChanged();
    }
}

void CandidateListModel::announceSelection(std::string_view candidateID)
{
    const auto position = m_content.index->position(candidateID);
    if (!position || m_places[*position].section < 0) {
        return;
    }
    const auto place = m_places[*position];
    auto& section = m_content.sections[static_cast<std::size_t>(place.section)];
    section.selectedCount += isSelected(m_content, *position) ? 1 : -1;
    if (place.row >= 0) {
        const auto changed = index(place.row);
        Q_EMIT dataChanged(changed, changed, {isSelectedRole, checkStateRole});
    }
    if (section.headerRow >= 0) {
        const auto changed = index(section.headerRow);
        Q_EMIT dataChanged(changed, changed, {isSelectedRole, checkStateRole});
    }
}

void CandidateListModel::announceSelection()
{
    countSelected(m_content);
    if (count() > 0) {
        Q_EMIT dataChanged(index(0), index(count() - 1), {isSelectedRole, checkStateRole});
    }
}

std::int64_t CandidateListModel::hiddenSelectedCount() const
{
    std::int64_t hidden = m_selection.count();
    for (const auto& section : m_content.sections) {
        hidden -= selectedCount(section);
    }
    return hidden;
}

std::int64_t CandidateListModel::selectedCount(const CandidateListRows::Section& section) const
{
    return std::ranges::count_if(
        section.candidates, [this](std::uint32_t position) { return isSelected(m_content, position); });
}

void CandidateListModel::countSelected(CandidateListRows& content) const
{
    for (auto& section : content.sections) {
        section.selectedCount = std::ranges::count_if(
            section.candidates, [&](std::uint32_t position) { return isSelected(content, position); });
    }
}

void CandidateListModel::announceHeaders(const QList<int>& roles)
{
    for (const auto& section : m_content.sections) {
        if (section.headerRow >= 0) {
            const auto changed = index(section.headerRow);
            Q_EMIT dataChanged(changed, changed, roles);
        }
    }
}

void CandidateListModel::setLanguage(const KarvelloCopy& copy)
{
    m_copy = copy;
    for (const auto category : Platform::allCases<CleanerCore::CleanupCategory>()) {
        m_categoryNames[static_cast<std::size_t>(category)] = QString::fromStdString(copy.categoryName(category));
    }
    for (const auto safety : Platform::allCases<CleanerCore::CleanupSafety>()) {
        m_safetyNames[static_cast<std::size_t>(safety)] = QString::fromStdString(copy.safetyName(safety));
    }
}

void CandidateListModel::reorder(CandidateListRows content, const CandidateListChange& change)
{
    Q_EMIT layoutAboutToBeChanged();
    m_content = std::move(content);
    const auto before = persistentIndexList();
    QModelIndexList after;
    for (const auto& persistent : before) {
        after.append(index(change.newRows[static_cast<std::size_t>(persistent.row())]));
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged();
}

void CandidateListModel::removeAndInsert(CandidateListRows content, const CandidateListChange& change)
{
    // From the end, so that the rows before keep their numbers.
    for (const auto& run : std::views::reverse(change.removed)) {
        beginRemoveRows({}, run.first, run.last);
        m_content.rows.erase(m_content.rows.begin() + run.first, m_content.rows.begin() + run.last + 1);
        endRemoveRows();
    }
    // What is left is all that stays, in its order: from here on it stands for the new report.
    std::vector<Row> kept;
    kept.reserve(content.rows.size());
    for (const int row : change.newRows) {
        if (row >= 0) {
            kept.push_back(content.rows[static_cast<std::size_t>(row)]);
        }
    }
    const auto all = std::exchange(content.rows, std::move(kept));
    m_content = std::move(content);
    for (const auto& run : change.inserted) {
        beginInsertRows({}, run.first, run.last);
        m_content.rows.insert(m_content.rows.begin() + run.first, all.begin() + run.first, all.begin() + run.last + 1);
        endInsertRows();
    }
}

void CandidateListModel::announceChangedRows(
    const CandidateListRows& before, const CandidateListChange& change, bool areTextsNew)
{
    int first = count();
    int last = -1;
    for (std::size_t oldRow = 0; oldRow < before.rows.size(); ++oldRow) {
        const int row = change.newRows[oldRow];
        if (row < 0 || before.rows[oldRow].isHeader()) {
            continue;
        }
        const auto& was = before.rows[oldRow];
        const auto& is = m_content.rows[static_cast<std::size_t>(row)];
        const bool isOther = areTextsNew || before.sections[was.section].id != m_content.sections[is.section].id
            || (before.index != m_content.index
                && before.index->candidates()[was.position] != m_content.index->candidates()[is.position]);
        if (isOther) {
            first = std::min(first, row);
            last = std::max(last, row);
        }
    }
    if (last >= 0) {
        Q_EMIT dataChanged(index(first), index(last));
    }
}

bool CandidateListModel::isSelected(const CandidateListRows& content, std::uint32_t position) const
{
    // Between a new report and its rows, the selection speaks of the new one already.
    return &m_selection.index() == content.index.get()
        ? m_selection.isSelected(position)
        : m_selection.isSelected(content.index->candidates()[position].id);
}

} // namespace KarvelloUI
