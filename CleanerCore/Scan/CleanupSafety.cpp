#include "CleanerCore/Scan/CleanupSafety.h"

namespace CleanerCore {

std::string_view displayName(CleanupSafety safety)
{
    constexpr std::array<std::string_view, 3> names{"Safe", "Caution", "Manual Review"};
    return names[static_cast<std::size_t>(safety)];
}

} // namespace CleanerCore
