#pragma once

#include "Platform/Base/FileURL.h"

namespace Platform {

/// The contract of `FileManager::createDirectory`; gives the system's number, 0 for success.
[[nodiscard]] int makeFolders(const FileURL& folder);

} // namespace Platform
