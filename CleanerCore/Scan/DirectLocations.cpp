#include "CleanerCore/Scan/DirectLocations.h"

#include "CleanerCore/Scan/LocationAges.h"
#include "CleanerCore/Scan/RealFolder.h"

#include <array>
#include <string>
#include <string_view>

namespace CleanerCore {

namespace {

struct DirectRow {
    std::string_view path;
    CleanupCategory category;
    std::string_view displayName;
};

constexpr std::array kDirectRows{
    DirectRow{"Library/Developer/Xcode/Archives", CleanupCategory::buildArchives, "Xcode Archives"},
    DirectRow{"Library/Developer/Xcode/Products", CleanupCategory::developerToolCaches, "Xcode Products"},
    DirectRow{".cache", CleanupCategory::developerToolCaches, "~/.cache"},
    DirectRow{"Library/Caches/Homebrew", CleanupCategory::packageManagerCaches, "Homebrew Cache"},
    DirectRow{"Library/Caches/pip", CleanupCategory::packageManagerCaches, "pip Cache"},
    DirectRow{"Library/Caches/pypoetry", CleanupCategory::packageManagerCaches, "Poetry Cache"},
    DirectRow{".npm/_cacache", CleanupCategory::packageManagerCaches, "npm Cache"},
    DirectRow{".pnpm-store", CleanupCategory::packageManagerCaches, "pnpm Store"},
    DirectRow{".yarn/berry/cache", CleanupCategory::packageManagerCaches, "Yarn Berry Cache"},
    DirectRow{".gradle/caches", CleanupCategory::packageManagerCaches, "Gradle Caches"},
    DirectRow{".cargo/registry/cache", CleanupCategory::packageManagerCaches, "Cargo Registry Cache"},
    DirectRow{".cargo/git/checkouts", CleanupCategory::packageManagerCaches, "Cargo Git Checkouts"},
};

} // namespace

std::vector<ScanLocation> directLocations(
    const Platform::FileURL& homeDirectory, const Platform::FileManager& fileManager, const std::stop_token& stop)
{
    std::vector<ScanLocation> locations;
    for (const auto& row : kDirectRows) {
        const auto url = homeDirectory.appending(row.path, Platform::DirectoryHint::isFolder);
        if (stop.stop_requested() || !isRealFolderInHome(url, homeDirectory, fileManager)) {
            continue;
        }
        locations.emplace_back(ScanLocation::Fields{
            .rootURL = url,
            .category = row.category,
            .displayName = std::string(row.displayName),
            .isSelectedByDefault = false,
            .safety = CleanupSafety::manualReview,
            .minimumModificationAge = kOneDay,
            .includesHiddenFiles = true,
            .includesPackageDescendants = true,
        });
    }
    return locations;
}

} // namespace CleanerCore
