#include "KarvelloUI/Stores/SystemMetricHistory.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

namespace KarvelloUI {

namespace {

struct ThermalRow {
    std::string_view state;
    double pressure;
};

constexpr std::array kThermalRows{
    ThermalRow{"Critical", 1.0},
    ThermalRow{"Serious", 0.82},
    ThermalRow{"Fair", 0.48},
    ThermalRow{"Nominal", 0.18},
};
constexpr double kUnknownThermalPressure = 0.1;

double clamped(double value)
{
    return std::isnan(value) ? 0 : std::clamp(value, 0.0, 1.0);
}

double memoryShare(const CleanerCore::SystemResourceSnapshot& snapshot)
{
    if (snapshot.physicalMemoryBytes == 0) {
        return 0;
    }
    const auto used = std::min(snapshot.usedMemoryBytes, snapshot.physicalMemoryBytes);
    return static_cast<double>(used) / static_cast<double>(snapshot.physicalMemoryBytes);
}

} // namespace

SystemMetricHistory::SystemMetricHistory(
    std::vector<double> cpuLoad, std::vector<double> memoryUsage, std::vector<double> thermalPressure)
    : m_cpuLoad(std::move(cpuLoad))
    , m_memoryUsage(std::move(memoryUsage))
    , m_thermalPressure(std::move(thermalPressure))
{
    for (auto* const series : {&m_cpuLoad, &m_memoryUsage, &m_thermalPressure}) {
        std::ranges::transform(*series, series->begin(), clamped);
    }
    trim(maximumSamples);
}

void SystemMetricHistory::append(const CleanerCore::SystemResourceSnapshot& snapshot, std::int64_t limit)
{
    m_cpuLoad.push_back(clamped(snapshot.normalizedCPULoad));
    m_memoryUsage.push_back(clamped(memoryShare(snapshot)));
    m_thermalPressure.push_back(thermalPressure(snapshot.thermalState));
    trim(std::min(limit, maximumSamples));
}

void SystemMetricHistory::trim(std::int64_t limit)
{
    for (auto* const series : {&m_cpuLoad, &m_memoryUsage, &m_thermalPressure}) {
        const auto surplus = std::ssize(*series) - std::max<std::int64_t>(limit, 0);
        series->erase(series->begin(), series->begin() + std::max<std::int64_t>(surplus, 0));
    }
}

double SystemMetricHistory::thermalPressure(std::string_view thermalState)
{
    const auto* const row = std::ranges::find(kThermalRows, thermalState, &ThermalRow::state);
    return row != kThermalRows.end() ? row->pressure : kUnknownThermalPressure;
}

} // namespace KarvelloUI

void Platform::JSONFields<KarvelloUI::SystemMetricHistory>::normalize(KarvelloUI::SystemMetricHistory& history)
{
    history = KarvelloUI::SystemMetricHistory(
        std::move(history.m_cpuLoad), std::move(history.m_memoryUsage), std::move(history.m_thermalPressure));
}
