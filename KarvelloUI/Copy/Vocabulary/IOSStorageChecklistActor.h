#pragma once

#include "Platform/Base/RawValue.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace KarvelloUI {

/// Who does a step of the checklist.
enum class IOSStorageChecklistActor : std::uint8_t {
    appleSettings,
    appleApp,
    karvelloSandbox,
};

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::IOSStorageChecklistActor> {
    static constexpr std::array<std::string_view, 3> names{"appleSettings", "appleApp", "karvelloSandbox"};
};
