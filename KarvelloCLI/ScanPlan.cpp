#include "KarvelloCLI/ScanPlan.h"

#include "CleanerCore/Scan/CustomFolderLocation.h"
#include "CleanerCore/Scan/StorageProfiles.h"
#include "KarvelloCLI/NamedHome.h"
#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/TerminalText.h"
#include "KarvelloCLI/WorkingDirectory.h"

#include <algorithm>
#include <iterator>

namespace KarvelloCLI {

namespace {

using CleanerCore::ScanLocation;
using Platform::FileURL;

ScanLocation plainLocation(const FileURL& root, const ScanOptions& options)
{
    ScanLocation::Fields fields;
    fields.rootURL = root;
    fields.minimumModificationAge = options.minimumAge;
    fields.includesHiddenFiles = options.includesHiddenFiles;
    fields.includesPackageDescendants = options.includesPackageDescendants;
    return ScanLocation(std::move(fields)); // for the rest, a custom folder's: manual review, nothing selected
}

} // namespace

std::vector<ScanLocation> homeLocations(CleanerCore::CleanupScanMode mode, const FileURL& home, const FileURL& ownHome,
    const Platform::Environment& environment, const Platform::FileManager& fileManager, const std::stop_token& stop)
{
    // This program is only ever handed out directly, never through a store with a sandbox.
    constexpr bool includesDirectDistribution = true;
    const bool isOwnHome = home.path() == fileManager.resolvingSymbolicLinks(ownHome).path();
    return CleanerCore::StorageProfiles::locations(mode, isOwnHome ? ownHome : home, fileManager,
        isOwnHome ? environment : Platform::Environment{}, includesDirectDistribution, stop);
}

std::expected<ScanPlan, std::string> ScanPlan::make(const ScanOptions& options, const FileURL& workingDirectory,
    const FileURL& ownHome, const Platform::Environment& environment, const Platform::FileManager& fileManager,
    const std::stop_token& stop)
{
    ScanPlan plan;
    const NamedHome namedHome = NamedHome::of(options.home, workingDirectory, ownHome, fileManager);
    const FileURL& home = namedHome.real;
    plan.subject.home = home;
    plan.subject.leavesOutHiddenFiles = !options.includesHiddenFiles;

    if (options.scansHome()) {
        if (!fileManager.directoryExists(home)) {
            return std::unexpected(namedHome.absence());
        }
        plan.subject.mode = options.mode.value_or(CleanerCore::CleanupScanMode::standard);
        plan.locations = homeLocations(*plan.subject.mode, home, ownHome, environment, fileManager, stop);
    }

    for (const FileURL& folder : absoluteFolders(options.folders, workingDirectory)) {
        plan.subject.folders.push_back(folder);
        auto location =
            CleanerCore::customFolderLocation(folder, std::string(folder.lastPathComponent()), fileManager, home);
        if (location) {
            plan.locations.push_back(*std::move(location));
        } else {
            plan.refusedFolders.push_back({folder, location.error().errorDescription()});
        }
    }

    plan.roots = absoluteFolders(options.roots, workingDirectory);
    for (const FileURL& root : plan.roots) {
        plan.subject.folders.push_back(root);
        plan.locations.push_back(plainLocation(root, options));
    }
    return plan;
}

std::vector<std::string> ScanPlan::overlaps() const
{
    // Locations of the home lie in each other only where the profiles mean it.
    const std::size_t given = subject.folders.size() - refusedFolders.size();
    const std::size_t firstGiven = locations.size() - given;
    std::vector<std::string> sentences;
    for (std::size_t inner = 0; inner < locations.size(); ++inner) {
        const std::string& innerPath = locations[inner].rootURL.path();
        for (std::size_t outer = 0; outer < locations.size(); ++outer) {
            const std::string& outerPath = locations[outer].rootURL.path();
            const bool isSame = innerPath == outerPath && outer < inner;
            if (std::max(inner, outer) >= firstGiven && (isSame || Platform::isPathInside(innerPath, outerPath))) {
                sentences.push_back(say("{} is scanned as a part of {} already; what it holds counts twice.",
                    TerminalText(innerPath).string(), TerminalText(outerPath).string()));
                break;
            }
        }
    }
    return sentences;
}

} // namespace KarvelloCLI
