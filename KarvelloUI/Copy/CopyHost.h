#pragma once

#include <cstdint>

namespace KarvelloUI {

/// Whose words the catalogue takes for the things of the machine: its file manager, its settings, its folders.
enum class CopyHost : std::uint8_t { mac, linuxDesktop };

} // namespace KarvelloUI
