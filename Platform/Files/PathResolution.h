#pragma once

#include "Platform/Base/FileURL.h"

namespace Platform {

/// The contract of `FileManager::resolvingSymbolicLinks`.
[[nodiscard]] FileURL resolvePath(const FileURL& url);

} // namespace Platform
