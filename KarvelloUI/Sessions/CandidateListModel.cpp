#include "KarvelloUI/Sessions/CandidateListModel.h"

#include "CleanerCore/Scan/ByteSizeFormatter.h"
#include "KarvelloUI/Sessions/ShownText.h"

#include <algorithm>
#include <cstddef>
#include <optional>
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

/// How the rows become others.
class CandidateListModel::Change {
public:
    /// Rows from `first` to `last`, both included.
    struct Run {
        int first;
        int last;
    };

    Change(const Content& from, const Content& to)
    {
        std::vector<int> rowOfPosition(to.index->size(), -1);
        for (int row = 0; row < std::ssize(to.rows); ++row) {
            rowOfPosition[to.rows[static_cast<std::size_t>(row)].position] = row;
        }
        std::vector<bool> isKept(to.rows.size());
        newRows.reserve(from.rows.size());
        int last = -1;
        for (int row = 0; row < std::ssize(from.rows); ++row) {
            const auto position = positionIn(to, from, from.rows[static_cast<std::size_t>(row)].position);
            const int newRow = position ? rowOfPosition[*position] : -1;
            newRows.push_back(newRow);
            if (newRow < 0) {
                extend(removed, row);
                continue;
            }
            isKept[static_cast<std::size_t>(newRow)] = true;
            isOrdered = isOrdered && newRow > last;
            last = newRow;
        }
        for (int row = 0; row < std::ssize(to.rows); ++row) {
            if (!isKept[static_cast<std::size_t>(row)]) {
                extend(inserted, row);
            }
        }
    }

    /// For each old row the new one, -1 for what goes.
    std::vector<int> newRows;
    /// In old rows, and in new ones.
    std::vector<Run> removed;
    std::vector<Run> inserted;
    /// What stays stays in its order.
    bool isOrdered = true;

private:
    static std::optional<std::uint32_t> positionIn(const Content& to, const Content& from, std::uint32_t position)
    {
        return to.index == from.index ? position : to.index->position(from.index->candidates()[position].id);
    }

    static void extend(std::vector<Run>& runs, int row)
    {
        if (!runs.empty() && runs.back().last == row - 1) {
            runs.back().last = row;
        } else {
            runs.push_back({.first = row, .last = row});
        }
    }
};

CandidateListModel::CandidateListModel(const CandidateSelection& selection, QObject* parent)
    : QAbstractListModel(parent)
    , m_selection(selection)
{
    m_content.index = std::make_shared<const CandidateIndex>();
    setLanguage(m_copy);
}

int CandidateListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant CandidateListModel::data(const QModelIndex& index, int role) const
{
    const auto* const candidate = this->candidate(index.row());
    if (candidate == nullptr) {
        return {};
    }
    const auto& row = m_content.rows[static_cast<std::size_t>(index.row())];
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
        return isSelected(row);
    case sectionIDRole:
        return m_content.sections[row.section].id;
    case sectionTitleRole:
        return m_content.sections[row.section].title;
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
    };
}

const CleanerCore::CleanupCandidate* CandidateListModel::candidate(int row) const
{
    if (row < 0 || row >= count()) {
        return nullptr;
    }
    return &m_content.index->candidates()[m_content.rows[static_cast<std::size_t>(row)].position];
}

void CandidateListModel::show(std::shared_ptr<const CandidateIndex> index,
    const std::vector<CandidateListSection>& sections, const KarvelloCopy& copy)
{
    const bool areTextsNew = copy.language != m_copy.language;
    if (areTextsNew) {
        setLanguage(copy);
    }
    auto content = contentOf(std::move(index), sections);
    const Change change(m_content, content);
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
    m_rowOfPosition.assign(m_content.index->size(), -1);
    for (int row = 0; row < count(); ++row) {
        m_rowOfPosition[m_content.rows[static_cast<std::size_t>(row)].position] = row;
    }
    if (before.rows.size() != m_content.rows.size()) {
        Q_EMIT countChanged();
    }
}

void CandidateListModel::announceSelection(std::string_view candidateID)
{
    const auto position = m_content.index->position(candidateID);
    if (!position || m_rowOfPosition[*position] < 0) {
        return;
    }
    const auto changed = index(m_rowOfPosition[*position]);
    Q_EMIT dataChanged(changed, changed, {isSelectedRole});
}

void CandidateListModel::announceSelection()
{
    if (count() > 0) {
        Q_EMIT dataChanged(index(0), index(count() - 1), {isSelectedRole});
    }
}

std::int64_t CandidateListModel::hiddenSelectedCount() const
{
    return m_selection.count()
        - std::ranges::count_if(m_content.rows, [this](const Row& row) { return isSelected(row); });
}

CandidateListModel::Content CandidateListModel::contentOf(
    std::shared_ptr<const CandidateIndex> index, const std::vector<CandidateListSection>& sections)
{
    Content content{.index = std::move(index), .rows = {}, .sections = {}};
    content.rows.reserve(content.index->size());
    for (std::uint32_t number = 0; const auto& section : sections) {
        content.sections.push_back({.id = ascii(section.id), .title = QString::fromStdString(section.title)});
        for (const auto position : section.candidates) {
            content.rows.push_back({.position = position, .section = number});
        }
        ++number;
    }
    return content;
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

void CandidateListModel::reorder(Content content, const Change& change)
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

void CandidateListModel::removeAndInsert(Content content, const Change& change)
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
    m_content = {.index = content.index, .rows = std::move(kept), .sections = std::move(content.sections)};
    for (const auto& run : change.inserted) {
        beginInsertRows({}, run.first, run.last);
        m_content.rows.insert(
            m_content.rows.begin() + run.first, content.rows.begin() + run.first, content.rows.begin() + run.last + 1);
        endInsertRows();
    }
}

void CandidateListModel::announceChangedRows(const Content& before, const Change& change, bool areTextsNew)
{
    int first = count();
    int last = -1;
    for (std::size_t oldRow = 0; oldRow < before.rows.size(); ++oldRow) {
        const int row = change.newRows[oldRow];
        if (row < 0) {
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

bool CandidateListModel::isSelected(const Row& row) const
{
    // Between a new report and its rows, the selection speaks of the new one already.
    return &m_selection.index() == m_content.index.get()
        ? m_selection.isSelected(row.position)
        : m_selection.isSelected(m_content.index->candidates()[row.position].id);
}

} // namespace KarvelloUI
