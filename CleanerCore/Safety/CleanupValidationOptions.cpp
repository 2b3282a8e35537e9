#include "CleanerCore/Safety/CleanupValidationOptions.h"

#include <string_view>

namespace CleanerCore {

namespace {

/// Asks for each folder on the way to the path, so the cost does not grow with the set.
bool liesInAny(std::string_view path, const std::set<std::string, std::less<>>& folders)
{
    if (folders.empty()) {
        return false;
    }
    for (auto slash = path.find('/', 1); slash != std::string_view::npos; slash = path.find('/', slash + 1)) {
        if (folders.contains(path.substr(0, slash))) {
            return true;
        }
    }
    return false;
}

/// What counts is only what comes below the root, where the path lies in it.
bool containsHiddenPathComponent(std::string_view path, std::string_view root)
{
    if (Platform::isPathInside(path, root)) {
        path.remove_prefix(root.size());
    }
    return path.find("/.") != std::string_view::npos;
}

} // namespace

bool CleanupValidationOptions::includesInFreshness(const Platform::FileURL& itemURL, const Platform::FileURL& rootURL,
    bool isPackage, std::set<std::string, std::less<>>& excludedPackageRootPaths) const
{
    const auto& path = itemURL.path();
    const bool isIncluded = !liesInAny(path, excludedPackageRootPaths)
        && (includesHiddenFiles || !containsHiddenPathComponent(path, rootURL.path()));
    if (isPackage && !includesPackageDescendants) {
        excludedPackageRootPaths.insert(path);
    }
    return isIncluded;
}

} // namespace CleanerCore
