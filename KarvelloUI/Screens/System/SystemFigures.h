#pragma once

#include "CleanerCore/Insights/SystemResourceSnapshot.h"
#include "KarvelloUI/Dashboard/DashboardWords.h"
#include "KarvelloUI/Design/KarvelloPill.h"

#include <QString>
#include <cstdint>
#include <span>

namespace KarvelloUI::SystemFigures {

/// "18%"; "—" as long as nothing was read.
[[nodiscard]] QString cpu(const CleanerCore::SystemResourceSnapshot& snapshot);
[[nodiscard]] QString memory(const CleanerCore::SystemResourceSnapshot& snapshot);
/// "8.9 GB / 15.6 GB"; empty as long as nothing was read.
[[nodiscard]] QString memoryAmounts(const CleanerCore::SystemResourceSnapshot& snapshot, const DashboardWords& words);
/// "1.42"
[[nodiscard]] QString loadAverage(const CleanerCore::SystemResourceSnapshot& snapshot);
/// "16 / 16": those that work, of all.
[[nodiscard]] QString activeCores(const CleanerCore::SystemResourceSnapshot& snapshot);

/// A size that may be beyond what the formatter takes.
[[nodiscard]] std::string byteSize(std::uint64_t bytes, const DashboardWords& words);

/// The words of a snapshot by what they ask for; one that nobody knows asks for nothing.
[[nodiscard]] KarvelloPillKind pillOfPressure(std::string_view memoryPressure);
[[nodiscard]] KarvelloPillKind pillOfThermalState(std::string_view thermalState);

/// What stands in place of a line; empty when there is one.
[[nodiscard]] QString missingCourse(std::span<const double> samples, const DashboardWords& words);

} // namespace KarvelloUI::SystemFigures
