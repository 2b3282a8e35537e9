#pragma once

#include <optional>
#include <string>

namespace Platform {

/// The identifier that the system gives the volume of an open item; nothing where it gives none.
[[nodiscard]] std::optional<std::string> volumeIdentifier(int descriptor);

/// Whether names in the open folder are told apart by case. Only what is known to do so counts.
[[nodiscard]] bool tellsNamesApartByCase(int folderDescriptor);

} // namespace Platform
