#include "KarvelloUI/Sessions/ConfirmedClean.h"

#include "CleanerCore/Cleaning/CleaningService.h"
#include "KarvelloUI/Sessions/AccessBlockedRoots.h"
#include "KarvelloUI/Sessions/ScanRootAccess.h"

#include <iterator>
#include <utility>

namespace KarvelloUI {

using CleanerCore::CleanResult;
using CleanerCore::CleanupCandidate;
using CleanerCore::ItemProgressReport;

CleanAction cleaningServiceAction(const SessionServices& services)
{
    return [services](std::span<const CleanupCandidate> candidates, const CleanRequest& request,
               const std::stop_token& stop, const ItemProgressReport& report) {
        const ActiveScan& scanned = request.scanned;
        return CleanerCore::CleaningService(services.fileManager, services.trash)
            .clean(candidates, scanned.locations, request.mode, scanned.cleanupEligibilityPolicy, stop,
                scanned.homeDirectory, report);
    };
}

CleanResult performConfirmedClean(const SessionServices& services, CleanRequest request, const CleanAction& clean,
    const std::stop_token& stop, const ItemProgressReport& report)
{
    const ScanRootAccess access(services, request.scanned.securityScopedFolders, request.scanned.homeAccessBookmark);
    auto [reachable, blocked] = AccessBlockedRoots(access.skippedItems()).split(std::move(request.candidates));
    CleanResult result = clean(reachable, request, stop, report);
    result.failedItems.insert(
        result.failedItems.begin(), std::make_move_iterator(blocked.begin()), std::make_move_iterator(blocked.end()));
    return result;
}

} // namespace KarvelloUI
