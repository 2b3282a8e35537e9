#include "CleanerCore/Safety/CleanupEligibilityPolicy.h"

#include "CleanerCore/Safety/NoTouchPathPolicy.h"
#include "CleanerCore/Safety/ScanRootSafety.h"

#include <algorithm>

namespace CleanerCore {

namespace {

using Root = CleanupEligibilityPolicy::Root;
using RootIdentity = CleanupEligibilityPolicy::RootIdentity;

/// Nothing for what is no folder, or does not tell both numbers.
std::optional<RootIdentity> directoryIdentity(const Platform::FileURL& folder, const Platform::FileManager& fileManager)
{
    if (!fileManager.directoryExists(folder)) {
        return std::nullopt;
    }
    const auto attributes = fileManager.attributes(folder);
    if (!attributes || attributes->type != Platform::FileType::directory || !attributes->systemNumber
        || !attributes->systemFileNumber) {
        return std::nullopt;
    }
    return RootIdentity{.systemNumber = *attributes->systemNumber, .fileNumber = *attributes->systemFileNumber};
}

bool isLive(const Root& root, const Platform::FileManager& fileManager)
{
    return directoryIdentity(Platform::FileURL::folder(root.path), fileManager) == root.identity;
}

} // namespace

CleanupEligibilityPolicy::CleanupEligibilityPolicy(std::span<const ScanLocation> allowedLocations,
    const Platform::FileManager& fileManager, std::int64_t maximumValidationDescendantItems,
    const std::optional<Platform::FileURL>& homeDirectory)
{
    const ScanRootSafety safety(homeDirectory, fileManager);
    for (const auto& location : allowedLocations) {
        if (!safety.isScanRootSafe(location.rootURL, fileManager) || location.rootURL.isRoot()) {
            continue;
        }
        const auto identity = directoryIdentity(location.rootURL, fileManager);
        if (!identity) {
            continue;
        }
        m_roots.push_back({
            .path = location.rootURL.path(),
            .identity = *identity,
            .validationOptions =
                {
                    .includesHiddenFiles = location.includesHiddenFiles,
                    .includesPackageDescendants = location.includesPackageDescendants,
                    .maximumDescendantItems = std::max<std::int64_t>(maximumValidationDescendantItems, 1),
                },
        });
    }
}

bool CleanupEligibilityPolicy::allows(const Platform::FileURL& url, const Platform::FileManager& fileManager) const
{
    return eligibleRoot(url, fileManager).has_value();
}

std::optional<Root> CleanupEligibilityPolicy::eligibleRoot(
    const Platform::FileURL& url, const Platform::FileManager& fileManager) const
{
    if (NoTouchPathPolicy::isNoTouchPath(url)) {
        return std::nullopt;
    }
    return mostSpecificLiveRoot(url.path(), fileManager);
}

std::set<std::string, std::less<>> CleanupEligibilityPolicy::allowedPaths(
    std::span<const Platform::FileURL> urls, const Platform::FileManager& fileManager) const
{
    std::set<std::string, std::less<>> allowed;
    if (urls.empty()) {
        return allowed;
    }
    std::vector<const Root*> liveRoots;
    for (const auto& root : m_roots) {
        if (isLive(root, fileManager)) {
            liveRoots.push_back(&root);
        }
    }
    for (const auto& url : urls) {
        const auto holds = [&](const Root* root) { return Platform::isPathInside(url.path(), root->path); };
        if (std::ranges::any_of(liveRoots, holds) && !NoTouchPathPolicy::isNoTouchPath(url)) {
            allowed.insert(url.path());
        }
    }
    return allowed;
}

std::optional<Root> CleanupEligibilityPolicy::mostSpecificLiveRoot(
    std::string_view path, const Platform::FileManager& fileManager) const
{
    std::vector<const Root*> roots;
    for (const auto& root : m_roots) {
        if (Platform::isPathInside(path, root.path)) {
            roots.push_back(&root);
        }
    }
    // All of them are beginnings of one path: counting bytes puts them into the order that counting characters does, and
    // two of the same length are the same.
    std::ranges::stable_sort(roots, std::ranges::greater(), [](const Root* root) { return root->path.size(); });
    const auto live = std::ranges::find_if(roots, [&](const Root* root) { return isLive(*root, fileManager); });
    return live == roots.end() ? std::nullopt : std::optional(**live);
}

} // namespace CleanerCore
