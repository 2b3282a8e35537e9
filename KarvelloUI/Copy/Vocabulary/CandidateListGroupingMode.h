#pragma once

#include "Platform/Base/RawValue.h"

#include <cstdint>

namespace KarvelloUI {

/// How the list of candidates is divided into sections.
enum class CandidateListGroupingMode : std::uint8_t { flat, category, safety };

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::CandidateListGroupingMode> {
    static constexpr std::array<std::string_view, 3> names{"flat", "category", "safety"};
};
