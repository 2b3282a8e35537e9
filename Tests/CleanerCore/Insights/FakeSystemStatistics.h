#pragma once

#include "Platform/Services/SystemStatistics.h"

namespace InsightTests {

/// A machine that tells what a test says.
struct FakeSystemStatistics final : Platform::SystemStatistics {
    std::optional<std::uint64_t> physical = 1000;
    std::optional<std::uint64_t> used = 500;
    std::optional<double> load = 0;
    std::optional<Platform::CPUTicks> ticks = {};
    std::int64_t processors = 8;
    std::int64_t activeProcessors = 8;
    Platform::ThermalState thermal = Platform::ThermalState::nominal;
    std::optional<double> secondsUp = 60;

    [[nodiscard]] std::optional<std::uint64_t> physicalMemory() const override { return physical; }
    [[nodiscard]] std::optional<std::uint64_t> usedMemory() const override { return used; }
    [[nodiscard]] std::optional<double> loadAverage() const override { return load; }
    [[nodiscard]] std::optional<Platform::CPUTicks> cpuTicks() const override { return ticks; }
    [[nodiscard]] std::int64_t processorCount() const override { return processors; }
    [[nodiscard]] std::int64_t activeProcessorCount() const override { return activeProcessors; }
    [[nodiscard]] Platform::ThermalState thermalState() const override { return thermal; }
    [[nodiscard]] std::optional<double> uptime() const override { return secondsUp; }
};

} // namespace InsightTests
