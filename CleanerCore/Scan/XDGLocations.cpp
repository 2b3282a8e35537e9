#include "CleanerCore/Scan/XDGLocations.h"

#include "CleanerCore/Safety/ComparisonForm.h"
#include "CleanerCore/Scan/ContainerCacheLocations.h"
#include "CleanerCore/Scan/DirectLocations.h"
#include "CleanerCore/Scan/LocationAges.h"
#include "CleanerCore/Scan/MacLocations.h"
#include "CleanerCore/Scan/RealFolder.h"

#include <algorithm>
#include <utility>

namespace CleanerCore {

namespace {

using Platform::DirectoryHint;
using Platform::FileURL;

CleanupSafety safety(XDGLevel level)
{
    switch (level) {
    case XDGLevel::safe:
        return CleanupSafety::safe;
    case XDGLevel::caution:
        return CleanupSafety::caution;
    case XDGLevel::manualReview:
        return CleanupSafety::manualReview;
    }
    return CleanupSafety::manualReview;
}

ScanLocation makeLocation(const XDGLocationRow& row, const FileURL& url, std::string displayName)
{
    const bool isSafe = row.level == XDGLevel::safe;
    return ScanLocation({
        .rootURL = url,
        .category = row.category,
        .displayName = std::move(displayName),
        .depth = ScanDepth::immediateChildren,
        .isSelectedByDefault = isSafe && !requiresManualReviewByDefault(row.category),
        .safety = safety(row.level),
        // An aggressive scan asks for no age, of what needs care no more than of what is safe.
        .minimumModificationAge = row.level == XDGLevel::caution ? kNoAge : kOneDay,
        .includesHiddenFiles = !isSafe || row.hiddenItems == HiddenItems::included,
        .includesPackageDescendants = !isSafe,
        .appCacheContext = std::nullopt,
    });
}

/// Calls `visit` with each alternative and whether there are others.
template <typename Visitor>
void forEachAlternative(std::string_view component, Visitor visit)
{
    const bool isOneOfSeveral = component.find('|') != std::string_view::npos;
    for (;;) {
        const auto end = component.find('|');
        visit(component.substr(0, end), isOneOfSeveral);
        if (end == std::string_view::npos) {
            return;
        }
        component.remove_prefix(end + 1);
    }
}

} // namespace

XDGLocations::XDGLocations(const FileURL& homeDirectory, const Platform::FileManager& fileManager,
    const Platform::Environment& environment, const std::stop_token& stop)
    : m_fileManager(fileManager)
    , m_environment(environment)
    , m_stop(stop)
    , m_directories(homeDirectory, fileManager, environment)
{
}

std::vector<ScanLocation> XDGLocations::standard() const
{
    std::vector<ScanLocation> locations;
    addRows(XDGLevel::safe, locations);
    return locations;
}

std::vector<ScanLocation> XDGLocations::aggressive() const
{
    auto locations = standard();
    for (auto& location : locations) {
        location = rebuiltForAggressiveScan(std::move(location));
    }
    addRows(XDGLevel::caution, locations);
    addContainers(locations);
    return locations;
}

std::vector<ScanLocation> XDGLocations::direct() const
{
    auto locations = aggressive();
    addRows(XDGLevel::manualReview, locations);
    const auto holdsBaseDirectory = [this](const FileURL& url) {
        return equalsOrIsInside(m_directories.directory(XDGBase::cache).path(), url.path());
    };
    for (auto& location : directLocations(m_directories.homeDirectory(), m_fileManager, m_stop)) {
        // What nobody vouches for in the cache directory may be a socket, a mount or mail: it is not offered whole.
        if (!holdsBaseDirectory(location.rootURL) && mayBeListed(location.rootURL, locations)) {
            locations.push_back(std::move(location));
        }
    }
    return locations;
}

void XDGLocations::addRows(XDGLevel level, std::vector<ScanLocation>& locations) const
{
    for (const auto& row : xdgLocationTable()) {
        if (row.level != level) {
            continue;
        }
        const auto addRoot = [&](const Root& root) {
            if (mayBeListed(root.url, locations)) {
                const auto suffix = root.matchedFolder.empty() ? std::string() : " (" + root.matchedFolder + ")";
                locations.push_back(makeLocation(row, root.url, root.displayName + suffix));
            }
        };
        const std::string displayName(row.displayName);
        if (const auto folder = m_directories.folderNamedBy(row.overrideVariable, m_environment)) {
            visitRoots({*folder, displayName, {}}, row.path, addRoot);
            continue;
        }
        auto path = std::string(row.folder);
        if (!row.path.empty()) {
            path.append("/").append(row.path);
        }
        visitRoots({m_directories.directory(row.base), displayName, {}}, path, addRoot);
    }
}

void XDGLocations::visitRoots(const Root& root, std::string_view rest, const RootVisitor& visit) const
{
    if (m_stop.stop_requested()) {
        return;
    }
    if (rest.empty()) {
        visit(root);
        return;
    }
    const auto slash = rest.find('/');
    const auto component = rest.substr(0, slash);
    const auto below = slash == std::string_view::npos ? std::string_view() : rest.substr(slash + 1);
    if (component != "*") {
        forEachAlternative(component, [&](std::string_view name, bool isOneOfSeveral) {
            visitRoots(
                {root.url.child(name, DirectoryHint::isFolder),
                    isOneOfSeveral ? root.displayName + " " + std::string(name) : root.displayName, root.matchedFolder},
                below, visit);
        });
        return;
    }
    auto folders = m_fileManager.contentsOfDirectory(root.url);
    if (!folders) {
        return;
    }
    std::sort(folders->begin(), folders->end());
    for (const auto& folder : *folders) {
        if (isRealFolder(folder, m_fileManager)) {
            visitRoots({FileURL::folder(folder.path()), root.displayName, std::string(folder.lastPathComponent())},
                below, visit);
        }
    }
}

void XDGLocations::addContainers(std::vector<ScanLocation>& locations) const
{
    constexpr std::pair<std::string_view, CacheFolders> containers[] = {
        {".var/app", {"cache", CleanupCategory::appContainerCaches, "Flatpak App Cache"}},
        {"snap", {"common/.cache", CleanupCategory::groupContainerCaches, "Snap App Cache"}},
    };
    for (const auto& [base, caches] : containers) {
        if (m_stop.stop_requested()) {
            return;
        }
        const auto folder = m_directories.homeDirectory().appending(base, DirectoryHint::isFolder);
        for (auto& location : cacheLocations(folder, caches, m_fileManager, m_stop)) {
            if (mayBeListed(location.rootURL, locations)) {
                locations.push_back(std::move(location));
            }
        }
    }
}

bool XDGLocations::mayBeListed(const FileURL& url, const std::vector<ScanLocation>& listed) const
{
    const auto overlaps = [&](const ScanLocation& location) {
        return equalsOrIsInside(url.path(), location.rootURL.path())
            || equalsOrIsInside(location.rootURL.path(), url.path());
    };
    return std::none_of(listed.begin(), listed.end(), overlaps)
        && isRealFolderInHome(url, m_directories.homeDirectory(), m_fileManager);
}

} // namespace CleanerCore
