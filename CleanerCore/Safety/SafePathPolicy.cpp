#include "CleanerCore/Safety/SafePathPolicy.h"

#include "CleanerCore/Safety/ComparisonForm.h"
#include "CleanerCore/Safety/SymbolicLinkComponents.h"

#include <algorithm>

namespace CleanerCore {

namespace {

using Kind = CleaningError::Kind;
using PathVerdict = std::expected<void, CleaningError>;

NameComparison comparisonOf(bool isCaseInsensitive)
{
    return isCaseInsensitive ? NameComparison::caseInsensitive : NameComparison::caseSensitive;
}

std::vector<std::string> comparisonForms(const std::vector<std::string>& paths, NameComparison comparison)
{
    std::vector<std::string> keys;
    keys.reserve(paths.size());
    for (const auto& path : paths) {
        keys.push_back(comparisonForm(path, comparison));
    }
    return keys;
}

/// No link stands in the root's own path, and none between the root and `url`.
PathVerdict rejectLinksBelow(
    const SafePathPolicy::AllowedRoot& root, const Platform::FileURL& url, const Platform::FileManager& fileManager)
{
    const auto comparison = comparisonOf(root.usesCaseInsensitivePathComparison);
    const auto rootURL = Platform::FileURL::folder(root.rawPath);
    if (auto verdict = rejectSymbolicLinkComponents(rootURL, std::nullopt, fileManager, comparison); !verdict) {
        return verdict;
    }
    return rejectSymbolicLinkComponents(url, root.rawPath, fileManager, comparison);
}

} // namespace

SafePathPolicy::SafePathPolicy(std::span<const Platform::FileURL> allowedRootURLs,
    const std::optional<Platform::FileURL>& homeDirectory, const Platform::FileManager& fileManager, NoTouchScope scope)
    : SafePathPolicy(allowedRootURLs, ScanRootSafety(homeDirectory, fileManager), fileManager, scope)
{
}

SafePathPolicy::SafePathPolicy(std::span<const Platform::FileURL> allowedRootURLs, const ScanRootSafety& safety,
    const Platform::FileManager& fileManager, NoTouchScope scope)
    : m_scope(scope)
{
    const auto comparison = nameComparison(Platform::FileURL::folder(safety.homePath()), fileManager);
    m_usesCaseInsensitivePathComparison = comparison == NameComparison::caseInsensitive;
    m_homePathKey = comparisonForm(safety.homePath(), comparison);
    m_protectedPathKeys = comparisonForms(safety.protectedPaths(), comparison);
    m_sharedFolderKeys = comparisonForms(safety.sharedFolders(), comparison);

    for (const auto& url : allowedRootURLs) {
        if (!safety.isScanRootSafe(url, fileManager, scope)) {
            continue;
        }
        const auto resolved = resolvedPath(url, fileManager);
        const auto rootComparison = nameComparison(Platform::FileURL::folder(resolved), fileManager);
        m_allowedRoots.push_back(
            {url.path(), comparisonForm(resolved, rootComparison), rootComparison == NameComparison::caseInsensitive});
    }
}

std::string SafePathPolicy::homeKey(std::string_view path) const
{
    return comparisonForm(path, comparisonOf(m_usesCaseInsensitivePathComparison));
}

bool SafePathPolicy::isProtected(std::string_view key) const
{
    return std::any_of(m_protectedPathKeys.begin(), m_protectedPathKeys.end(), [&](const std::string& path) {
        return equalsOrIsInside(key, path);
    }) || std::find(m_sharedFolderKeys.begin(), m_sharedFolderKeys.end(), key) != m_sharedFolderKeys.end();
}

const SafePathPolicy::AllowedRoot* SafePathPolicy::allowedRoot(std::string_view resolvedPath) const
{
    // A root is no item of itself: only what lies in it can be cleaned.
    const auto holds = [&](const AllowedRoot& root) {
        const auto comparison = comparisonOf(root.usesCaseInsensitivePathComparison);
        return Platform::isPathInside(comparisonForm(resolvedPath, comparison), root.resolvedPathKey);
    };
    const auto found = std::find_if(m_allowedRoots.begin(), m_allowedRoots.end(), holds);
    return found == m_allowedRoots.end() ? nullptr : &*found;
}

PathVerdict SafePathPolicy::validate(const Platform::FileURL& url, const Platform::FileManager& fileManager) const
{
    const auto resolved = resolvedPath(url, fileManager);
    const auto key = homeKey(resolved);
    if (key == m_homePathKey) {
        return std::unexpected(CleaningError{Kind::criticalPath, resolved});
    }
    if (NoTouchPathPolicy::isNoTouchPath(url, m_scope)) {
        return std::unexpected(CleaningError{Kind::protectedUserData, resolved});
    }
    if (isProtected(key)) {
        return std::unexpected(CleaningError{Kind::criticalPath, resolved});
    }
    const auto* const root = allowedRoot(resolved);
    if (root == nullptr) {
        return std::unexpected(CleaningError{Kind::pathNotAllowed, resolved});
    }
    return rejectLinksBelow(*root, url, fileManager);
}

PathVerdict SafePathPolicy::validateRestoreDestination(
    const Platform::FileURL& url, const Platform::FileManager& fileManager) const
{
    const auto resolved = resolvedPath(url, fileManager);
    const auto key = homeKey(resolved);
    if (key == m_homePathKey || isProtected(key)) {
        return std::unexpected(CleaningError{Kind::criticalPath, resolved});
    }
    // There is no test for user data: the place held the item when it was scanned.
    const auto* const root = allowedRoot(resolved);
    if (root == nullptr) {
        return std::unexpected(CleaningError{Kind::pathNotAllowed, resolved});
    }
    const auto parent = url.deletingLastPathComponent();
    if (!fileManager.directoryExists(parent)) {
        return std::unexpected(CleaningError{Kind::unreadableAttributes, parent.path()});
    }
    return rejectLinksBelow(*root, parent, fileManager);
}

PathVerdict SafePathPolicy::validateScanRoot(const Platform::FileURL& url,
    const std::optional<Platform::FileURL>& homeDirectory, const Platform::FileManager& fileManager)
{
    if (!ScanRootSafety(homeDirectory, fileManager).isScanRootSafe(url, fileManager)) {
        return std::unexpected(CleaningError{Kind::pathNotAllowed, resolvedPath(url, fileManager)});
    }
    return {};
}

} // namespace CleanerCore
