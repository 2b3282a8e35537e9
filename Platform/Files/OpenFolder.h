#pragma once

#include "Platform/Files/FileDescriptor.h"

#include <expected>

namespace Platform {

/// Opens the folder at an absolute path for listing. A symbolic link at its end is refused, one on the way is followed.
/// The error is the system's number.
[[nodiscard]] std::expected<FileDescriptor, int> openFolder(const char* path);

/// Opens the entry `name` of an open folder for listing. A symbolic link is refused, and so is another volume (EXDEV).
[[nodiscard]] std::expected<FileDescriptor, int> openFolderIn(int folderDescriptor, const char* name);

/// Opens the parent of an open folder, for looking up names in it.
[[nodiscard]] std::expected<FileDescriptor, int> openParentFolder(int folderDescriptor);

} // namespace Platform
