#include "KarvelloUI/Screens/System/SystemFigures.h"

#include "KarvelloUI/Copy/PercentText.h"

#include <algorithm>
#include <limits>

namespace KarvelloUI::SystemFigures {

using CleanerCore::SystemResourceSnapshot;

namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

bool wasRead(const SystemResourceSnapshot& snapshot)
{
    return snapshot.activeProcessorCount > 0;
}

} // namespace

QString cpu(const SystemResourceSnapshot& snapshot)
{
    return shown(percentText(wasRead(snapshot) ? snapshot.normalizedCPULoad : kUnknown));
}

QString memory(const SystemResourceSnapshot& snapshot)
{
    return shown(percentText(snapshot.physicalMemoryBytes > 0
            ? static_cast<double>(snapshot.usedMemoryBytes) / static_cast<double>(snapshot.physicalMemoryBytes)
            : kUnknown));
}

QString memoryAmounts(const SystemResourceSnapshot& snapshot, const DashboardWords& words)
{
    if (snapshot.physicalMemoryBytes == 0) {
        return {};
    }
    return shown(fmt::format(
        "{} / {}", byteSize(snapshot.usedMemoryBytes, words), byteSize(snapshot.physicalMemoryBytes, words)));
}

QString loadAverage(const SystemResourceSnapshot& snapshot)
{
    return shown(wasRead(snapshot) ? fmt::format("{:.2f}", snapshot.cpuLoadAverage) : percentText(kUnknown));
}

QString activeCores(const SystemResourceSnapshot& snapshot)
{
    return shown(wasRead(snapshot) ? fmt::format("{} / {}", snapshot.activeProcessorCount, snapshot.processorCount)
                                   : percentText(kUnknown));
}

std::string byteSize(std::uint64_t bytes, const DashboardWords& words)
{
    constexpr std::uint64_t kMost = std::numeric_limits<std::int64_t>::max();
    return words.byteSize(static_cast<std::int64_t>(std::min(bytes, kMost)));
}

KarvelloPillKind pillOfPressure(std::string_view memoryPressure)
{
    if (memoryPressure == "High") {
        return KarvelloPillKind::review;
    }
    if (memoryPressure == "Moderate") {
        return KarvelloPillKind::caution;
    }
    return memoryPressure == "Normal" ? KarvelloPillKind::safe : KarvelloPillKind::neutral;
}

KarvelloPillKind pillOfThermalState(std::string_view thermalState)
{
    if (thermalState == "Critical" || thermalState == "Serious") {
        return KarvelloPillKind::review;
    }
    if (thermalState == "Fair") {
        return KarvelloPillKind::caution;
    }
    return thermalState == "Nominal" ? KarvelloPillKind::safe : KarvelloPillKind::neutral;
}

QString missingCourse(std::span<const double> samples, const DashboardWords& words)
{
    if (samples.size() > 1) {
        return {};
    }
    return shown(samples.empty() ? words.systemTrendSubtitle(0)
                                 : words.text("샘플이 두 개 이상 필요합니다", "Needs at least two samples"));
}

} // namespace KarvelloUI::SystemFigures
