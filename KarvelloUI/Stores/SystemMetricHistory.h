#pragma once

#include "CleanerCore/Insights/SystemResourceSnapshot.h"
#include "Platform/Base/JSONCoding.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace KarvelloUI {

/// The last samples of what a machine did, for small charts: fractions from 0 to 1, the oldest first.
class SystemMetricHistory {
public:
    static constexpr std::int64_t maximumSamples = 24;

    SystemMetricHistory() = default;
    /// Limits every value, and keeps the last `maximumSamples` of each series.
    SystemMetricHistory(
        std::vector<double> cpuLoad, std::vector<double> memoryUsage, std::vector<double> thermalPressure);

    [[nodiscard]] const std::vector<double>& cpuLoad() const { return m_cpuLoad; }
    [[nodiscard]] const std::vector<double>& memoryUsage() const { return m_memoryUsage; }
    [[nodiscard]] const std::vector<double>& thermalPressure() const { return m_thermalPressure; }

    /// Adds a sample to each series and keeps the newest `limit`, never more than `maximumSamples`. A limit below 1
    /// empties the history.
    void append(const CleanerCore::SystemResourceSnapshot& snapshot, std::int64_t limit = maximumSamples);
    /// Keeps the newest `limit` samples of each series; none for a limit below 1.
    void trim(std::int64_t limit);

    /// How high a thermal state stands in the chart.
    [[nodiscard]] static double thermalPressure(std::string_view thermalState);

    friend bool operator==(const SystemMetricHistory&, const SystemMetricHistory&) = default;

private:
    friend struct Platform::JSONFields<SystemMetricHistory>;

    std::vector<double> m_cpuLoad;
    std::vector<double> m_memoryUsage;
    std::vector<double> m_thermalPressure;
};

} // namespace KarvelloUI

template <>
struct Platform::JSONFields<KarvelloUI::SystemMetricHistory> {
    static void code(auto& coder, auto& history)
    {
        coder.defaulted("cpuLoad", history.m_cpuLoad, {});
        coder.defaulted("memoryUsage", history.m_memoryUsage, {});
        coder.defaulted("thermalPressure", history.m_thermalPressure, {});
    }
    static void normalize(KarvelloUI::SystemMetricHistory& history);
};
