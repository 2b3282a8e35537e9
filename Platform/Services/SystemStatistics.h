#pragma once

#include <cstdint>
#include <optional>

namespace Platform {

/// What the processors have done since the start of the machine, in ticks, of all of them together.
struct CPUTicks {
    std::uint64_t user = 0;
    std::uint64_t system = 0;
    std::uint64_t idle = 0;
    std::uint64_t nice = 0;

    friend bool operator==(const CPUTicks&, const CPUTicks&) = default;
};

enum class ThermalState : std::uint8_t { nominal, fair, serious, critical, unknown };

/// The figures of the machine at the moment of each call. Nothing stands for what could not be read; no figure is
/// invented. Every call may be made from any thread.
class SystemStatistics {
public:
    SystemStatistics() = default;
    SystemStatistics(const SystemStatistics&) = delete;
    SystemStatistics& operator=(const SystemStatistics&) = delete;
    virtual ~SystemStatistics() = default;

    /// The machine that this process runs on; lives as long as the process.
    static const SystemStatistics& ofThisMachine();

    /// In bytes.
    [[nodiscard]] virtual std::optional<std::uint64_t> physicalMemory() const = 0;
    /// In bytes: what programs and the system hold and could not give up at once.
    [[nodiscard]] virtual std::optional<std::uint64_t> usedMemory() const = 0;
    /// Of the last minute.
    [[nodiscard]] virtual std::optional<double> loadAverage() const = 0;
    [[nodiscard]] virtual std::optional<CPUTicks> cpuTicks() const = 0;
    /// How many processors the system knows, and how many of them it uses.
    [[nodiscard]] virtual std::int64_t processorCount() const = 0;
    [[nodiscard]] virtual std::int64_t activeProcessorCount() const = 0;
    [[nodiscard]] virtual ThermalState thermalState() const = 0;
    /// In seconds since the start of the machine.
    [[nodiscard]] virtual std::optional<double> uptime() const = 0;
};

} // namespace Platform
