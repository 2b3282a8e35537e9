#pragma once

#include "CleanerCore/Scan/ScanLocation.h"
#include "CleanerCore/Scan/SkippedItem.h"
#include "KarvelloCLI/Options.h"
#include "KarvelloCLI/ScanTable.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"

#include <expected>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

namespace KarvelloCLI {

/// What the words of a command line come to on this machine: where a scan looks, and what it refuses to look at.
struct ScanPlan {
    ScanSubject subject;
    /// The home's locations, then the added folders, then the plain roots.
    std::vector<CleanerCore::ScanLocation> locations;
    /// The added folders that may not be scanned.
    std::vector<CleanerCore::SkippedItem> refusedFolders;
    /// The plain roots; whether one may be scanned is the scanner's to say.
    std::vector<Platform::FileURL> roots;

    /// `workingDirectory` is what relative folders count from. The error is a sentence for the user: the home cannot be
    /// scanned at all.
    static std::expected<ScanPlan, std::string> make(const ScanOptions& options,
        const Platform::FileURL& workingDirectory, const Platform::FileURL& ownHome,
        const Platform::Environment& environment, const Platform::FileManager& fileManager,
        const std::stop_token& stop = {});

    /// Sentences on folders of the user's own that lie in another place of the plan, where items count twice.
    [[nodiscard]] std::vector<std::string> overlaps() const;
};

/// The places of a home, by the mode. The variables of `environment` speak of the home of the user who runs this
/// (`ownHome`, by the name that it has for them) and of no other. `home` holds no symbolic link.
[[nodiscard]] std::vector<CleanerCore::ScanLocation> homeLocations(CleanerCore::CleanupScanMode mode,
    const Platform::FileURL& home, const Platform::FileURL& ownHome, const Platform::Environment& environment,
    const Platform::FileManager& fileManager, const std::stop_token& stop = {});

} // namespace KarvelloCLI
