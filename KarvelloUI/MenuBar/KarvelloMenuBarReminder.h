#pragma once

#include "Platform/Base/RawValue.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace KarvelloUI {

/// Something about the machine that the user should look at. There is at most one of each kind.
struct KarvelloMenuBarReminder {
    enum class Kind : std::uint8_t { lowDiskSpace, highMemoryPressure, thermalPressure };
    /// In rising order.
    enum class Severity : std::uint8_t { notice = 0, warning = 1, critical = 2 };

    Kind kind = Kind::lowDiskSpace;
    Severity severity = Severity::notice;

    friend bool operator==(const KarvelloMenuBarReminder&, const KarvelloMenuBarReminder&) = default;
};

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::KarvelloMenuBarReminder::Kind> {
    static constexpr std::array<std::string_view, 3> names{"lowDiskSpace", "highMemoryPressure", "thermalPressure"};
};
