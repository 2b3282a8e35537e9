#include "Platform/Linux/ThermalSensors.h"

#include "Platform/Linux/KernelText.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fmt/format.h>
#include <optional>
#include <string_view>
#include <vector>

namespace Platform {

namespace {

/// In thousandths of a degree Celsius, as the kernel tells them.
using Temperature = std::int64_t;

constexpr Temperature kDegree = 1000;
constexpr Temperature kHighest = 125 * kDegree;
/// Firmware that knows no threshold tells nonsense: 0, 20.8 degrees, or one below the absolute zero (-274).
constexpr Temperature kLowestThreshold = 60 * kDegree;
constexpr Temperature kShutdownMargin = 3 * kDegree;
constexpr Temperature kFairMargin = 10 * kDegree;
constexpr int kMaximumTrips = 64;

/// The drivers of hwmon that tell of the processor itself.
constexpr std::array<std::string_view, 3> kProcessorDrivers{"zenpower", "coretemp", "k10temp"};

struct Sensor {
    Temperature temperature = 0;
    /// Where the machine slows down, and where it (nearly) shuts down.
    std::optional<Temperature> serious = {};
    std::optional<Temperature> critical = {};
};

void lower(std::optional<Temperature>& threshold, Temperature candidate)
{
    threshold = std::min(threshold.value_or(candidate), candidate);
}

std::optional<Temperature> readThreshold(const std::string& path)
{
    const auto value = KernelText::readNumber<Temperature>(path);
    return value && *value >= kLowestThreshold && *value <= kHighest ? value : std::nullopt;
}

/// A machine that is past the point of shutting down is not there to be asked: such a sensor tells nonsense.
bool isPast(std::optional<Temperature> shutdown, Temperature temperature)
{
    return shutdown && temperature > *shutdown;
}

std::optional<Temperature> readTemperature(const std::string& path)
{
    const auto value = KernelText::readNumber<Temperature>(path);
    return value && *value > 0 && *value <= kHighest ? value : std::nullopt;
}

std::optional<Sensor> readZone(const std::string& zone)
{
    const auto mode = KernelText::read(zone + "/mode");
    if (mode && KernelText::stripped(*mode) == "disabled") {
        return std::nullopt;
    }
    const auto temperature = readTemperature(zone + "/temp");
    if (!temperature) {
        return std::nullopt;
    }
    Sensor sensor{.temperature = *temperature};
    for (int trip = 0; trip < kMaximumTrips; ++trip) {
        const auto type = KernelText::read(fmt::format("{}/trip_point_{}_type", zone, trip));
        if (!type) {
            break;
        }
        const auto threshold = readThreshold(fmt::format("{}/trip_point_{}_temp", zone, trip));
        if (!threshold) {
            continue;
        }
        const auto kind = KernelText::stripped(*type);
        if (kind == "passive") {
            lower(sensor.serious, *threshold);
        } else if (kind == "hot") {
            lower(sensor.critical, *threshold);
        } else if (kind == "critical") {
            if (isPast(threshold, *temperature)) {
                return std::nullopt;
            }
            lower(sensor.critical, *threshold - kShutdownMargin);
        }
    }
    return sensor;
}

void readProcessorSensors(const std::string& device, std::vector<Sensor>& sensors)
{
    constexpr std::string_view ending = "_input";
    const auto driver = KernelText::read(device + "/name");
    if (!driver || std::ranges::find(kProcessorDrivers, KernelText::stripped(*driver)) == kProcessorDrivers.end()) {
        return;
    }
    for (const auto& name : KernelText::namesIn(device)) {
        if (!name.starts_with("temp") || !name.ends_with(ending)) {
            continue;
        }
        const auto sensorPath = device + "/" + name.substr(0, name.size() - ending.size());
        const auto temperature = readTemperature(sensorPath + std::string(ending));
        const auto shutdown = readThreshold(sensorPath + "_crit");
        if (!temperature || isPast(shutdown, *temperature)) {
            continue;
        }
        sensors.push_back({
            .temperature = *temperature,
            .serious = readThreshold(sensorPath + "_max"),
            .critical = shutdown ? std::optional(*shutdown - kShutdownMargin) : std::nullopt,
        });
    }
}

std::optional<ThermalState> thermalStateOf(const Sensor& sensor)
{
    if (!sensor.serious && !sensor.critical) {
        return std::nullopt;
    }
    if (sensor.critical && sensor.temperature >= *sensor.critical) {
        return ThermalState::critical;
    }
    if (sensor.serious && sensor.temperature >= *sensor.serious) {
        return ThermalState::serious;
    }
    const auto lowest = std::min(sensor.serious.value_or(kHighest), sensor.critical.value_or(kHighest));
    return sensor.temperature >= lowest - kFairMargin ? ThermalState::fair : ThermalState::nominal;
}

} // namespace

ThermalState thermalStateOfSensors(const std::string& sysRoot)
{
    std::vector<Sensor> sensors;
    const auto zones = sysRoot + "/class/thermal";
    for (const auto& name : KernelText::namesIn(zones)) {
        if (name.starts_with("thermal_zone")) {
            if (const auto sensor = readZone(fmt::format("{}/{}", zones, name))) {
                sensors.push_back(*sensor);
            }
        }
    }
    const auto devices = sysRoot + "/class/hwmon";
    for (const auto& name : KernelText::namesIn(devices)) {
        readProcessorSensors(fmt::format("{}/{}", devices, name), sensors);
    }

    std::optional<ThermalState> warmest;
    for (const auto& sensor : sensors) {
        if (const auto state = thermalStateOf(sensor)) {
            warmest = std::max(warmest.value_or(*state), *state);
        }
    }
    return warmest.value_or(ThermalState::unknown);
}

} // namespace Platform
