#pragma once

#include "Platform/Base/RawValue.h"

#include <cstdint>

namespace KarvelloUI {

/// The built-in choices of what to review.
enum class CleanupReviewProfileID : std::uint8_t { balanced, downloads, developerCaches };

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::CleanupReviewProfileID> {
    static constexpr std::array<std::string_view, 3> names{"balanced", "downloads", "developerCaches"};
};
