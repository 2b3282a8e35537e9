#include "CleanerCore/Insights/MacStorageInsightScanner.h"

#include "CleanerCore/Insights/DuplicateFinder.h"
#include "CleanerCore/Insights/InsightMaker.h"
#include "CleanerCore/Insights/InsightRoots.h"
#include "CleanerCore/Insights/ReviewLists.h"
#include "CleanerCore/Insights/RootPlan.h"
#include "CleanerCore/Insights/RootScan.h"
#include "CleanerCore/Insights/SecurityFindings.h"
#include "CleanerCore/Insights/WalkPool.h"
#include "CleanerCore/Scan/WalkThreads.h"

#include <utility>

namespace CleanerCore {

using Platform::FileURL;

namespace {

using Report = MacStorageInsightReport;

/// Walks all roots and fills in the map. Gives what was told last.
InsightScanProgress walkRoots(const InsightRoots& roots, InsightScanRun& run, const MacStorageInsightScanner& scanner,
    const MacStorageInsightScanner::ProgressHandler& progressHandler, Report::Fields& report)
{
    InsightScanProgress progress;
    progress.totalRoots = static_cast<std::int64_t>(roots.folders.size());
    const auto tell = [&] {
        if (progressHandler) {
            progressHandler(progress);
        }
    };
    run.visited = [&](std::int64_t items) {
        progress.visitedItems += items;
        tell();
    };
    for (const auto& root : roots.folders) {
        if (run.stop.stop_requested()) {
            return progress;
        }
        progress.root = root;
        tell();
        const RootPlan plan(root, roots.folders, roots.downloadsFolder);
        const auto result = RootScan(run, plan).perform();
        report.heatmapItems.emplace_back(StorageMapItem::Fields{
            .url = root,
            .displayName = scanner.displayName(root),
            .sizeBytes = result.byteSize,
            .itemCount = result.itemCount,
            .isTruncated = result.isTruncated,
        });
        report.isTruncated = report.isTruncated || result.isTruncated;
        ++progress.completedRoots;
    }
    return progress;
}

} // namespace

MacStorageInsightScanner::MacStorageInsightScanner(FileURL homeDirectory, const Platform::FileManager& fileManager,
    const Configuration& configuration, Options options)
    : m_homeDirectory(std::move(homeDirectory))
    , m_fileManager(fileManager)
    , m_configuration(configuration)
    , m_options(std::move(options))
{
}

Report MacStorageInsightScanner::scan(
    Platform::Date now, const ProgressHandler& progressHandler, const std::stop_token& stop) const
{
    auto roots = InsightRoots::of(m_homeDirectory, m_fileManager, m_options.environment);
    if (m_options.roots) {
        roots.folders = *m_options.roots;
    }
    std::optional<WalkPool> pool;
    if (const auto threads = walkThreads(jobs()); threads > 0) {
        pool.emplace(threads);
    }
    InsightScanRun run{
        .fileManager = m_fileManager,
        .configuration = m_configuration,
        .homeDirectory = m_homeDirectory,
        .stop = stop,
        .pool = pool ? &*pool : nullptr,
        .visited = {},
        .packageVisitBudget = m_configuration.maximumVisitedItemsPerRoot,
        .packages = {},
        .records = {},
        .skippedItems = {},
    };
    Report::Fields report{.scannedAt = now};
    auto progress = walkRoots(roots, run, *this, progressHandler, report);
    pool.reset();

    const auto note = [&](InsightLimit limit, bool isMet) {
        report.isTruncated = report.isTruncated || isMet;
        if (isMet && m_options.limitHandler) {
            m_options.limitHandler(limit);
        }
    };
    note(InsightLimit::visits, report.isTruncated);

    const auto& analyses = m_options.analyses;
    const InsightMaker maker(m_fileManager, stop);
    ReviewLists lists(m_configuration, now, maker, run.skippedItems);
    if (analyses.largeFiles) {
        report.largeFiles = lists.largeFiles(run.records);
    }
    if (analyses.downloads && roots.downloadsFolder) {
        report.downloadFiles = lists.downloads(run.records, *roots.downloadsFolder);
    }
    note(InsightLimit::recentFiles, lists.isTruncated());
    if (analyses.duplicates) {
        const auto tell = [&](std::int64_t bytes) {
            if (progressHandler) {
                progress.readBytes = bytes;
                progressHandler(progress);
            }
        };
        auto search =
            DuplicateFinder(m_configuration, m_fileManager, jobs(), tell).find(run.records, run.skippedItems, stop);
        report.duplicateGroups = std::move(search.groups);
        note(InsightLimit::duplicates, search.isTruncated);
    }
    if (analyses.securityFindings) {
        report.securityFindings = securityFindings(run.records, m_configuration.maximumResultCount, maker);
    }
    report.skippedItems = std::move(run.skippedItems);
    report.systemSnapshot = m_options.currentSnapshot();
    return Report(std::move(report));
}

std::vector<ScanLocation> MacStorageInsightScanner::allowedCleanupLocations(
    const FileURL& homeDirectory, const Platform::FileManager& fileManager, const Platform::Environment& environment)
{
    std::vector<ScanLocation> locations;
    for (const auto& folder : InsightRoots::of(homeDirectory, fileManager, environment).cleanable) {
        locations.emplace_back(ScanLocation::Fields{
            .rootURL = folder,
            .category = CleanupCategory::customFolder,
            .displayName = insightDisplayName(folder, homeDirectory, fileManager),
            .depth = ScanDepth::immediateChildren,
            .isSelectedByDefault = false,
            .safety = CleanupSafety::manualReview,
            .minimumModificationAge = 0,
            .includesHiddenFiles = false,
            .includesPackageDescendants = false,
            .appCacheContext = std::nullopt,
        });
    }
    return locations;
}

MacStorageInsightCleanupAllowance MacStorageInsightScanner::cleanupAllowance(
    std::span<const ScanLocation> allowedLocations, const Platform::FileManager& fileManager)
{
    return {allowedLocations, fileManager};
}

bool MacStorageInsightScanner::isCleanupAllowed(const FileURL& url, const FileURL& homeDirectory,
    const Platform::FileManager& fileManager, const Platform::Environment& environment)
{
    return isCleanupAllowed(url, allowedCleanupLocations(homeDirectory, fileManager, environment), fileManager);
}

bool MacStorageInsightScanner::isCleanupAllowed(
    const FileURL& url, std::span<const ScanLocation> allowedLocations, const Platform::FileManager& fileManager)
{
    return cleanupAllowance(allowedLocations, fileManager).allows(url, fileManager);
}

std::string MacStorageInsightScanner::displayName(const FileURL& url) const
{
    return insightDisplayName(url, m_homeDirectory, m_fileManager);
}

unsigned MacStorageInsightScanner::jobs() const
{
    return m_options.jobs == 0 ? availableProcessors() : m_options.jobs;
}

} // namespace CleanerCore
