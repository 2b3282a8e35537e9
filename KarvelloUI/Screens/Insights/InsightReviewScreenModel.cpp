#include "KarvelloUI/Screens/Insights/InsightReviewScreenModel.h"

namespace KarvelloUI {

InsightReviewScreenModel::InsightReviewScreenModel(
    MacCleanerDashboardModel& dashboard, MacDashboardSection section, MacInsightFileSection files, QObject* parent)
    : InsightScreenModel(dashboard, section, parent)
    , m_files(files)
{
    const auto recount = [this] {
        countSelection();
        Q_EMIT selectionChanged();
    };
    connect(&insights(), &MacInsightsViewModel::selectionChanged, this, recount);
    connect(&insights(), &MacInsightsViewModel::reportChanged, this, recount);
    connect(this, &InsightScreenModel::stateChanged, this, &InsightReviewScreenModel::selectionChanged);
    countSelection();
}

void InsightReviewScreenModel::countSelection()
{
    m_figures = {};
    if (isDuplicates()) {
        m_figures = {.selectable = insights().duplicateSelectableCount(),
            .selected = insights().duplicateSelectedCount(),
            .selectedBytes = insights().duplicateSelectedBytes()};
        return;
    }
    m_figures.selectable = std::ssize(insights().selectableFiles(m_files));
    for (const auto* const file : insights().selectedFiles(m_files)) {
        ++m_figures.selected;
        m_figures.selectedBytes += file->sizeBytes;
    }
}

QString InsightReviewScreenModel::selectionTitle() const
{
    const auto copy = words();
    return shown(m_figures.selected == 0 ? copy.bulkSelectionAccessibilityValue(0, m_figures.selectable)
                                         : copy.selectedSummary(m_figures.selected, m_figures.selectedBytes, 0));
}

QString InsightReviewScreenModel::selectionText() const
{
    const auto copy = words();
    return shown(isDuplicates() && m_figures.selected > 0
            ? copy.duplicateSelectedExtrasSubtitle(m_figures.selected)
            : copy.text("정리는 항목을 휴지통으로 이동할 뿐이며, 영구적으로 삭제하지 않습니다.",
                  "Cleanup moves items to Trash only; it does not permanently delete them."));
}

Qt::CheckState InsightReviewScreenModel::selectionState() const
{
    if (m_figures.selected == 0) {
        return Qt::Unchecked;
    }
    return m_figures.selected < m_figures.selectable ? Qt::PartiallyChecked : Qt::Checked;
}

QString InsightReviewScreenModel::toggleAllName() const
{
    const auto copy = words();
    return selectAllText() + QStringLiteral(", ")
        + shown(copy.bulkSelectionAccessibilityValue(m_figures.selected, m_figures.selectable));
}

QString InsightReviewScreenModel::clearText() const
{
    return shown(words().clearSelection());
}

bool InsightReviewScreenModel::canClear() const
{
    return m_figures.selected > 0 && !insights().isBusy();
}

QString InsightReviewScreenModel::selectAllText() const
{
    const auto copy = words();
    return shown(isDuplicates() ? copy.text("선택 가능한 추가 사본 모두 선택", "Select all selectable extras")
                                : copy.selectAll());
}

bool InsightReviewScreenModel::canSelectAll() const
{
    return m_figures.selected < m_figures.selectable && !insights().isBusy();
}

QString InsightReviewScreenModel::moreName() const
{
    return shown(words().say("More"));
}

QString InsightReviewScreenModel::cleanText() const
{
    const auto copy = words();
    return shown(isDuplicates() ? copy.text("선택한 추가 사본을 휴지통으로 이동", "Move selected extras to Trash")
                                : copy.moveSelectedToTrash());
}

QString InsightReviewScreenModel::cleanDisabledReason() const
{
    return m_figures.selected == 0 ? selectionTitle() : QString();
}

QString InsightReviewScreenModel::revealText() const
{
    return shown(words().say("Show in File Manager"));
}

QString InsightReviewScreenModel::whyText() const
{
    return shown(words().text("이 항목이 표시되는 이유", "Why is this listed?"));
}

QString InsightReviewScreenModel::notSelectableText() const
{
    return shown(words().say("It cannot be selected: it lies outside your own folders, is the keeper of a duplicate "
                             "group, or belongs to the installer review."));
}

void InsightReviewScreenModel::selectAll()
{
    if (!insights().isBusy()) {
        insights().selectAll(m_files);
    }
}

void InsightReviewScreenModel::clearSelection()
{
    if (!insights().isBusy()) {
        insights().clearSelection(m_files);
    }
}

void InsightReviewScreenModel::toggleAll()
{
    if (selectionState() == Qt::Checked) {
        clearSelection();
    } else {
        selectAll();
    }
}

void InsightReviewScreenModel::requestClean()
{
    if (canClean() && hasFooter()) {
        dashboard().requestInsightClean(m_files);
    }
}

std::string InsightReviewScreenModel::purposeLine() const
{
    return words().insightDetail(m_files);
}

std::string InsightReviewScreenModel::nothingFoundText() const
{
    return words().noInsightItemsDescription(m_files);
}

} // namespace KarvelloUI
