#pragma once

#include "Platform/Base/FileURL.h"

#include <optional>
#include <string_view>

namespace CleanerCore {

/// The person's home, which a process in a sandbox of macOS does not see: its own home lies in the person's.
[[nodiscard]] Platform::FileURL cleanerCoreRealUserHomeDirectory();

/// "/Users/NAME" of a path that begins so; nothing for any other path.
[[nodiscard]] std::optional<Platform::FileURL> cleanerCoreExtractRealUserHome(std::string_view sandboxPath);

} // namespace CleanerCore
