#pragma once

#include "Platform/Services/SystemStatistics.h"

#include <string>

namespace Platform {

/// How warm the machine is, after the warmest of its trustworthy sensors below /sys (the kernel's sysfs-class-thermal
/// and hwmon interfaces). A sensor counts only if it tells a temperature that can be and a threshold to compare it
/// with; without one the state is unknown.
///
/// Critical: within 3 degrees of the point at which the machine shuts down. Serious: at the point at which it slows
/// down. Fair: within 10 degrees of the lower of these. Each call is one look, without a memory of those before.
[[nodiscard]] ThermalState thermalStateOfSensors(const std::string& sysRoot);

} // namespace Platform
