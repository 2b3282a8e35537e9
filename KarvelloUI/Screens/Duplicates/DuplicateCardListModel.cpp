#include "KarvelloUI/Screens/Duplicates/DuplicateCardListModel.h"

#include "KarvelloUI/Design/FileIcon.h"
#include "KarvelloUI/Sessions/ShownText.h"

#include <QStringList>
#include <ranges>
#include <utility>

namespace KarvelloUI {

namespace {

Qt::CheckState checkStateOf(DuplicateGroupSelectionState state)
{
    switch (state) {
    case DuplicateGroupSelectionState::unavailable:
    case DuplicateGroupSelectionState::none:
        break;
    case DuplicateGroupSelectionState::partial:
        return Qt::PartiallyChecked;
    case DuplicateGroupSelectionState::all:
        return Qt::Checked;
    }
    return Qt::Unchecked;
}

std::int64_t countOf(auto rows)
{
    return std::ranges::distance(rows);
}

} // namespace

DuplicateCardListModel::DuplicateCardListModel(
    const MacInsightsViewModel& session, Presentation presentation, QObject* parent)
    : DuplicateGroupListModel(session, parent)
    , m_presentation(std::move(presentation))
{
}

QVariant DuplicateCardListModel::data(const QModelIndex& index, int role) const
{
    const auto* const card = group(index.row());
    if (card == nullptr) {
        return {};
    }
    switch (role) {
    case titleRole:
        return shown(m_presentation.words().duplicateGroupTitle(index.row() + 1, std::ssize(card->rows)));
    case stateTextRole:
        return shown(m_presentation.words().duplicateGroupSelectionSummary(
            countOf(card->selectedExtras()), countOf(card->selectableExtras()), countOf(card->extras())));
    case bytesTextRole:
        return shown(
            m_presentation.words().duplicateGroupByteSummary(card->totalExtraBytes, card->selectableExtraBytes));
    case checkStateRole:
        return QVariant::fromValue(checkStateOf(card->selectionState));
    case isLockedRole:
        return card->selectionState == DuplicateGroupSelectionState::unavailable;
    case isAllSelectedRole:
        return card->selectionState == DuplicateGroupSelectionState::all;
    case selectedFilesRole: {
        QVariantList flags;
        for (const auto& row : card->rows) {
            flags.append(row.isSelectedExtra());
        }
        return flags;
    }
    case filesRole: {
        const auto copy = m_presentation.words();
        QVariantList files;
        for (const auto& row : card->rows) {
            files.append(shownFile(row, copy));
        }
        return files;
    }
    default:
        return DuplicateGroupListModel::data(index, role);
    }
}

QVariantMap DuplicateCardListModel::shownFile(
    const DuplicateReviewFilePresentation& row, const DashboardWords& copy) const
{
    const auto& file = *row.file;
    const auto icon = fileIconName(file.displayName);
    QStringList reasons;
    QString recommendation;
    if (row.keeperRecommendation) {
        for (const auto reason : row.keeperRecommendation->reasons) {
            reasons.append(shown(copy.duplicateKeeperReasonName(reason)));
        }
        recommendation = shown(copy.duplicateKeeperRecommendationSummary(*row.keeperRecommendation));
    }
    const QString name = shownText(file.displayName);
    const QString path = shownText(m_presentation.home.abbreviate(file.url.path()));
    const QString kind =
        shown(row.isExtra() ? copy.text("추가 사본", "Extra copy") : copy.text("유지할 파일", "Keeper"));
    const QString size = shown(copy.byteSize(file.sizeBytes));
    const QString age =
        file.lastModified ? shown(copy.reviewAgeText(*file.lastModified, m_presentation.now())) : QString();
    QStringList spoken{name, kind, recommendation, size, path, age};
    spoken.removeAll(QString());
    return {
        {QStringLiteral("name"), name},
        {QStringLiteral("path"), path},
        {QStringLiteral("kind"), kind},
        {QStringLiteral("iconName"), QString::fromLatin1(icon.data(), static_cast<qsizetype>(icon.size()))},
        {QStringLiteral("size"), size},
        {QStringLiteral("age"), age},
        {QStringLiteral("reasons"), reasons},
        {QStringLiteral("isKeeper"), !row.isExtra()},
        {QStringLiteral("isSelectable"), row.isSelectableExtra()},
        {QStringLiteral("spokenName"), spoken.join(QStringLiteral(", "))},
    };
}

QHash<int, QByteArray> DuplicateCardListModel::roleNames() const
{
    auto names = DuplicateGroupListModel::roleNames();
    names.insert({{titleRole, "title"}, {stateTextRole, "stateText"}, {bytesTextRole, "bytesText"},
        {checkStateRole, "checkState"}, {isLockedRole, "isLocked"}, {isAllSelectedRole, "isAllSelected"},
        {selectedFilesRole, "selectedFiles"}});
    return names;
}

QList<int> DuplicateCardListModel::selectionRoles() const
{
    return {selectedExtraBytesRole, selectionStateRole, stateTextRole, checkStateRole, isAllSelectedRole,
        selectedFilesRole};
}

void DuplicateCardListModel::announceLanguage()
{
    if (count() > 0) {
        Q_EMIT dataChanged(index(0), index(count() - 1));
    }
}

const CleanerCore::DuplicateFileGroup* DuplicateCardListModel::groupOfRow(int row, const QString& id) const
{
    const auto* const card = group(row);
    return card != nullptr && shownText(card->id()) == id ? card->group : nullptr;
}

} // namespace KarvelloUI
