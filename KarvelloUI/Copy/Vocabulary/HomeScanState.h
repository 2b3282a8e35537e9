#pragma once

#include <cstdint>

namespace KarvelloUI {

/// What the home screen knows of a cleanup scan.
enum class HomeScanState : std::uint8_t {
    /// The home folder cannot be read yet.
    needsAccess,
    /// Nothing stands in the way of the first scan.
    ready,
    /// There is a result.
    scanned,
};

} // namespace KarvelloUI
