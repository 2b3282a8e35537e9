#include "KarvelloUI/MenuBar/KarvelloMenuBarSystemMetrics.h"

#include <algorithm>

namespace KarvelloUI {

namespace {

struct ThermalBar {
    std::string_view state;
    double value;
};

constexpr std::array kThermalBars{
    ThermalBar{"Critical", 1.0},
    ThermalBar{"Serious", 0.76},
    ThermalBar{"Fair", 0.48},
    ThermalBar{"Nominal", 0.22},
};

} // namespace

std::array<KarvelloMenuBarSystemMetrics::Metric, 3> KarvelloMenuBarSystemMetrics::metrics(
    const KarvelloMenuBarStatusSnapshot& snapshot, const KarvelloMenuBarStrings& strings)
{
    const auto& thermalState = snapshot.systemSnapshot.thermalState;
    return {
        Metric{.symbol = "cpu.fill",
            .title = strings.cpuTitle(),
            .value = KarvelloMenuBarStrings::percent(snapshot.cpuLoadFraction()),
            .barValue = snapshot.cpuLoadFraction()},
        Metric{.symbol = "memorychip.fill",
            .title = strings.memoryTitle(),
            .value = KarvelloMenuBarStrings::percent(snapshot.memoryUsedFraction()),
            .barValue = snapshot.memoryUsedFraction()},
        Metric{.symbol = "thermometer.medium",
            .title = strings.thermalTitle(),
            .value = strings.localizedThermalState(thermalState),
            .barValue = thermalBarValue(thermalState)},
    };
}

double KarvelloMenuBarSystemMetrics::thermalBarValue(std::string_view thermalState)
{
    const auto* const bar = std::ranges::find(kThermalBars, thermalState, &ThermalBar::state);
    return bar != kThermalBars.end() ? bar->value : 0.0;
}

} // namespace KarvelloUI
