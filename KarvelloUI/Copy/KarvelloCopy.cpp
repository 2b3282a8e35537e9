#include "KarvelloUI/Copy/KarvelloCopy.h"

#include "CleanerCore/Scan/ByteSizeFormatter.h"

namespace KarvelloUI {

std::string KarvelloCopy::byteSize(std::int64_t bytes) const
{
    return CleanerCore::ByteSizeFormatter::string(bytes, locale());
}

} // namespace KarvelloUI
