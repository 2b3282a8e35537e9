#include "KarvelloUI/Copy/PercentText.h"
#include "KarvelloUI/Dashboard/KnownState.h"
#include "KarvelloUI/Screens/Home/HomeFigures.h"

#include <algorithm>
#include <fmt/format.h>
#include <string>
#include <string_view>

namespace KarvelloUI::HomeFigures {

namespace {

constexpr const char* kNoFigure = "—";

/// "3 / 16 GB": a unit that both have is said once, so that the text stays beside its figure as that changes.
std::string shareText(const std::string& part, const std::string& whole)
{
    const auto space = part.rfind(' ');
    const bool hasOneUnit = space != std::string::npos && whole.ends_with(std::string_view(part).substr(space));
    return fmt::format("{} / {}", hasOneUnit ? std::string_view(part).substr(0, space) : part, whole);
}

/// What all three have in common.
MetricTile metric(
    QString iconName, const std::string& name, std::span<const double> samples, const DashboardWords& words)
{
    return {
        .iconName = std::move(iconName),
        .name = shown(name),
        .note = shown(words.text("지금", "Now")),
        .figure = QString::fromUtf8(kNoFigure),
        .text = shown(words.say("No reading")),
        .samples = QList<double>(samples.begin(), samples.end()),
        .emptyText = shown(words.systemTrendSubtitle(std::ssize(samples))),
        .accessibleValue = shown(words.metricTrendAccessibilityValue(samples)),
    };
}

} // namespace

HomeHero hero(const DiskCapacitySnapshot& disk, std::int64_t reclaimableBytes, const DashboardWords& words)
{
    HomeHero hero{
        .title = shown(words.text("여유 공간", "Free space")),
        .reclaimableText = reclaimableBytes > 0
            ? shown(fmt::format("{} {}", words.reclaimableTitle(), words.byteSize(reclaimableBytes)))
            : QString(),
    };
    if (disk.totalBytes < 1) {
        hero.percent = QString::fromUtf8(kNoFigure);
        hero.usedText = shown(words.say("Disk capacity unknown"));
        return hero;
    }
    const auto total = static_cast<double>(disk.totalBytes);
    hero.pillText = shown(words.text("실시간", "LIVE"));
    hero.percent = shown(percentText(disk.freeFraction()));
    hero.freeText = shown(words.say("{} free", words.byteSize(disk.freeBytes)));
    hero.usedText = shown(words.say("{} / {} used", words.byteSize(disk.usedBytes()), words.byteSize(disk.totalBytes)));
    hero.usedFraction = static_cast<double>(disk.usedBytes()) / total;
    hero.reclaimableFraction = std::clamp(static_cast<double>(reclaimableBytes) / total, 0.0, hero.usedFraction);
    return hero;
}

std::vector<MetricTile> metrics(const CleanerCore::SystemResourceSnapshot& snapshot, const SystemMetricHistory& history,
    const DashboardWords& words)
{
    MetricTile processors = metric(QStringLiteral("cpu"), words.text("CPU", "CPU"), history.cpuLoad(), words);
    if (snapshot != CleanerCore::SystemResourceSnapshot()) {
        processors.figure = shown(percentText(snapshot.normalizedCPULoad));
        processors.text =
            shown(words.text("순간 변화를 볼 수 있도록 1초마다 측정", "Sampled every second for visible spikes"));
    }

    MetricTile memory = metric(QStringLiteral("memory"), words.text("메모리", "Memory"), history.memoryUsage(), words);
    if (snapshot.physicalMemoryBytes > 0) {
        memory.figure = shown(percentText(
            static_cast<double>(snapshot.usedMemoryBytes) / static_cast<double>(snapshot.physicalMemoryBytes)));
        memory.unit = shown(shareText(words.byteSize(static_cast<std::int64_t>(snapshot.usedMemoryBytes)),
            words.byteSize(static_cast<std::int64_t>(snapshot.physicalMemoryBytes))));
        memory.text =
            isKnownState(snapshot.memoryPressure) ? shown(words.localizedPressure(snapshot.memoryPressure)) : QString();
    }

    // The history keeps a value for machines that tell none; a curve of it would look like a reading.
    const bool isTold = snapshot == CleanerCore::SystemResourceSnapshot() || isKnownState(snapshot.thermalState);
    MetricTile thermal = metric(QStringLiteral("thermal"), words.text("발열", "Thermal"),
        isTold ? std::span<const double>(history.thermalPressure()) : std::span<const double>(), words);
    if (isKnownState(snapshot.thermalState)) {
        thermal.figure = shown(words.localizedThermalState(snapshot.thermalState));
        thermal.text = shown(words.text(
            "센서 온도가 아님 · 공개된 열 압박 수준", "Not a sensor temperature · public thermal pressure level"));
    }
    return {processors, memory, thermal};
}

} // namespace KarvelloUI::HomeFigures
