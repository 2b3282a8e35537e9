#include "KarvelloUI/Copy/KarvelloCopy.h"

#include "CleanerCore/Scan/ByteSizeFormatter.h"

#include <cmath>

namespace KarvelloUI {

std::string KarvelloCopy::byteSize(std::int64_t bytes) const
{
    return CleanerCore::ByteSizeFormatter::string(bytes, locale());
}

std::string KarvelloCopy::percent(double fraction)
{
    return fmt::format("{}%", std::lround(fraction * 100));
}

} // namespace KarvelloUI
