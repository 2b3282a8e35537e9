#pragma once

#include "Platform/Files/ResourceValues.h"

#include <algorithm>
#include <cstdint>

namespace CleanerCore {

/// What an item occupies, or holds where that is not told; 0 where neither is, and never below.
[[nodiscard]] inline std::int64_t allocatedSizeOf(const Platform::ResourceValues& values)
{
    const auto size =
        values.totalFileAllocatedSize.value_or(values.fileAllocatedSize.value_or(values.fileSize.value_or(0)));
    return std::max<std::int64_t>(size, 0);
}

} // namespace CleanerCore
