#pragma once

#include "Platform/Base/RawValue.h"

#include <cstdint>

namespace CleanerCore {

/// The kinds of file that results are exported to.
enum class ScanResultExportFormat : std::uint8_t { json, csv };

/// Which scan an export comes from.
enum class ScanResultExportSource : std::uint8_t { cleanup, macInsights };

} // namespace CleanerCore

template <>
struct Platform::RawValues<CleanerCore::ScanResultExportFormat> {
    static constexpr std::array<std::string_view, 2> names{"json", "csv"};
};

template <>
struct Platform::RawValues<CleanerCore::ScanResultExportSource> {
    static constexpr std::array<std::string_view, 2> names{"cleanup", "macInsights"};
};

namespace CleanerCore {

/// Without the point.
[[nodiscard]] constexpr std::string_view fileExtension(ScanResultExportFormat format)
{
    return Platform::rawValue(format);
}

} // namespace CleanerCore
