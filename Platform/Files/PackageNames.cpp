#include "Platform/Files/PackageNames.h"

#include "Platform/Base/ASCII.h"

#include <algorithm>

namespace Platform {

bool isPackageName(std::string_view folderName)
{
    const auto point = folderName.rfind('.');
    if (point == std::string_view::npos || point == 0) {
        return false;
    }
    const auto extension = folderName.substr(point + 1);
    return std::ranges::any_of(
        kPackageExtensions, [&](std::string_view known) { return ASCII::equalsIgnoringCase(extension, known); });
}

} // namespace Platform
