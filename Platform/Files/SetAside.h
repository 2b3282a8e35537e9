#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileError.h"
#include "Platform/Files/FileManager.h"

#include <expected>
#include <string_view>

namespace Platform {

/// Keeps a damaged file of the application's own, or whatever stands in its place, in the same folder under
/// "<name>.<reason>-<seconds since 1970>-<UUID>", which is the answer.
[[nodiscard]] std::expected<FileURL, FileError> setAside(
    const FileManager& fileManager, const FileURL& file, std::string_view reason);

} // namespace Platform
