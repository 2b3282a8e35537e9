#pragma once

#include "CleanerCore/Scan/AppCacheContext.h"

#include <cstdint>
#include <optional>
#include <string>

namespace KarvelloCLI {

enum class OwnerName : std::uint8_t { shown, hidden };

/// That the application which owns an item runs; empty if it does not, or if nobody knows. The name is as the
/// application gives it.
[[nodiscard]] std::string ownerNote(const std::optional<CleanerCore::AppCacheContext>& context, OwnerName name);

} // namespace KarvelloCLI
