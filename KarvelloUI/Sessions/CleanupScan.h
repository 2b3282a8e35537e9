#pragma once

#include "CleanerCore/Scan/AppCacheRunningApplicationIdentity.h"
#include "CleanerCore/Scan/ScanReport.h"
#include "CleanerCore/Scan/StorageScanner.h"
#include "KarvelloUI/Sessions/ActiveScan.h"
#include "KarvelloUI/Sessions/SessionServices.h"

#include <functional>
#include <optional>
#include <stop_token>
#include <vector>

namespace KarvelloUI {

/// What a scan is to look at.
struct ScanLocationResolution {
    std::vector<CleanerCore::ScanLocation> locations = {};
    /// What had to be left out already.
    std::vector<CleanerCore::SkippedItem> skippedItems = {};
    /// Those that access has to be opened to.
    std::vector<ResolvedCustomScanFolder> securityScopedFolders = {};
    std::optional<ResolvedHomeAccessBookmark> homeAccessBookmark = {};
    /// Without one roots are judged against the person's real home.
    std::optional<Platform::FileURL> homeDirectory = {};
};

/// Both are called on the thread that scans.
using ScanLocationProvider = std::function<ScanLocationResolution(const std::stop_token&)>;
using AppCacheRunningAppProvider = std::function<std::vector<CleanerCore::AppCacheRunningApplicationIdentity>()>;

struct ScanOperationResult {
    ActiveScan scanned;
    CleanerCore::ScanReport report;
};

/// One cleanup scan on the calling thread, from finding out what to look at to telling which caches are in use. After a
/// stop the report holds no candidates. Running applications are asked for only if a candidate belongs to one.
[[nodiscard]] ScanOperationResult performCleanupScan(const SessionServices& services,
    const ScanLocationProvider& resolveLocations, const AppCacheRunningAppProvider& runningApplications,
    const CleanerCore::StorageScanner::ProgressHandler& progressHandler, const std::stop_token& stop);

} // namespace KarvelloUI
