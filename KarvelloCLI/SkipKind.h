#pragma once

#include <cstdint>
#include <string_view>

namespace KarvelloCLI {

/// What a skipped item says of the scan as a whole.
enum class SkipKind : std::uint8_t {
    /// The item is left out by rule: protected, in use, too young, too large to judge, empty.
    protection,
    /// A folder that may not be scanned, or is none. Of weight only where the user named it.
    refusal,
    /// Something could not be read.
    failure,
};

[[nodiscard]] SkipKind skipKind(std::string_view reason);

} // namespace KarvelloCLI
