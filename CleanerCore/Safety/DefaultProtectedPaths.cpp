#include "CleanerCore/Safety/DefaultProtectedPaths.h"

#include "CleanerCore/Safety/ComparisonForm.h"
#include "Platform/Base/Text.h"

#include <algorithm>
#include <array>
#include <set>
#include <span>
#include <utility>

namespace CleanerCore {

namespace {

constexpr std::array<std::string_view, 17> kSystemPaths{"/", "/System", "/Library", "/Applications", "/bin", "/sbin",
    "/usr", "/etc", "/dev", "/Volumes", "/Users/Shared", "/private/etc", "/private/tmp", "/private/var/db",
    "/private/var/root", "/private/var/vm", "/private/var/log"};

// The rest of the Filesystem Hierarchy Standard 3.0 that holds no homes, and what Nix and snapd add to it.
constexpr std::array<std::string_view, 19> kLinuxPaths{"/boot", "/opt", "/srv", "/lib", "/lib32", "/lib64", "/libx32",
    "/proc", "/sys", "/run", "/snap", "/nix", "/var/lib", "/var/log", "/var/cache", "/var/spool", "/var/mail", "/mnt",
    "/media"};

constexpr std::string_view kHomeOfRoot = "/root";

constexpr std::array<std::string_view, 2> kSharedFolders{"/tmp", "/var/tmp"};

void insertWithResolvedForm(
    std::set<std::string>& paths, std::span<const std::string_view> literals, const Platform::FileManager& fileManager)
{
    for (const auto literal : literals) {
        paths.emplace(literal);
        paths.insert(resolvedPath(Platform::FileURL::folder(literal), fileManager));
    }
}

std::vector<std::string> longestFirst(const std::set<std::string>& paths)
{
    std::vector<std::pair<std::size_t, std::string>> measured;
    measured.reserve(paths.size());
    for (const auto& path : paths) {
        measured.emplace_back(Platform::Text::scalars(path).size(), path);
    }
    std::stable_sort(
        measured.begin(), measured.end(), [](const auto& left, const auto& right) { return left.first > right.first; });
    std::vector<std::string> sorted;
    sorted.reserve(measured.size());
    for (auto& [length, path] : measured) {
        sorted.push_back(std::move(path));
    }
    return sorted;
}

} // namespace

std::vector<std::string> defaultProtectedPaths(std::string_view homePath, const Platform::FileManager& fileManager)
{
    std::set<std::string> paths;
    insertWithResolvedForm(paths, kSystemPaths, fileManager);
    insertWithResolvedForm(paths, kLinuxPaths, fileManager);
    const auto resolvedHomeOfRoot = resolvedPath(Platform::FileURL::folder(kHomeOfRoot), fileManager);
    if (!equalsOrIsInside(homePath, kHomeOfRoot) && !equalsOrIsInside(homePath, resolvedHomeOfRoot)) {
        insertWithResolvedForm(paths, std::span(&kHomeOfRoot, 1), fileManager);
    }
    return longestFirst(paths);
}

std::vector<std::string> protectedSharedFolders(const Platform::FileManager& fileManager)
{
    std::set<std::string> paths;
    insertWithResolvedForm(paths, kSharedFolders, fileManager);
    return longestFirst(paths);
}

} // namespace CleanerCore
