#pragma once

#include <array>
#include <string_view>

namespace Platform {

/// The extensions of bundles, lower-case.
inline constexpr std::array<std::string_view, 9> kPackageExtensions{
    "app", "appex", "bundle", "framework", "kext", "plugin", "photoslibrary", "musiclibrary", "tvlibrary"};

/// Whether a folder of this name is a package: one item to its user, for it has the extension of a bundle (".app",
/// ".framework", ".photoslibrary" and the like, in any case).
[[nodiscard]] bool isPackageName(std::string_view folderName);

/// Whether an item of this name is hidden: it begins with a point.
[[nodiscard]] constexpr bool isHiddenName(std::string_view name)
{
    return name.starts_with('.');
}

} // namespace Platform
