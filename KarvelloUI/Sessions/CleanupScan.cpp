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

ActiveScan ActiveScan::none(const Platform::FileManager& fileManager)
{
    const auto limit = StorageScanner::Configuration::standard().maximumInventoryItemsPerCandidate;
    return {.cleanupEligibilityPolicy = CleanerCore::CleanupEligibilityPolicy({}, fileManager, limit)};
}

ScanOperationResult performCleanupScan(const SessionServices& services, const ScanLocationProvider& resolveLocations,
    const AppCacheRunningAppProvider& runningApplications, const StorageScanner::ProgressHandler& progressHandler,
    const std::stop_token& stop)
{
    auto resolution = resolveLocations(stop);
    const ScanRootAccess access(services, resolution.securityScopedFolders, resolution.homeAccessBookmark);
    std::vector<SkippedItem> skippedItems = std::move(resolution.skippedItems);
    std::ranges::copy(access.skippedItems(), std::back_inserter(skippedItems));

    const auto configuration = StorageScanner::Configuration::standard();
    CleanerCore::CleanupEligibilityPolicy policy(resolution.locations, services.fileManager,
        configuration.maximumInventoryItemsPerCandidate, resolution.homeDirectory);
    ActiveScan scanned{.locations = std::move(resolution.locations),
        .cleanupEligibilityPolicy = std::move(policy),
        .securityScopedFolders = std::move(resolution.securityScopedFolders),
        .homeAccessBookmark = std::move(resolution.homeAccessBookmark),
        .homeDirectory = std::move(resolution.homeDirectory)};
    const auto interrupted = [&] {
        return ScanOperationResult{
            .scanned = std::move(scanned), .report = ScanReport(services.now(), {}, std::move(skippedItems))};
    };
    if (stop.stop_requested()) {
        return interrupted();
    }

    auto report = StorageScanner(services.fileManager, configuration)
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
