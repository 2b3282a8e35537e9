#include "KarvelloUI/Screens/Insights/InsightListScreenModel.h"

#include "KarvelloUI/Design/FileIcon.h"
#include "KarvelloUI/Sessions/ShownText.h"

namespace KarvelloUI {

namespace {

MacDashboardSection screenOf(MacInsightFileSection section)
{
    switch (section) {
    case MacInsightFileSection::largeFiles:
        return MacDashboardSection::largeFiles;
    case MacInsightFileSection::downloads:
        return MacDashboardSection::downloads;
    case MacInsightFileSection::duplicates:
        return MacDashboardSection::duplicates;
    case MacInsightFileSection::security:
        break;
    }
    return MacDashboardSection::security;
}

} // namespace

InsightListScreenModel::InsightListScreenModel(
    MacCleanerDashboardModel& dashboard, MacInsightFileSection section, QObject* parent)
    : InsightReviewScreenModel(dashboard, screenOf(section), section, parent)
{
    connect(&insights(), &MacInsightsViewModel::reportChanged, this, &InsightListScreenModel::showFiles);
    connect(&insights(), &MacInsightsViewModel::selectionChanged, this, &InsightListScreenModel::showSelection);
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this,
        [this] { m_rows.setTexts(textsOfRows(m_rows.rows())); });
    showFiles();
}

int InsightListScreenModel::count() const
{
    return static_cast<int>(insights().files(files()).size());
}

void InsightListScreenModel::showFiles()
{
    std::vector<InsightListModel::Row> rows;
    for (const auto* const file : insights().files(files())) {
        rows.push_back({.file = *file,
            .isSelectable = hasFooter() && insights().isSelectable(*file),
            .isSelected = insights().isSelected(*file)});
    }
    auto texts = textsOfRows(rows);
    m_rows.show(std::move(rows), std::move(texts));
    // The line below the title sums up the rows.
    Q_EMIT stateChanged();
}

void InsightListScreenModel::showSelection()
{
    std::vector<bool> isSelected;
    for (const auto& row : m_rows.rows()) {
        isSelected.push_back(insights().isSelected(row.file));
    }
    m_rows.setSelected(isSelected);
}

void InsightListScreenModel::toggle(int key)
{
    const auto* const row = m_rows.row(key);
    if (row != nullptr && row->isSelectable && !insights().isBusy()) {
        insights().setSelected(row->file, !row->isSelected);
    }
}

void InsightListScreenModel::reveal(int key)
{
    if (const auto* const row = m_rows.row(key)) {
        dashboard().revealInFinder(row->file.url);
    }
}

std::string InsightListScreenModel::resultsLine() const
{
    const auto copy = words();
    std::int64_t bytes = 0;
    for (const auto& row : m_rows.rows()) {
        bytes += row.file.sizeBytes;
    }
    return DashboardWords::joinedParts(
        {copy.cleanupPreviewItemCount(std::ssize(m_rows.rows())), copy.byteSize(bytes), copy.insightDetail(files())});
}

std::string InsightListScreenModel::noticeLine() const
{
    const auto copy = words();
    switch (files()) {
    case MacInsightFileSection::largeFiles:
        return copy.text("오래된 큰 파일만 표시하고 최근에 수정된 파일은 보류합니다. 선택한 항목을 휴지통으로 "
                         "이동하기 전에 경로와 이름을 검토하세요.",
            "Only older large files are listed; recently modified files are held back. Review paths and names before "
            "moving selected items to Trash.");
    case MacInsightFileSection::downloads:
        return copy.text("오래된 다운로드 항목만 표시하고 최근에 다운로드한 항목은 보류합니다. 선택한 항목을 "
                         "휴지통으로 이동하기 전에 크기와 수정일을 검토하세요.",
            "Only older Downloads items are listed; recent downloads are held back. Review size and modified date "
            "before moving selected items to Trash.");
    case MacInsightFileSection::security:
        return copy.text("코드를 실행하거나 설정을 바꿀 수 있는 설치 파일, 디스크 이미지, 스크립트, 구성 프로파일을 "
                         "표시합니다. 악성 코드를 찾아낸다는 뜻이 아니며, 이 탭은 검토 전용입니다.",
            "Shows installers, disk images, scripts, and configuration profiles that can execute code or change "
            "settings. It does not claim malware detection, and this tab is review-only.");
    case MacInsightFileSection::duplicates:
        break;
    }
    return {};
}

std::vector<InsightListModel::Texts> InsightListScreenModel::textsOfRows(
    const std::vector<InsightListModel::Row>& rows) const
{
    const auto copy = words();
    std::vector<InsightListModel::Texts> texts;
    texts.reserve(rows.size());
    for (const auto& row : rows) {
        texts.push_back(textsOf(row, copy));
    }
    return texts;
}

InsightListModel::Texts InsightListScreenModel::textsOf(
    const InsightListModel::Row& row, const DashboardWords& copy) const
{
    const auto& file = row.file;
    const auto now = dashboard().services().session.now();
    const QString detail = shown(copy.reviewDetail(file, now));
    const auto icon = fileIconName(file.displayName);
    InsightListModel::Texts texts{.name = shownText(file.displayName),
        .path = shownPath(file.url),
        .iconName = QString::fromLatin1(icon.data(), static_cast<qsizetype>(icon.size())),
        .age = file.lastModified ? shown(copy.reviewAgeText(*file.lastModified, now)) : QString(),
        .size = shown(copy.byteSize(file.sizeBytes)),
        .reason = {},
        .pill = {},
        .accessibleName = {},
        .explanation = detail};
    QStringList spoken{texts.name};
    if (hasFooter()) {
        spoken << texts.size << detail << texts.path;
    } else {
        texts.reason = shown(copy.skippedReason(file.detail));
        texts.pill = shown(copy.text("검토 전용", "Review only"));
        texts.explanation = texts.reason + QStringLiteral(" · ") + detail;
        spoken << texts.pill << texts.reason << texts.size << texts.age << texts.path;
    }
    spoken.removeAll(QString());
    texts.accessibleName = spoken.join(QStringLiteral(", "));
    return texts;
}

} // namespace KarvelloUI
