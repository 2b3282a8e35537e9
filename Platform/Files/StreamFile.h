#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileDescriptor.h"
#include "Platform/Files/FileError.h"

#include <expected>

namespace Platform {

/// Opens a character device or a named pipe for writing, for output that is sent and not kept; a pipe without a reader
/// is waited for. Makes no file and changes none: anything else at the path is an error.
[[nodiscard]] std::expected<FileDescriptor, FileError> openStreamForWriting(const FileURL& url);

} // namespace Platform
