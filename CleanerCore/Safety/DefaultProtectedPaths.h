#pragma once

#include "Platform/Files/FileManager.h"

#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore {

/// The system's own paths: no scan root may be one, lie in one or hold one, and nothing in them is ever cleaned. Each
/// literal also stands with its symbolic links resolved, no path twice, the longest first (in characters).
///
/// "/root" is left out where `homePath`, a resolved path, is it or lies in it: it is then the person's own.
[[nodiscard]] std::vector<std::string> defaultProtectedPaths(
    std::string_view homePath, const Platform::FileManager& fileManager);

/// The folders that are protected themselves while what lies in them is not: nobody owns the folder of temporary items,
/// but a person may well have a folder in it. The same form and order.
[[nodiscard]] std::vector<std::string> protectedSharedFolders(const Platform::FileManager& fileManager);

} // namespace CleanerCore
