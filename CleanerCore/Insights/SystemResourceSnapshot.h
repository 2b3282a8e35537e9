#pragma once

#include "Platform/Base/Date.h"
#include "Platform/Services/SystemStatistics.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace CleanerCore {

class CPUUsageSampler;

/// The state of the machine at one moment. The words are stored as they stand here and are translated where they are
/// shown.
struct SystemResourceSnapshot {
    /// The `temperatureDetail` of every snapshot that is taken: no temperature is part of one.
    static constexpr std::string_view kTemperatureDetail =
        "Raw sensor temperatures require private/privileged SMC access. Karvello reports Apple's public thermal "
        "pressure state instead.";

    Platform::Date capturedAt = {};
    std::uint64_t physicalMemoryBytes = 0;
    /// Never above `physicalMemoryBytes` in a snapshot that was taken; 0 if it could not be read.
    std::uint64_t usedMemoryBytes = 0;
    /// "Normal", "Moderate", "High" or "Unknown", after the share of memory that is used.
    std::string memoryPressure = {};
    /// Of the last minute, not below 0.
    double cpuLoadAverage = 0;
    /// From 0 to 1: how busy the processors were since the snapshot before. Without one, the load average for each
    /// active processor.
    double normalizedCPULoad = 0;
    std::int64_t processorCount = 0;
    /// At least 1.
    std::int64_t activeProcessorCount = 0;
    /// "Nominal", "Fair", "Serious", "Critical" or "Unknown".
    std::string thermalState = {};
    /// In seconds; 0 if it could not be read.
    double uptime = 0;
    std::string temperatureDetail = {};

    /// This machine now. May be called from any thread; all callers share one sampler.
    static SystemResourceSnapshot current();
    /// The machine that `statistics` tells of.
    static SystemResourceSnapshot current(
        const Platform::SystemStatistics& statistics, CPUUsageSampler& sampler, Platform::Date capturedAt);

    [[nodiscard]] std::uint64_t freeMemoryBytes() const
    {
        return physicalMemoryBytes > usedMemoryBytes ? physicalMemoryBytes - usedMemoryBytes : 0;
    }

    friend bool operator==(const SystemResourceSnapshot&, const SystemResourceSnapshot&) = default;
};

} // namespace CleanerCore

template <>
struct std::hash<CleanerCore::SystemResourceSnapshot> {
    std::size_t operator()(const CleanerCore::SystemResourceSnapshot& snapshot) const noexcept;
};
