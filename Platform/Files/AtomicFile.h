#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileError.h"

#include <expected>
#include <string_view>

namespace Platform {

/// The contract of `FileManager::writeAtomically`.
[[nodiscard]] std::expected<void, FileError> replaceFile(const FileURL& url, std::string_view bytes);

} // namespace Platform
