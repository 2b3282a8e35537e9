#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileError.h"
#include "Platform/Files/ReadableFile.h"

#include <expected>
#include <memory>

namespace Platform {

/// Opens what stands at the path, if it is a regular file; a link at its end is not followed. Nothing else is ever
/// opened for reading, whatever takes the file's place meanwhile: opening a FIFO or a device would already do something.
/// Its access time stays where the system allows that, and what had to be read from the disk leaves the system's cache
/// again, so that reading gigabytes does not cost others theirs.
[[nodiscard]] std::expected<std::unique_ptr<ReadableFile>, FileError> openRegularFile(
    const FileURL& url, ReadingPlan plan);

} // namespace Platform
