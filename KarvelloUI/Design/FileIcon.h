#pragma once

#include <string_view>

namespace KarvelloUI {

/// The drawing that stands for a file, by the extension of its name, whatever its case; the name is bytes of the file system.
[[nodiscard]] std::string_view fileIconName(std::string_view fileName);

} // namespace KarvelloUI
