#pragma once

#include "Platform/Base/FileURL.h"

namespace Platform {

/// The home folder of the user who runs this process: `$HOME` where it is an absolute path, else the one of the user
/// database.
[[nodiscard]] FileURL homeDirectoryForCurrentUser();

} // namespace Platform
