#pragma once

#include "Platform/Files/FileError.h"
#include "Platform/Files/FolderHandle.h"
#include "Platform/Files/Trash.h"

#include <expected>
#include <memory>

namespace Platform {

/// Opens the folder that holds `item`, for naming items in it: the root is opened and must be the folder that the anchor
/// describes, and from there no link is followed, no other volume entered and nothing above the root reached.
/// `operation` is what an error speaks of; its path is the item's.
[[nodiscard]] std::expected<std::shared_ptr<const FolderHandle>, FileError> openFolderOfItem(
    const FolderAnchor& root, const FileURL& item, FileOperation operation);

} // namespace Platform
