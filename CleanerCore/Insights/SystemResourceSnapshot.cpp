#include "CleanerCore/Insights/SystemResourceSnapshot.h"

#include "CleanerCore/Insights/CPUUsageSampler.h"

#include <algorithm>
#include <type_traits>

namespace CleanerCore {

namespace {

std::string memoryPressureWord(std::uint64_t usedBytes, std::uint64_t physicalBytes)
{
    if (physicalBytes == 0) {
        return "Unknown";
    }
    const auto ratio = static_cast<double>(usedBytes) / static_cast<double>(physicalBytes);
    if (ratio >= 0.85) {
        return "High";
    }
    return ratio >= 0.7 ? "Moderate" : "Normal";
}

std::string thermalStateWord(Platform::ThermalState state)
{
    switch (state) {
    case Platform::ThermalState::nominal:
        return "Nominal";
    case Platform::ThermalState::fair:
        return "Fair";
    case Platform::ThermalState::serious:
        return "Serious";
    case Platform::ThermalState::critical:
        return "Critical";
    case Platform::ThermalState::unknown:
        break;
    }
    return "Unknown";
}

} // namespace

SystemResourceSnapshot SystemResourceSnapshot::current()
{
    return current(Platform::SystemStatistics::ofThisMachine(), CPUUsageSampler::shared(), Platform::Date::now());
}

SystemResourceSnapshot SystemResourceSnapshot::current(
    const Platform::SystemStatistics& statistics, CPUUsageSampler& sampler, Platform::Date capturedAt)
{
    const auto physicalMemory = statistics.physicalMemory().value_or(0);
    const auto usedMemory = std::min(statistics.usedMemory().value_or(0), physicalMemory);
    const auto loadAverage = std::max(statistics.loadAverage().value_or(0), 0.0);
    const auto activeProcessors = std::max<std::int64_t>(statistics.activeProcessorCount(), 1);
    const auto loadShare = std::clamp(loadAverage / static_cast<double>(activeProcessors), 0.0, 1.0);
    return {
        .capturedAt = capturedAt,
        .physicalMemoryBytes = physicalMemory,
        .usedMemoryBytes = usedMemory,
        .memoryPressure = memoryPressureWord(usedMemory, physicalMemory),
        .cpuLoadAverage = loadAverage,
        .normalizedCPULoad = sampler.currentCPUUsageFraction(statistics).value_or(loadShare),
        .processorCount = statistics.processorCount(),
        .activeProcessorCount = activeProcessors,
        .thermalState = thermalStateWord(statistics.thermalState()),
        .uptime = statistics.uptime().value_or(0),
        .temperatureDetail = std::string(kTemperatureDetail),
    };
}

} // namespace CleanerCore

std::size_t std::hash<CleanerCore::SystemResourceSnapshot>::operator()(
    const CleanerCore::SystemResourceSnapshot& snapshot) const noexcept
{
    std::size_t seed = 0;
    const auto combine = [&seed](const auto& value) {
        const auto part = std::hash<std::remove_cvref_t<decltype(value)>>{}(value);
        seed ^= part + 0x9e3779b97f4a7c15U + (seed << 6U) + (seed >> 2U);
    };
    combine(snapshot.capturedAt.secondsSinceReferenceDate);
    combine(snapshot.physicalMemoryBytes);
    combine(snapshot.usedMemoryBytes);
    combine(snapshot.memoryPressure);
    combine(snapshot.cpuLoadAverage);
    combine(snapshot.normalizedCPULoad);
    combine(snapshot.processorCount);
    combine(snapshot.activeProcessorCount);
    combine(snapshot.thermalState);
    combine(snapshot.uptime);
    combine(snapshot.temperatureDetail);
    return seed;
}
