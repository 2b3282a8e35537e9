#include "Platform/Files/PackageNames.h"

#include "Platform/Base/ASCII.h"

#include <algorithm>
#include <array>

namespace Platform {

namespace {

constexpr std::array<std::string_view, 9> kPackageExtensions{
    "app", "appex", "bundle", "framework", "kext", "plugin", "photoslibrary", "musiclibrary", "tvlibrary"};

} // namespace

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
