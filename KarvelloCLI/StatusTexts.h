#pragma once

#include "CleanerCore/Export/ReportExportPrivacyMode.h"
#include "CleanerCore/Insights/SystemResourceSnapshot.h"
#include "KarvelloCLI/Sparkline.h"
#include "KarvelloCLI/TextStyle.h"
#include "Platform/Base/JSONError.h"
#include "Platform/Services/VolumeCapacity.h"

#include <cstddef>
#include <expected>
#include <optional>
#include <string>
#include <vector>

namespace KarvelloCLI {

/// The state of the machine and of the disk that holds the home folder.
struct StatusReading {
    CleanerCore::SystemResourceSnapshot snapshot;
    std::optional<Platform::VolumeCapacity> disk;
};

/// A line for each figure. What is not known is said to be unknown.
[[nodiscard]] std::string statusTable(const StatusReading& reading, const TextStyle& style);
/// The reading on one line that stands by itself, in a log for example.
[[nodiscard]] std::string statusLine(const StatusReading& reading, const TextStyle& style);

/// The state of the machine in one sentence's words: processors, memory, thermal state, uptime.
[[nodiscard]] std::string machineWords(const CleanerCore::SystemResourceSnapshot& snapshot, const TextStyle& style);

[[nodiscard]] std::expected<std::string, Platform::JSONError> statusJSON(const StatusReading& reading);
/// The names of the columns, and one row.
[[nodiscard]] std::string statusCSVHeader(CleanerCore::ReportExportPrivacyMode privacy);
[[nodiscard]] std::string statusCSVRow(const StatusReading& reading);

/// A line of a terminal that is written over with each reading, with the course of the last ones.
class StatusTrend {
public:
    explicit StatusTrend(SparkGlyphs glyphs)
        : m_glyphs(glyphs)
    {
    }

    /// At most `style.columns` wide: where there is not room for all, the disk gives way first, then the thermal state
    /// and the load.
    [[nodiscard]] std::string line(const StatusReading& reading, const TextStyle& style);

private:
    SparkGlyphs m_glyphs;
    std::vector<double> m_processors;
    std::vector<double> m_memory;
};

} // namespace KarvelloCLI
