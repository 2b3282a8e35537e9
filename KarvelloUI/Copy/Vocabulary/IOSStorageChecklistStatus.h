#pragma once

#include "Platform/Base/RawValue.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace KarvelloUI {

/// How far someone says to be with a step of the checklist.
enum class IOSStorageChecklistStatus : std::uint8_t {
    notStarted,
    reviewed,
    done,
};

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::IOSStorageChecklistStatus> {
    static constexpr std::array<std::string_view, 3> names{"notStarted", "reviewed", "done"};
};
