#include "Platform/Files/PackageNames.h"

#include "Platform/Base/ASCII.h"
#include "Platform/Base/FileURL.h"

#include <algorithm>

namespace Platform {

bool isPackageName(std::string_view folderName)
{
    const auto extension = pathExtensionOf(folderName);
    return std::ranges::any_of(
        kPackageExtensions, [&](std::string_view known) { return ASCII::equalsIgnoringCase(extension, known); });
}

} // namespace Platform
