#include "KarvelloUI/Copy/CopyWording.h"

#include "CleanerCore/Scan/ByteSizeFormatter.h"

#include <fmt/ranges.h>

namespace KarvelloUI {

std::string CopyWording::byteSize(std::int64_t bytes) const
{
    return CleanerCore::ByteSizeFormatter::string(bytes, locale());
}

std::string CopyWording::joinedParts(const std::vector<std::string>& parts)
{
    return fmt::format("{}", fmt::join(parts, " · "));
}

} // namespace KarvelloUI
