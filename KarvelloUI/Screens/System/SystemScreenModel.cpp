#include "KarvelloUI/Screens/System/SystemScreenModel.h"

#include "KarvelloUI/Copy/PercentText.h"
#include "KarvelloUI/Dashboard/KnownState.h"
#include "KarvelloUI/Screens/System/SystemFigures.h"
#include "Platform/Base/LocalizedText.h"

#include <limits>
#include <utility>

namespace KarvelloUI {

namespace {

/// The course of a figure and what is said of it.
MetricTile tileOf(const std::vector<double>& samples, const DashboardWords& words)
{
    return {
        .samples = QList<double>(samples.begin(), samples.end()),
        .emptyText = SystemFigures::missingCourse(samples, words),
        .accessibleValue = shown(words.metricTrendAccessibilityValue(samples)),
    };
}

std::string unknownFigure()
{
    return percentText(std::numeric_limits<double>::quiet_NaN());
}

} // namespace

SystemScreenModel::SystemScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
{
    connect(&dashboard.insights(), &MacInsightsViewModel::systemMetricsChanged, this, &SystemScreenModel::takeSample);
    connect(&dashboard, &MacCleanerDashboardModel::diskSnapshotChanged, this, &SystemScreenModel::takeDisk);
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, [this] {
        takeSample();
        takeDisk();
        Q_EMIT languageChanged();
    });
    takeSample();
    takeDisk();
}

QString SystemScreenModel::title() const
{
    return shown(m_dashboard.words().macDashboardSectionTitle(MacDashboardSection::system));
}

QString SystemScreenModel::subtitle() const
{
    return shown(m_dashboard.words().text("시스템 상태는 지금 볼 수 있습니다. 정리는 스캔한 뒤에만 검토하세요.",
        "See system status now. Review cleanup only after scanning."));
}

QString SystemScreenModel::refreshTitle() const
{
    return shown(m_dashboard.words().text("측정값 새로 고침", "Refresh Metrics"));
}

QString SystemScreenModel::monitorTitle() const
{
    return shown(m_dashboard.words().say("Open System Monitor"));
}

QString SystemScreenModel::notesTitle() const
{
    return shown(m_dashboard.words().text("상태 참고 사항", "Status Notes"));
}

QStringList SystemScreenModel::notes() const
{
    const auto words = m_dashboard.words();
    return {
        shown(words.text("이 화면이 열려 있는 동안 상태 측정값이 자동으로 새로 고쳐집니다.",
            "Status metrics refresh automatically while this view is open.")),
        shown(words.text("CPU 평균 부하는 느리게 반응하므로 현재 사용률과 1분 평균을 따로 표시합니다.",
            "CPU load average responds slowly, so current usage and one-minute average are shown separately.")),
        shown(words.text("측정값은 이 기기에서만 계산됩니다.", "Metrics are computed locally on this device.")),
    };
}

QString SystemScreenModel::factsTitle() const
{
    return shown(m_dashboard.words().text("시스템", "System"));
}

void SystemScreenModel::refresh()
{
    m_dashboard.insights().refreshSystemSnapshot();
    m_dashboard.refreshDiskSnapshot();
}

template <typename Part>
void SystemScreenModel::update(Part& part, Part now, void (SystemScreenModel::*changed)())
{
    if (part != now) {
        part = std::move(now);
        Q_EMIT(this->*changed)();
    }
}

void SystemScreenModel::takeSample()
{
    const auto words = m_dashboard.words();
    const auto& snapshot = m_dashboard.insights().currentSystemSnapshot();
    update(m_pulse, LoadChart::livePulse(snapshot, m_dashboard.insights().systemMetricHistory(), words),
        &SystemScreenModel::pulseChanged);
    update(m_memory, memoryTile(words), &SystemScreenModel::memoryChanged);
    update(m_thermal, thermalTile(words), &SystemScreenModel::thermalChanged);
    update(m_uptime,
        NamedValue{.name = shown(words.text("시스템 가동 시간", "System Uptime")),
            .value = shown(snapshot.uptime > 0 ? Platform::LocalizedText::duration(snapshot.uptime, words.locale())
                                               : unknownFigure())},
        &SystemScreenModel::uptimeChanged);
    update(m_loadAverage,
        NamedValue{
            .name = shown(words.text("평균 부하", "Load Average")), .value = SystemFigures::loadAverage(snapshot)},
        &SystemScreenModel::loadAverageChanged);
    update(m_activeCores,
        NamedValue{
            .name = shown(words.text("활성 코어", "Active Cores")), .value = SystemFigures::activeCores(snapshot)},
        &SystemScreenModel::activeCoresChanged);
}

void SystemScreenModel::takeDisk()
{
    update(m_disk, diskTile(m_dashboard.words()), &SystemScreenModel::diskChanged);
}

MetricTile SystemScreenModel::memoryTile(const DashboardWords& words) const
{
    const auto& snapshot = m_dashboard.insights().currentSystemSnapshot();
    MetricTile tile = tileOf(m_dashboard.insights().systemMetricHistory().memoryUsage(), words);
    tile.name = shown(words.text("메모리", "Memory"));
    tile.figure = SystemFigures::memory(snapshot);
    tile.unit = SystemFigures::memoryAmounts(snapshot, words);
    tile.text = shown(words.text("현재 상태에서 추정한 값", "Estimated from the current snapshot"));
    if (isKnownState(snapshot.memoryPressure)) {
        tile.pillText = shown(words.localizedPressure(snapshot.memoryPressure));
        tile.pillKind = static_cast<int>(SystemFigures::pillOfPressure(snapshot.memoryPressure));
    }
    return tile;
}

MetricTile SystemScreenModel::thermalTile(const DashboardWords& words) const
{
    const auto& state = m_dashboard.insights().currentSystemSnapshot().thermalState;
    // Machines that do not tell have no course either: a line at the bottom would say that all is cool.
    const bool isKnown = isKnownState(state);
    MetricTile tile =
        tileOf(isKnown ? m_dashboard.insights().systemMetricHistory().thermalPressure() : std::vector<double>(), words);
    tile.name = shown(words.text("발열 상태", "Thermal State"));
    tile.figure = shown(isKnown ? words.localizedThermalState(state) : unknownFigure());
    tile.text = shown(
        words.text("센서 온도가 아닌 공개된 열 압박 단계", "Not a sensor temperature · public thermal pressure level"));
    if (isKnown) {
        tile.pillText = tile.figure;
        tile.pillKind = static_cast<int>(SystemFigures::pillOfThermalState(state));
    }
    return tile;
}

MetricTile SystemScreenModel::diskTile(const DashboardWords& words) const
{
    const auto& disk = m_dashboard.diskSnapshot();
    MetricTile tile{.name = shown(words.text("여유 공간", "Free space")), .figure = shown(unknownFigure())};
    if (disk.totalBytes > 0) {
        tile.figure = shown(words.byteSize(disk.freeBytes));
        tile.unit = shown(percentText(disk.freeFraction()));
        tile.text = shown(words.say("{} / {} used", words.byteSize(disk.usedBytes()), words.byteSize(disk.totalBytes)));
        tile.fraction = 1 - disk.freeFraction();
        tile.pillText = shown(disk.isLow() ? words.say("Almost full") : words.text("안정적", "Stable"));
        tile.pillKind = static_cast<int>(disk.isLow() ? KarvelloPillKind::caution : KarvelloPillKind::neutral);
    }
    return tile;
}

} // namespace KarvelloUI
