#pragma once

#include "Platform/Base/RawValue.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace KarvelloUI {

/// The screens of the dashboard, in the order of the sidebar.
enum class MacDashboardSection : std::uint8_t {
    dashboard,
    cleanup,
    reviewEvidence,
    heatmap,
    largeFiles,
    downloads,
    duplicates,
    security,
    system,
    cpuAnalysis,
    memoryAnalysis,
    /// Not in the sidebar: other screens lead to it.
    iosGuide,
    settings,
};

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::MacDashboardSection> {
    static constexpr std::array<std::string_view, 13> names{"dashboard", "cleanup", "reviewEvidence", "heatmap",
        "largeFiles", "downloads", "duplicates", "security", "system", "cpuAnalysis", "memoryAnalysis", "iosGuide",
        "settings"};
};
