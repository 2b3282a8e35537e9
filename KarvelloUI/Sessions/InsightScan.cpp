#include "KarvelloUI/Sessions/InsightScan.h"

#include "CleanerCore/Insights/MacStorageInsightScanner.h"
#include "KarvelloUI/Sessions/ScanRootAccess.h"

#include <utility>

namespace KarvelloUI {

InsightScanOperationResult performInsightScan(
    const SessionServices& services, const InsightScanRequest& request, const std::stop_token& stop)
{
    using Scanner = CleanerCore::MacStorageInsightScanner;
    const ScanRootAccess access(services, {}, request.homeAccessBookmark);
    const Scanner scanner(request.homeDirectory, services.fileManager, request.configuration,
        {.environment = services.environment, .currentSnapshot = request.systemSnapshotProvider});
    auto report = scanner.scan(services.now(), {}, stop);
    auto scanned = ActiveScan::of(
        Scanner::allowedCleanupLocations(request.homeDirectory, services.fileManager, services.environment),
        services.fileManager, request.homeDirectory);
    scanned.homeAccessBookmark = request.homeAccessBookmark;
    InsightScanOperationResult result{.report = std::move(report), .scanned = std::move(scanned)};
    if (!access.skippedItems().empty()) {
        result.homeAccessSkippedItem = access.skippedItems().front();
    }
    return result;
}

} // namespace KarvelloUI
