#include "KarvelloUI/Copy/KarvelloCopy.h"

#include "CleanerCore/Scan/ByteSizeFormatter.h"

#include <fmt/ranges.h>

namespace KarvelloUI {

std::string KarvelloCopy::byteSize(std::int64_t bytes) const
{
    return CleanerCore::ByteSizeFormatter::string(bytes, locale());
}

std::string KarvelloCopy::joinedParts(const std::vector<std::string>& parts)
{
    return fmt::format("{}", fmt::join(parts, " · "));
}

} // namespace KarvelloUI
