#include "Platform/Files/PackageNames.h"

#include <algorithm>

namespace Platform {

namespace {

constexpr bool equalsIgnoringASCIICase(std::string_view text, std::string_view lowercase)
{
    return std::ranges::equal(text, lowercase,
        [](char left, char right) { return (left >= 'A' && left <= 'Z' ? left - 'A' + 'a' : left) == right; });
}

} // namespace

bool isPackageName(std::string_view folderName)
{
    const auto point = folderName.rfind('.');
    if (point == std::string_view::npos || point == 0) {
        return false;
    }
    const auto extension = folderName.substr(point + 1);
    return std::ranges::any_of(
        kPackageExtensions, [&](std::string_view known) { return equalsIgnoringASCIICase(extension, known); });
}

} // namespace Platform
