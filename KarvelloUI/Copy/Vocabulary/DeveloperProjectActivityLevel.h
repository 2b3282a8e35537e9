#pragma once

#include "Platform/Base/RawValue.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace KarvelloUI {

/// How long a project has been at rest; what comes first is shown first.
enum class DeveloperProjectActivityLevel : std::uint8_t {
    inactive,
    stale,
    recent,
    unknown,
};

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::DeveloperProjectActivityLevel> {
    static constexpr std::array<std::string_view, 4> names{"inactive", "stale", "recent", "unknown"};
};
