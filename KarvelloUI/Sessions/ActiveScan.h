#pragma once

#include "CleanerCore/Safety/CleanupEligibilityPolicy.h"
#include "CleanerCore/Scan/ScanLocation.h"
#include "KarvelloUI/Stores/CustomScanFolder.h"
#include "KarvelloUI/Stores/HomeAccessBookmark.h"

#include <optional>
#include <vector>

namespace KarvelloUI {

/// The folders of a finished scan, as they were then: a later clean or restore is judged against exactly these.
struct ActiveScan {
    std::vector<CleanerCore::ScanLocation> locations = {};
    CleanerCore::CleanupEligibilityPolicy cleanupEligibilityPolicy;
    std::vector<ResolvedCustomScanFolder> securityScopedFolders = {};
    std::optional<ResolvedHomeAccessBookmark> homeAccessBookmark = {};
    /// The home that the folders were judged against; without one the person's real home.
    std::optional<Platform::FileURL> homeDirectory = {};

    /// No folder: nothing is eligible.
    static ActiveScan none(const Platform::FileManager& fileManager);
};

} // namespace KarvelloUI
