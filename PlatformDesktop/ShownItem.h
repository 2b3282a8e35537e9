#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileDescriptor.h"

#include <cstdint>

namespace PlatformDesktop {

enum class ShownItemKind : std::uint8_t { any, folder };

/// Holds an item for a portal that is to show it: nothing of it can be read by this, and no program is asked for it.
/// Nothing for what is not there or of another kind, and for a link, which is not followed.
[[nodiscard]] Platform::FileDescriptor holdShownItem(const Platform::FileURL& item, ShownItemKind kind);

} // namespace PlatformDesktop
