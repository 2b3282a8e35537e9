#include "KarvelloUI/Shell/SidebarModel.h"

#include "KarvelloUI/Dashboard/RawText.h"

#include <algorithm>
#include <array>
#include <span>

namespace KarvelloUI {

namespace {

constexpr std::array kPrimary{
    MacDashboardSection::dashboard, MacDashboardSection::cleanup, MacDashboardSection::reviewEvidence};
constexpr std::array kAdvanced{MacDashboardSection::heatmap, MacDashboardSection::largeFiles,
    MacDashboardSection::downloads, MacDashboardSection::duplicates, MacDashboardSection::security};
constexpr std::array kSupport{MacDashboardSection::system, MacDashboardSection::cpuAnalysis,
    MacDashboardSection::memoryAnalysis, MacDashboardSection::settings};

std::string_view iconOf(MacDashboardSection section)
{
    switch (section) {
    case MacDashboardSection::dashboard:
        break;
    case MacDashboardSection::cleanup:
        return "cleanup-review";
    case MacDashboardSection::reviewEvidence:
        return "evidence";
    case MacDashboardSection::heatmap:
        return "storage-map";
    case MacDashboardSection::largeFiles:
        return "large-files";
    case MacDashboardSection::downloads:
        return "downloads";
    case MacDashboardSection::duplicates:
        return "duplicates";
    case MacDashboardSection::security:
        return "installer";
    case MacDashboardSection::system:
        return "system-pulse";
    case MacDashboardSection::cpuAnalysis:
        return "cpu";
    case MacDashboardSection::memoryAnalysis:
        return "memory";
    case MacDashboardSection::iosGuide:
        return "list";
    case MacDashboardSection::settings:
        return "settings";
    }
    return "dashboard";
}

/// How many findings the section has to review.
std::size_t countOf(const MacCleanerDashboardModel& dashboard, MacDashboardSection section)
{
    const auto& insights = dashboard.insights();
    switch (section) {
    case MacDashboardSection::cleanup:
        return dashboard.cleaner().report().candidates.size();
    case MacDashboardSection::largeFiles:
        return insights.files(MacInsightFileSection::largeFiles).size();
    case MacDashboardSection::downloads:
        return insights.files(MacInsightFileSection::downloads).size();
    case MacDashboardSection::duplicates:
        return insights.duplicateReviewGroups().size();
    case MacDashboardSection::security:
        return insights.files(MacInsightFileSection::security).size();
    default:
        return 0;
    }
}

QVariantList itemsOf(const MacCleanerDashboardModel& dashboard, std::span<const MacDashboardSection> sections)
{
    const auto words = dashboard.words();
    QVariantList items;
    for (const auto section : sections) {
        const auto count = countOf(dashboard, section);
        items.append(QVariant::fromValue(SidebarItem{
            .section = rawText(section),
            .title = shown(words.macDashboardSectionTitle(section)),
            .iconName = QString::fromUtf8(iconOf(section)),
            .count = count == 0 ? QString() : QString::number(count),
        }));
    }
    return items;
}

bool isAdvanced(MacDashboardSection section)
{
    return std::ranges::find(kAdvanced, section) != kAdvanced.end();
}

bool isInGroups(MacDashboardSection section)
{
    return isAdvanced(section) || std::ranges::find(kPrimary, section) != kPrimary.end()
        || std::ranges::find(kSupport, section) != kSupport.end();
}

} // namespace

SidebarModel::SidebarModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
{
    const auto remember = [this] {
        if (isInGroups(m_dashboard.selectedSection())) {
            m_lastOfGroups = m_dashboard.selectedSection();
        }
    };
    remember();
    connect(&dashboard, &MacCleanerDashboardModel::selectedSectionChanged, this, [this, remember] {
        remember();
        Q_EMIT selectedSectionChanged();
        Q_EMIT advancedShownChanged();
    });
    connect(&dashboard, &MacCleanerDashboardModel::diskSnapshotChanged, this, &SidebarModel::diskChanged);
    connect(&dashboard.preferences(), &DashboardPreferences::advancedExpandedChanged, this,
        &SidebarModel::advancedShownChanged);
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, [this] {
        refresh();
        Q_EMIT advancedShownChanged();
        Q_EMIT diskChanged();
    });
    connect(&dashboard.cleaner(), &CleanerViewModel::reportChanged, this, &SidebarModel::refresh);
    connect(&dashboard.insights(), &MacInsightsViewModel::reportChanged, this, &SidebarModel::refresh);
    refresh();
}

void SidebarModel::refresh()
{
    m_primary = itemsOf(m_dashboard, kPrimary);
    m_advanced = itemsOf(m_dashboard, kAdvanced);
    m_support = itemsOf(m_dashboard, kSupport);
    Q_EMIT itemsChanged();
}

QString SidebarModel::primaryTitle() const
{
    return shown(m_dashboard.words().text("기본", "Primary"));
}

QString SidebarModel::advancedTitle() const
{
    return shown(m_dashboard.words().text("고급", "Advanced"));
}

QString SidebarModel::supportTitle() const
{
    return shown(m_dashboard.words().text("지원", "Support"));
}

MacDashboardSection SidebarModel::stop() const
{
    return isAdvanced(m_lastOfGroups) && !isAdvancedShown() ? MacDashboardSection::dashboard : m_lastOfGroups;
}

QString SidebarModel::stopSection() const
{
    return rawText(stop());
}

bool SidebarModel::isAdvancedHeld() const
{
    return isAdvanced(m_dashboard.selectedSection());
}

bool SidebarModel::isAdvancedShown() const
{
    return isAdvancedHeld() || m_dashboard.preferences().isAdvancedExpanded();
}

QString SidebarModel::advancedText() const
{
    const auto words = m_dashboard.words();
    return shown(!isAdvancedShown() ? words.text("접힘", "Collapsed")
            : isAdvancedHeld()
            ? words.text("고급 섹션을 보는 동안에는 접을 수 없습니다. 다른 섹션으로 이동하면 접을 수 있습니다.",
                  "Cannot collapse while viewing an advanced section. Switch to another section to collapse.")
            : words.text("펼쳐짐", "Expanded"));
}

QString SidebarModel::storageTitle() const
{
    return shown(m_dashboard.words().text("저장 공간", "Storage"));
}

QString SidebarModel::freeText() const
{
    const auto& disk = m_dashboard.diskSnapshot();
    const auto words = m_dashboard.words();
    return disk.totalBytes > 0 ? shown(words.say("{} free", words.byteSize(disk.freeBytes))) : QString();
}

QString SidebarModel::usedText() const
{
    const auto& disk = m_dashboard.diskSnapshot();
    const auto words = m_dashboard.words();
    return disk.totalBytes > 0
        ? shown(words.say("{} / {} used", words.byteSize(disk.usedBytes()), words.byteSize(disk.totalBytes)))
        : QString();
}

double SidebarModel::usedFraction() const
{
    const auto& disk = m_dashboard.diskSnapshot();
    return disk.totalBytes > 0 ? 1 - disk.freeFraction() : -1;
}

void SidebarModel::selectAt(int place)
{
    for (const std::span<const MacDashboardSection> group : {std::span<const MacDashboardSection>(kPrimary),
             std::span<const MacDashboardSection>(kAdvanced), std::span<const MacDashboardSection>(kSupport)}) {
        const int count = static_cast<int>(group.size());
        if (place >= 1 && place <= count) {
            m_dashboard.selectSection(group[static_cast<std::size_t>(place - 1)]);
            return;
        }
        place -= count;
    }
}

void SidebarModel::selectStep(int step)
{
    std::vector<MacDashboardSection> sections(kPrimary.begin(), kPrimary.end());
    if (isAdvancedShown()) {
        sections.insert(sections.end(), kAdvanced.begin(), kAdvanced.end());
    }
    sections.insert(sections.end(), kSupport.begin(), kSupport.end());
    const auto last = static_cast<std::ptrdiff_t>(sections.size()) - 1;
    auto place = std::ranges::find(sections, stop()) - sections.begin();
    place = step == -2 ? 0 : step == 2 ? last : std::clamp<std::ptrdiff_t>(place + step, 0, last);
    m_dashboard.selectSection(sections[static_cast<std::size_t>(place)]);
}

} // namespace KarvelloUI
