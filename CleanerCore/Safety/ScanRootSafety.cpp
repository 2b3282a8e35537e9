#include "CleanerCore/Safety/ScanRootSafety.h"

#include "CleanerCore/Safety/DefaultProtectedPaths.h"
#include "CleanerCore/Safety/RealUserHome.h"
#include "CleanerCore/Safety/SymbolicLinkComponents.h"

#include <algorithm>

namespace CleanerCore {

namespace {

std::vector<UsersFolder> usersFolders(const Platform::FileManager& fileManager)
{
    std::vector<UsersFolder> folders{{"/Users", "/Users/Shared"}, {"/home", std::nullopt}};
    // Where "/home" is a link, no resolved root ever lies in it.
    if (auto resolved = resolvedPath(Platform::FileURL::folder("/home"), fileManager); resolved != "/home") {
        folders.push_back({std::move(resolved), std::nullopt});
    }
    return folders;
}

} // namespace

bool isUnsafeUsersRoot(
    std::string_view rootKey, std::string_view homeKey, const UsersFolder& users, NameComparison comparison)
{
    const auto usersKey = comparisonForm(users.path, comparison);
    const auto isShared = [&](std::string_view key) {
        return users.sharedPath && equalsOrIsInside(key, comparisonForm(*users.sharedPath, comparison));
    };
    if (rootKey == usersKey) {
        return true;
    }
    if (!Platform::isPathInside(rootKey, usersKey)) {
        return false;
    }
    if (isShared(rootKey)) {
        return true;
    }
    if (!Platform::isPathInside(homeKey, usersKey) || isShared(homeKey)) {
        return true;
    }
    // The home itself is refused by a rule of its own.
    return !equalsOrIsInside(rootKey, homeKey);
}

ScanRootSafety::ScanRootSafety(
    const std::optional<Platform::FileURL>& homeDirectory, const Platform::FileManager& fileManager)
    : m_homePath(resolvedPath(homeDirectory ? *homeDirectory : cleanerCoreRealUserHomeDirectory(), fileManager))
    , m_protectedPaths(defaultProtectedPaths(m_homePath, fileManager))
    , m_sharedFolders(protectedSharedFolders(fileManager))
    , m_usersFolders(usersFolders(fileManager))
{
}

bool ScanRootSafety::isScanRootSafe(
    const Platform::FileURL& url, const Platform::FileManager& fileManager, NoTouchScope scope) const
{
    if (!fileManager.directoryExists(url) || NoTouchPathPolicy::isNoTouchPath(url, scope)) {
        return false;
    }
    const auto resolved = fileManager.resolvingSymbolicLinks(url);
    const auto comparison = nameComparison(Platform::FileURL::folder(resolved.path()), fileManager);
    const auto rootKey = comparisonForm(resolved.path(), comparison);
    const auto homeKey = comparisonForm(m_homePath, comparison);
    if (rootKey == "/" || rootKey == homeKey) {
        return false;
    }
    const auto isAmongOtherHomes = [&](const UsersFolder& users) {
        return isUnsafeUsersRoot(rootKey, homeKey, users, comparison);
    };
    if (std::any_of(m_usersFolders.begin(), m_usersFolders.end(), isAmongOtherHomes)) {
        return false;
    }
    const auto isInProtectedPath = [&](const std::string& path) {
        return equalsOrIsInside(rootKey, comparisonForm(path, comparison));
    };
    const auto holdsProtectedPath = [&](const std::string& path) {
        return equalsOrIsInside(comparisonForm(path, comparison), rootKey);
    };
    if (std::any_of(m_protectedPaths.begin(), m_protectedPaths.end(), isInProtectedPath)
        || std::any_of(m_protectedPaths.begin(), m_protectedPaths.end(), holdsProtectedPath)
        || std::any_of(m_sharedFolders.begin(), m_sharedFolders.end(), holdsProtectedPath)) {
        return false;
    }
    if (isSymbolicLink(url, fileManager).value_or(true)) {
        return false;
    }
    return rejectSymbolicLinkComponents(url, std::nullopt, fileManager, comparison).has_value();
}

} // namespace CleanerCore
