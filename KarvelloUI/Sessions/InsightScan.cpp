#include "KarvelloUI/Sessions/InsightScan.h"

#include "CleanerCore/Insights/MacStorageInsightScanner.h"
#include "KarvelloUI/Sessions/ScanRootAccess.h"

#include <chrono>
#include <cstdint>
#include <utility>

namespace KarvelloUI {

namespace {

using Progress = CleanerCore::InsightScanProgress;

/// A scan tells of every few files; nobody can read more than some reports a second. Each folder is told of.
class FewerReports {
public:
    explicit FewerReports(const std::function<void(const Progress&)>& report)
        : m_report(report)
    {
    }

    void operator()(const Progress& progress)
    {
        const auto now = std::chrono::steady_clock::now();
        if (progress.completedRoots != m_completedRoots || now - m_last >= kLeastDistance) {
            m_last = now;
            m_completedRoots = progress.completedRoots;
            m_report(progress);
        }
    }

private:
    static constexpr std::chrono::milliseconds kLeastDistance{100};

    const std::function<void(const Progress&)>& m_report;
    std::chrono::steady_clock::time_point m_last;
    std::int64_t m_completedRoots = -1;
};

} // namespace

InsightScanOperationResult performInsightScan(const SessionServices& services, const InsightScanRequest& request,
    const std::function<void(const Progress&)>& report, const std::stop_token& stop)
{
    using Scanner = CleanerCore::MacStorageInsightScanner;
    const ScanRootAccess access(services, {}, request.homeAccessBookmark);
    const Scanner scanner(request.homeDirectory, services.fileManager, request.configuration,
        {.environment = services.environment, .currentSnapshot = request.systemSnapshotProvider});
    auto found = scanner.scan(services.now(), FewerReports(report), stop);
    auto scanned = ActiveScan::of(
        Scanner::allowedCleanupLocations(request.homeDirectory, services.fileManager, services.environment),
        services.fileManager, request.homeDirectory);
    scanned.homeAccessBookmark = request.homeAccessBookmark;
    InsightScanOperationResult result{.report = std::move(found), .scanned = std::move(scanned)};
    if (!access.skippedItems().empty()) {
        result.homeAccessSkippedItem = access.skippedItems().front();
    }
    return result;
}

} // namespace KarvelloUI
