#pragma once

#include "Platform/Services/SystemStatistics.h"

#include <atomic>
#include <cstdint>
#include <optional>
#include <string>

namespace Platform {

/// The figures as the kernel tells them below /proc and /sys.
class LinuxSystemStatistics final : public SystemStatistics {
public:
    explicit LinuxSystemStatistics(std::string procRoot = "/proc", std::string sysRoot = "/sys");

    [[nodiscard]] std::optional<std::uint64_t> physicalMemory() const override;
    /// All but what the kernel thinks it could give to a new program without swapping ("MemAvailable").
    [[nodiscard]] std::optional<std::uint64_t> usedMemory() const override;
    [[nodiscard]] std::optional<double> loadAverage() const override;
    /// Waiting for a disk counts as idle, time for interrupts and time stolen by a host count as system.
    [[nodiscard]] std::optional<CPUTicks> cpuTicks() const override;
    [[nodiscard]] std::int64_t processorCount() const override;
    [[nodiscard]] std::int64_t activeProcessorCount() const override;
    [[nodiscard]] ThermalState thermalState() const override;
    [[nodiscard]] std::optional<double> uptime() const override;

private:
    [[nodiscard]] std::string proc(const char* name) const { return m_procRoot + "/" + name; }

    std::string m_procRoot;
    std::string m_sysRoot;
    /// proc_stat(5): the count of ticks spent waiting for a disk may go down. It is told as the highest that was seen.
    mutable std::atomic<std::uint64_t> m_highestWait{0};
};

} // namespace Platform
