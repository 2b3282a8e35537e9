#include "CleanerCore/Scan/StorageScanner.h"

#include "CleanerCore/Scan/ChildPipeline.h"
#include "CleanerCore/Scan/LocationScan.h"

#include <algorithm>
#include <thread>

namespace CleanerCore {

namespace {

// A walk waits for the disk more than it computes: with nothing cached, several walks for each processor keep the disk
// busy (on two processors and a solid-state disk, 16 took a third of the time of 2), and with everything cached the
// surplus costs nothing. Each walk may hold some 17 folders open, which bounds their number.
constexpr unsigned kWalksPerProcessor = 8;
constexpr unsigned kMaximumSurplusWalks = 32;

unsigned processors()
{
    return std::max(std::thread::hardware_concurrency(), 1U);
}

} // namespace

StorageScanner::Configuration StorageScanner::Configuration::normalized() const
{
    return {
        .maximumInventoryItemsPerCandidate = std::max<std::int64_t>(maximumInventoryItemsPerCandidate, 1),
        .inventoryProgressItemInterval = std::max<std::int64_t>(inventoryProgressItemInterval, 1),
        .jobs = jobs == 0 ? processors() : jobs,
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
    if (m_configuration.jobs > 1 && !locations.empty()) {
        const auto jobs = m_configuration.jobs;
        pipeline.emplace(std::max(std::min(jobs * kWalksPerProcessor, kMaximumSurplusWalks), jobs));
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
