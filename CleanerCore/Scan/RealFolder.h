#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

namespace CleanerCore {

/// Whether the item is a folder and known to be no symbolic link.
[[nodiscard]] bool isRealFolder(const Platform::FileURL& url, const Platform::FileManager& fileManager);

/// Whether the item is a real folder that may be touched and lies in the home, or is it; and whether that still holds
/// when the links on the way to it are resolved.
[[nodiscard]] bool isRealFolderInHome(
    const Platform::FileURL& url, const Platform::FileURL& homeDirectory, const Platform::FileManager& fileManager);

} // namespace CleanerCore
