#pragma once

#include "Platform/Base/RawValue.h"

#include <cstdint>

namespace KarvelloUI {

/// Where the reminders of the next review stand.
enum class CleanupReviewCadenceStatusKind : std::uint8_t { disabled, notStarted, due, upcoming };

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::CleanupReviewCadenceStatusKind> {
    static constexpr std::array<std::string_view, 4> names{"disabled", "notStarted", "due", "upcoming"};
};
