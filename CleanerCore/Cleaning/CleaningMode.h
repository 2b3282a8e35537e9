#pragma once

#include "Platform/Base/RawValue.h"

#include <cstdint>

namespace CleanerCore {

enum class CleaningMode : std::uint8_t { moveToTrash, deletePermanently };

} // namespace CleanerCore

template <>
struct Platform::RawValues<CleanerCore::CleaningMode> {
    static constexpr std::array<std::string_view, 2> names{"moveToTrash", "deletePermanently"};
};
