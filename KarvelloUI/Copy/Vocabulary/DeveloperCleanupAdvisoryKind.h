#pragma once

#include "Platform/Base/RawValue.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace KarvelloUI {

/// What the guidance for a developer's candidates is about.
enum class DeveloperCleanupAdvisoryKind : std::uint8_t {
    xcodeDerivedData,
    simulatorCaches,
    simulatorDeviceCaches,
    xcodeDeviceSupport,
};

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::DeveloperCleanupAdvisoryKind> {
    static constexpr std::array<std::string_view, 4> names{
        "xcodeDerivedData", "simulatorCaches", "simulatorDeviceCaches", "xcodeDeviceSupport"};
};
