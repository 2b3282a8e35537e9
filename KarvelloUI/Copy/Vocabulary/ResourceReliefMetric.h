#pragma once

#include <cstdint>

namespace KarvelloUI {

/// What the running applications are listed by.
enum class ResourceReliefMetric : std::uint8_t {
    cpu,
    memory,
};

} // namespace KarvelloUI
