#pragma once

#include "Platform/Base/RawValue.h"

#include <cstdint>

namespace KarvelloUI {

/// How long a candidate stays out of the list.
enum class CleanupIgnoreDuration : std::uint8_t { oneDay, oneWeek, untilShownAgain };

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::CleanupIgnoreDuration> {
    static constexpr std::array<std::string_view, 3> names{"oneDay", "oneWeek", "untilShownAgain"};
};
