#pragma once

#include "Platform/Base/RawValue.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace KarvelloUI {

/// The lists of an insight scan that hold files.
enum class MacInsightFileSection : std::uint8_t {
    largeFiles,
    downloads,
    duplicates,
    security,
};

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::MacInsightFileSection> {
    static constexpr std::array<std::string_view, 4> names{"largeFiles", "downloads", "duplicates", "security"};
};
