#pragma once

#include "KarvelloUI/Stores/IgnoredCleanupItem.h"

#include <string>
#include <vector>

namespace StoresTests {

using Paths = std::vector<std::string>;

[[nodiscard]] inline Paths pathsOf(const std::vector<KarvelloUI::IgnoredCleanupItem>& items)
{
    Paths paths;
    for (const auto& item : items) {
        paths.push_back(item.path);
    }
    return paths;
}

} // namespace StoresTests
