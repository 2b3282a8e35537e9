#include "KarvelloUI/Dashboard/ConfirmationModel.h"

#include "KarvelloUI/Dashboard/ConfidencePills.h"
#include "Platform/Base/CheckedMath.h"

#include <algorithm>
#include <span>
#include <utility>

namespace KarvelloUI {

ConfirmationModel::ConfirmationModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
{
    connect(&dashboard, &MacCleanerDashboardModel::confirmationChanged, this, &ConfirmationModel::takeUp);
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, &ConfirmationModel::describe);
    // A clean of the review is of a snapshot; the others are of what is selected when they begin.
    connect(&dashboard.insights(), &MacInsightsViewModel::selectionChanged, this,
        &ConfirmationModel::withdrawIfSelectionIsOther);
    connect(&dashboard.insights(), &MacInsightsViewModel::reportChanged, this,
        &ConfirmationModel::withdrawIfSelectionIsOther);
    connect(&dashboard.resourceRelief(), &MacResourceReliefViewModel::selectionChanged, this,
        &ConfirmationModel::withdrawIfSelectionIsOther);
    takeUp();
}

void ConfirmationModel::accept()
{
    switch (m_kind) {
    case Kind::clean:
        m_dashboard.cleanSelected();
        return;
    case Kind::insightClean:
        m_dashboard.cleanSelectedInsight();
        return;
    case Kind::quit:
        m_dashboard.quitSelected();
        return;
    case Kind::none:
        return;
    }
}

void ConfirmationModel::cancel()
{
    m_dashboard.cancelConfirmation();
}

ConfirmationModel::Kind ConfirmationModel::pendingKind() const
{
    if (m_dashboard.isShowingCleanConfirmation()) {
        return Kind::clean;
    }
    if (m_dashboard.isShowingInsightCleanConfirmation()) {
        return Kind::insightClean;
    }
    return m_dashboard.isShowingResourceReliefConfirmation() ? Kind::quit : Kind::none;
}

void ConfirmationModel::takeUp()
{
    const bool wasOpen = isOpen();
    m_kind = pendingKind();
    m_insightIDs = selectedInsightIDs();
    m_applicationIDs = m_dashboard.resourceRelief().selectedIDs();
    // What is on show stays as it is while the dialog fades.
    if (isOpen()) {
        describe();
    }
    if (isOpen() != wasOpen) {
        Q_EMIT openChanged();
    }
}

void ConfirmationModel::withdrawIfSelectionIsOther()
{
    const bool isOther = (m_kind == Kind::insightClean && selectedInsightIDs() != m_insightIDs)
        || (m_kind == Kind::quit && m_dashboard.resourceRelief().selectedIDs() != m_applicationIDs);
    if (isOther) {
        cancel();
    }
}

std::unordered_set<std::string> ConfirmationModel::selectedInsightIDs() const
{
    std::unordered_set<std::string> ids;
    if (const auto section = m_dashboard.pendingInsightSection()) {
        for (const auto* const file : m_dashboard.insights().selectedFiles(*section)) {
            ids.insert(file->id);
        }
    }
    return ids;
}

void ConfirmationModel::describe()
{
    if (!isOpen()) {
        return;
    }
    const auto words = m_dashboard.words();
    m_previewTitle.clear();
    m_pills.clear();
    m_lines.clear();
    m_moreLines.clear();
    m_hiddenItemsWarning.clear();
    m_footnote.clear();
    m_cancelText = shown(words.cancel());
    switch (m_kind) {
    case Kind::clean:
        describeClean(words);
        break;
    case Kind::insightClean:
        describeInsightClean(words);
        break;
    case Kind::quit:
        describeQuit(words);
        break;
    case Kind::none:
        break;
    }
    if (m_kind != Kind::quit) {
        m_footnote = shown(words.text(
            "휴지통을 비운 뒤에는 Karvello에서 항목을 복원할 수 없습니다. 비우기 전에 원래 경로와 휴지통 위치를 "
            "다시 확인하세요.",
            "After Trash is emptied, Karvello cannot restore those items. Recheck original paths and Trash locations "
            "first."));
    }
    Q_EMIT contentChanged();
}

void ConfirmationModel::describeClean(const DashboardWords& words)
{
    const auto& preview = m_dashboard.pendingCleanPreview();
    m_title = shown(words.confirmMoveTitle());
    m_message = shown(words.confirmMoveMessage(preview.count, preview.bytes));
    m_acceptText = shown(words.moveSelectedToTrash());
    m_iconName = QStringLiteral("trash");
    m_previewTitle = shown(words.text("정리 미리보기", "Cleanup Preview"));

    m_pills = confidencePills(words, preview.safetyBreakdown, PillsOfNone::shown);

    const std::span categories(preview.categorySummaries);
    const auto shownCount = std::min(categories.size(), static_cast<std::size_t>(kMostLines));
    for (const auto& category : categories.first(shownCount)) {
        m_lines.append(QVariant::fromValue(ConfirmationLine{.name = shown(words.categoryName(category.category)),
            .count = shown(words.cleanupPreviewItemCount(category.count)),
            .size = shown(words.byteSize(category.bytes))}));
    }
    if (categories.size() > shownCount) {
        m_moreLines =
            shown(words.cleanupPreviewMoreCategories(static_cast<std::int64_t>(categories.size() - shownCount)));
    }
    if (const auto hiddenCount = m_dashboard.pendingCleanSelection()->hiddenSelectedCount; hiddenCount > 0) {
        m_hiddenItemsWarning = shown(words.hiddenSelectionConfirmationWarning(hiddenCount));
    }
}

void ConfirmationModel::describeInsightClean(const DashboardWords& words)
{
    const auto section = *m_dashboard.pendingInsightSection();
    const auto files = m_dashboard.insights().selectedFiles(section);
    std::int64_t bytes = 0;
    for (const auto* const file : files) {
        bytes = Platform::checkedAdd(bytes, file->sizeBytes);
    }
    const auto count = static_cast<std::int64_t>(files.size());
    m_iconName = QStringLiteral("trash");
    if (section == MacInsightFileSection::duplicates) {
        m_title = shown(
            words.text("선택한 중복 추가 사본을 휴지통으로 이동할까요?", "Move selected duplicate extras to Trash?"));
        m_message = shown(words.confirmDuplicateExtrasMoveMessage(count, bytes));
        m_acceptText = shown(words.text("선택한 추가 사본을 휴지통으로 이동", "Move selected extras to Trash"));
    } else {
        m_title = shown(words.confirmMoveTitle());
        m_message = shown(words.confirmMoveMessage(count, bytes));
        m_acceptText = shown(words.moveSelectedToTrash());
    }
}

void ConfirmationModel::describeQuit(const DashboardWords& words)
{
    const auto count = static_cast<std::int64_t>(m_applicationIDs.size());
    m_iconName = QStringLiteral("quit");
    m_title = shown(words.text("선택한 앱에 종료를 요청할까요?", "Request Quit for Selected Apps?"));
    m_message = shown(words.resourceReliefConfirmMessage(count));
    m_acceptText = shown(words.resourceReliefConfirmButton(count));
}

} // namespace KarvelloUI
