#include "KarvelloUI/Screens/StorageMap/StorageMapScreenModel.h"

#include "KarvelloUI/Controls/DesignPalette.h"
#include "KarvelloUI/Copy/PercentText.h"
#include "KarvelloUI/Design/StorageTreemapLayout.h"
#include "KarvelloUI/Design/StorageTreemapTint.h"
#include "KarvelloUI/Sessions/ShownText.h"

#include <QLocale>
#include <QStringList>
#include <algorithm>
#include <array>

namespace KarvelloUI {

namespace {

/// The least shares of the colours; what is smaller has the colour of the last one.
constexpr std::array kLegendShares{0.75, 0.45, 0.2, 0.06};

} // namespace

StorageMapScreenModel::StorageMapScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : InsightScreenModel(dashboard, MacDashboardSection::heatmap, parent)
{
    connect(&insights(), &MacInsightsViewModel::reportChanged, this, &StorageMapScreenModel::layOut);
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, &StorageMapScreenModel::describe);
    layOut();
}

int StorageMapScreenModel::count() const
{
    return static_cast<int>(insights().report().heatmapItems.size());
}

const KarvelloDesign::Palette& StorageMapScreenModel::palette() const
{
    return KarvelloDesign::palette(m_isDark ? ColorScheme::dark : ColorScheme::light);
}

void StorageMapScreenModel::layOut()
{
    const auto& items = insights().report().heatmapItems;
    m_layout = StorageTreemapLayout::cells(items);
    m_maximumBytes = 0;
    for (const auto& item : items) {
        m_maximumBytes = std::max(m_maximumBytes, item.sizeBytes);
    }
    describe();
    const auto selected = std::ranges::find(items, m_selectedPath, &CleanerCore::StorageMapItem::id);
    select(selected == items.end() ? -1 : static_cast<int>(selected - items.begin()));
}

void StorageMapScreenModel::describe()
{
    const auto copy = words();
    m_areas.clear();
    m_cells.clear();
    for (int id = 0; id < count(); ++id) {
        const StorageMapArea area = areaOf(id, copy);
        m_areas.append(QVariant::fromValue(area));
        if (area.width > 0) {
            m_cells.append(QVariant::fromValue(area));
        }
    }
    Q_EMIT mapChanged();
}

StorageMapArea StorageMapScreenModel::areaOf(int id, const DashboardWords& copy) const
{
    const auto& item = insights().report().heatmapItems[static_cast<std::size_t>(id)];
    const double share =
        m_maximumBytes < 1 ? 0 : static_cast<double>(item.sizeBytes) / static_cast<double>(m_maximumBytes);
    StorageMapArea area{.id = id,
        .name = shownText(item.url.lastPathComponent()),
        .path = shownText(item.displayName),
        .sizeText = shown(copy.byteSize(item.sizeBytes)),
        .countText = shown(copy.cleanupPreviewItemCount(item.itemCount)),
        .shortCountText = QLocale(QString::fromStdString(std::string(copy.locale())))
            .toString(static_cast<qlonglong>(item.itemCount)),
        .partialText = item.isTruncated ? shown(copy.text("일부", "partial")) : QString(),
        .shareText = shown(copy.say("{} of the largest area", percentText(share))),
        .tint = qtColor(tint(item, m_maximumBytes, palette()))};
    QStringList details{area.sizeText, area.countText, area.shareText, area.partialText};
    details.removeAll(QString());
    area.detailText = details.join(QStringLiteral(" · "));
    const auto cell =
        std::ranges::find(m_layout, item.id, [](const StorageTreemapCell& candidate) { return candidate.item.id; });
    if (cell != m_layout.end()) {
        area.x = cell->rect.left;
        area.y = cell->rect.top;
        area.width = cell->rect.width();
        area.height = cell->rect.height();
    }
    return area;
}

QVariantList StorageMapScreenModel::legend() const
{
    QVariantList entries;
    for (const double share : kLegendShares) {
        entries.append(QVariant::fromValue(StorageMapLegendEntry{
            .tint = qtColor(tintOfShare(share, palette())), .text = shown(percentText(share) + "+")}));
    }
    return entries;
}

QString StorageMapScreenModel::legendText() const
{
    return shown(words().say("Colors show the size compared with the largest area, not a danger."));
}

QString StorageMapScreenModel::tableTitle() const
{
    return shown(words().text("크기별 저장 공간 히트맵", "Storage Heatmap by Size"));
}

QString StorageMapScreenModel::tableSummary() const
{
    std::int64_t bytes = 0;
    for (const auto& item : insights().report().heatmapItems) {
        bytes += item.sizeBytes;
    }
    const auto copy = words();
    return shown(DashboardWords::joinedParts({copy.byteSize(bytes), copy.count(count(), "{} area", "{} areas")}));
}

QString StorageMapScreenModel::detailHint() const
{
    return shown(words().say("Point at an area or select it to read about it here."));
}

QString StorageMapScreenModel::revealText() const
{
    return shown(words().say("Show in File Manager"));
}

QString StorageMapScreenModel::largeFilesText() const
{
    return shown(words().macDashboardSectionTitle(MacDashboardSection::largeFiles));
}

void StorageMapScreenModel::setDark(bool isDark)
{
    if (isDark != m_isDark) {
        m_isDark = isDark;
        describe();
    }
}

void StorageMapScreenModel::select(int id)
{
    const int selected = id >= 0 && id < count() ? id : -1;
    if (selected >= 0) {
        m_selectedPath = insights().report().heatmapItems[static_cast<std::size_t>(selected)].id;
    }
    if (selected != m_selectedId) {
        m_selectedId = selected;
        Q_EMIT selectedIdChanged();
    }
}

void StorageMapScreenModel::reveal(int id)
{
    if (id >= 0 && id < count()) {
        dashboard().revealInFinder(insights().report().heatmapItems[static_cast<std::size_t>(id)].url);
    }
}

void StorageMapScreenModel::showLargeFiles()
{
    dashboard().selectSection(MacDashboardSection::largeFiles);
}

std::string StorageMapScreenModel::resultsLine() const
{
    return purposeLine();
}

std::string StorageMapScreenModel::purposeLine() const
{
    return words().text("홈 폴더의 주요 영역을 크기별로 비교합니다.", "Compares major home-folder areas by size.");
}

std::string StorageMapScreenModel::nothingFoundText() const
{
    return words().text("스캔 범위에서 조건에 맞고 접근할 수 있는 후보를 찾지 못했습니다.",
        "No matching candidates were found or accessible in the scan scope.");
}

std::string StorageMapScreenModel::noticeLine() const
{
    return insights().report().isTruncated
        ? words().text("UI가 멈추지 않도록 매우 큰 폴더는 일부만 스캔했습니다. 나중에 해당 폴더만 스캔하면 더 넓게 "
                       "확인할 수 있습니다.",
              "Very large folders were partially scanned to avoid UI stalls. A targeted folder scan can expand this "
              "later.")
        : std::string();
}

} // namespace KarvelloUI
