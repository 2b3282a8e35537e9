#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Files/Trash.h"

#include <optional>
#include <vector>

namespace CleanerCore {

/// The Trash folders of the system that an item from `original` may lie in: that of its volume, the user's main one,
/// and that of iCloud Drive below the home if it exists; no folder twice.
[[nodiscard]] std::vector<Platform::FileURL> platformTrashRootURLs(const Platform::FileURL& original,
    const Platform::Trash& trash, const Platform::FileManager& fileManager,
    const std::optional<Platform::FileURL>& homeDirectory);

/// The folders that an item may be restored from: `allowedTrashRootURLs` where given, else those of the system. The
/// folder that was recorded with the item has no say: a record could only widen the list, and none may.
[[nodiscard]] std::vector<Platform::FileURL> restoreSourceRootURLs(const Platform::FileURL& original,
    const std::optional<std::vector<Platform::FileURL>>& allowedTrashRootURLs, const Platform::Trash& trash,
    const Platform::FileManager& fileManager, const std::optional<Platform::FileURL>& homeDirectory);

} // namespace CleanerCore
