#include "CleanerCore/Scan/StorageScanner.h"

#include "CleanerCore/Scan/ChildPipeline.h"
#include "CleanerCore/Scan/LocationScan.h"
#include "CleanerCore/Scan/WalkThreads.h"

#include <algorithm>

namespace CleanerCore {

StorageScanner::Configuration StorageScanner::Configuration::normalized() const
{
    return {
        .maximumInventoryItemsPerCandidate = std::max<std::int64_t>(maximumInventoryItemsPerCandidate, 1),
        .inventoryProgressItemInterval = std::max<std::int64_t>(inventoryProgressItemInterval, 1),
        .jobs = jobs == 0 ? availableProcessors() : jobs,
    };
}

StorageScanner::StorageScanner(const Platform::FileManager& fileManager, Configuration configuration)
    : m_fileManager(fileManager)
    , m_configuration(configuration.normalized())
{
}

ScanReport StorageScanner::scan(std::span<const ScanLocation> locations, Platform::Date now,
    const ProgressHandler& progressHandler, const std::stop_token& stop,
    const std::optional<Platform::FileURL>& homeDirectory) const
{
    std::optional<ChildPipeline> pipeline;
    if (const auto threads = walkThreads(m_configuration.jobs); threads > 0 && !locations.empty()) {
        pipeline.emplace(threads);
    }
    ScanRun run{
        .fileManager = m_fileManager,
        .configuration = m_configuration,
        .progressHandler = progressHandler,
        .stop = stop,
        .homeDirectory = homeDirectory,
        .now = now,
        .totalLocations = static_cast<std::int64_t>(locations.size()),
        .pipeline = pipeline ? &*pipeline : nullptr,
        .candidates = {},
        .skippedItems = {},
        .completedItems = 0,
    };

    run.report(StorageScanProgress::empty());
    std::int64_t index = 0;
    for (const auto& location : locations) {
        if (stop.stop_requested()) {
            break;
        }
        LocationScan(run, location, index).perform();
        ++index;
    }
    if (!stop.stop_requested()) {
        StorageScanProgress finished;
        finished.completedLocations = run.totalLocations;
        finished.totalLocations = run.totalLocations;
        finished.completedItems = run.completedItems;
        finished.foundCandidates = static_cast<std::int64_t>(run.candidates.size());
        finished.skippedItems = static_cast<std::int64_t>(run.skippedItems.size());
        finished.fractionCompleted = 1;
        run.report(finished);
    }
    return ScanReport(Platform::Date::now(), std::move(run.candidates), std::move(run.skippedItems));
}

} // namespace CleanerCore
