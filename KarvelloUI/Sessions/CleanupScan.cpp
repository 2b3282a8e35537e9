#include "KarvelloUI/Sessions/CleanupScan.h"

#include "CleanerCore/Scan/AppCacheContextEnricher.h"
#include "KarvelloUI/Sessions/ScanRootAccess.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace KarvelloUI {

namespace {

using CleanerCore::AppCacheRunningApplicationIdentity;
using CleanerCore::CleanupCandidate;
using CleanerCore::ScanReport;
using CleanerCore::SkippedItem;
using CleanerCore::StorageScanner;

bool hasAppCacheContext(const CleanupCandidate& candidate)
{
    return candidate.appCacheContext.has_value();
}

} // namespace

ScanOperationResult performCleanupScan(const SessionServices& services, const ScanLocationProvider& resolveLocations,
    const AppCacheRunningAppProvider& runningApplications, const StorageScanner::ProgressHandler& progressHandler,
    const std::stop_token& stop)
{
    auto resolution = resolveLocations(stop);
    const ScanRootAccess access(services, resolution.securityScopedFolders, resolution.homeAccessBookmark);
    std::vector<SkippedItem> skippedItems = std::move(resolution.skippedItems);
    std::ranges::copy(access.skippedItems(), std::back_inserter(skippedItems));

    auto scanned =
        ActiveScan::of(std::move(resolution.locations), services.fileManager, std::move(resolution.homeDirectory));
    scanned.securityScopedFolders = std::move(resolution.securityScopedFolders);
    scanned.homeAccessBookmark = std::move(resolution.homeAccessBookmark);
    const auto interrupted = [&] {
        return ScanOperationResult{
            .scanned = std::move(scanned), .report = ScanReport(services.now(), {}, std::move(skippedItems))};
    };
    if (stop.stop_requested()) {
        return interrupted();
    }

    auto report = StorageScanner(services.fileManager, StorageScanner::Configuration::standard())
                      .scan(scanned.locations, services.now(), progressHandler, stop, scanned.homeDirectory);
    if (stop.stop_requested()) {
        return interrupted();
    }
    const bool anApplicationMatters = std::ranges::any_of(report.candidates, hasAppCacheContext);
    const auto running =
        anApplicationMatters ? runningApplications() : std::vector<AppCacheRunningApplicationIdentity>();
    if (stop.stop_requested()) {
        return interrupted();
    }
    auto candidates = CleanerCore::AppCacheContextEnricher::enrich(std::move(report.candidates), running);
    std::ranges::move(report.skippedItems, std::back_inserter(skippedItems));
    return {.scanned = std::move(scanned),
        .report = ScanReport(report.scannedAt, std::move(candidates), std::move(skippedItems))};
}

} // namespace KarvelloUI
