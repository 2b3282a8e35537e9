#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Services/Environment.h"

namespace Platform {

/// The base folder for what programs keep for their user (XDG Base Directory Specification): `$XDG_DATA_HOME` where it
/// is an absolute path, else ".local/share" in the home folder, which `$HOME` tells, or the user database.
[[nodiscard]] FileURL dataDirectoryForCurrentUser(const Environment& environment);

} // namespace Platform
