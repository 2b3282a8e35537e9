#include "KarvelloUI/Screens/System/LoadChart.h"

#include "KarvelloUI/Copy/PercentText.h"
#include "KarvelloUI/Screens/System/SystemFigures.h"

#include <cmath>

namespace KarvelloUI {

using CleanerCore::SystemResourceSnapshot;

namespace {

/// The axes and the course, without what is said of it.
LoadChart chartOf(const std::vector<double>& samples, const DashboardWords& words)
{
    const auto count = static_cast<std::int64_t>(samples.size());
    const bool hasCourse = samples.size() > 1;
    return {
        .samples = QList<double>(samples.begin(), samples.end()),
        .axisWords = {shown(percentText(1)), shown(percentText(0.5)), shown(percentText(0))},
        .startText = hasCourse ? shown(words.systemTrendSubtitle(count)) : QString(),
        .endText = hasCourse ? shown(words.text("지금", "now")) : QString(),
        .emptyText = SystemFigures::missingCourse(samples, words),
        .accessibleValue = shown(words.metricTrendAccessibilityValue(samples)),
    };
}

std::string coursePart(const std::vector<double>& samples, const DashboardWords& words)
{
    if (samples.size() < 2) {
        return words.text("수집 중", "Collecting");
    }
    // Smaller steps are how every machine breathes.
    constexpr long kLeastPercent = 3;
    const long change = std::lround((samples.back() - samples.front()) * 100);
    if (std::abs(change) < kLeastPercent) {
        return words.text("안정적", "Stable");
    }
    return fmt::format(
        "{} {:+}%", change > 0 ? words.text("상승 중", "Rising") : words.text("하락 중", "Falling"), change);
}

QString courseNote(const std::vector<double>& samples, const DashboardWords& words)
{
    return shown(DashboardWords::joinedParts({words.text("추이", "TREND"), coursePart(samples, words)}));
}

void setLevel(LoadChart& chart, LoadLevel level, const DashboardWords& words)
{
    KarvelloPillKind kind = KarvelloPillKind::safe;
    switch (level) {
    case LoadLevel::nominal:
        chart.pillText = shown(words.text("정상", "Normal"));
        break;
    case LoadLevel::elevated:
        chart.pillText = shown(words.text("다소 높음", "Elevated"));
        kind = KarvelloPillKind::caution;
        break;
    case LoadLevel::high:
        chart.pillText = shown(words.text("높음", "High"));
        kind = KarvelloPillKind::review;
        break;
    }
    chart.pillKind = static_cast<int>(kind);
}

void setProcessorLines(LoadChart& chart, const SystemResourceSnapshot& snapshot, const DashboardWords& words)
{
    chart.figure = SystemFigures::cpu(snapshot);
    if (snapshot.activeProcessorCount > 0) {
        chart.firstLine =
            shown(words.text("CPU 1분 평균", "CPU 1-min Average") + ' ') + SystemFigures::loadAverage(snapshot);
        chart.secondLine =
            shown(fmt::format("{} {}", words.text("활성 코어", "Active Cores"), snapshot.activeProcessorCount));
    }
}

} // namespace

LoadChart LoadChart::livePulse(
    const SystemResourceSnapshot& snapshot, const SystemMetricHistory& history, const DashboardWords& words)
{
    LoadChart chart = chartOf(history.cpuLoad(), words);
    chart.title = shown(words.text("CPU 실시간 변화", "CPU Live Pulse"));
    chart.pillText = shown(words.text("실시간", "LIVE"));
    chart.pillKind = static_cast<int>(KarvelloPillKind::accent);
    chart.note =
        shown(words.text("순간적인 상승이 보이도록 매초 측정합니다", "Sampled every second for visible spikes"));
    setProcessorLines(chart, snapshot, words);
    return chart;
}

LoadChart LoadChart::cpuLoad(
    const SystemResourceSnapshot& snapshot, const SystemMetricHistory& history, const DashboardWords& words)
{
    LoadChart chart = chartOf(history.cpuLoad(), words);
    chart.title = shown(words.text("CPU 부하", "CPU Load"));
    chart.note = courseNote(history.cpuLoad(), words);
    setProcessorLines(chart, snapshot, words);
    if (snapshot.activeProcessorCount > 0) {
        setLevel(chart, loadLevelOfCPU(snapshot.normalizedCPULoad), words);
    }
    return chart;
}

LoadChart LoadChart::memoryPressure(
    const SystemResourceSnapshot& snapshot, const SystemMetricHistory& history, const DashboardWords& words)
{
    LoadChart chart = chartOf(history.memoryUsage(), words);
    chart.title = shown(words.text("메모리 압박", "Memory Pressure"));
    chart.note = courseNote(history.memoryUsage(), words);
    chart.figure = SystemFigures::memory(snapshot);
    if (snapshot.physicalMemoryBytes > 0) {
        chart.firstLine = SystemFigures::memoryAmounts(snapshot, words);
        chart.secondLine = shown(fmt::format("{} {}", words.text("여유 메모리", "Free Memory"),
            SystemFigures::byteSize(snapshot.freeMemoryBytes(), words)));
        setLevel(chart, loadLevelOfMemory(snapshot.memoryPressure), words);
    }
    return chart;
}

} // namespace KarvelloUI
