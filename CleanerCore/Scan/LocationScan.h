#pragma once

#include "CleanerCore/Scan/ChildDecision.h"
#include "CleanerCore/Scan/ChildPipeline.h"
#include "CleanerCore/Scan/CleanupCandidate.h"
#include "CleanerCore/Scan/ScanLocation.h"
#include "CleanerCore/Scan/SkippedItem.h"
#include "CleanerCore/Scan/StorageScanProgress.h"
#include "CleanerCore/Scan/StorageScanner.h"

#include <cstdint>
#include <optional>
#include <stop_token>
#include <vector>

namespace CleanerCore {

/// What a scan has gathered so far, and what it needs all along.
struct ScanRun {
    const Platform::FileManager& fileManager;
    const StorageScanner::Configuration& configuration;
    const StorageScanner::ProgressHandler& progressHandler;
    const std::stop_token& stop;
    const std::optional<Platform::FileURL>& homeDirectory;
    Platform::Date now;
    std::int64_t totalLocations = 0;
    /// Nothing when the scanning thread does all the work itself.
    ChildPipeline* pipeline = nullptr;

    std::vector<CleanupCandidate> candidates;
    std::vector<SkippedItem> skippedItems;
    std::int64_t completedItems = 0;

    void report(const StorageScanProgress& progress) const
    {
        if (progressHandler) {
            progressHandler(progress);
        }
    }
};

/// The scan of one location: its root's checks, then its children in the order of the listing.
class LocationScan {
public:
    LocationScan(ScanRun& run, const ScanLocation& location, std::int64_t index);

    void perform();

private:
    class DirectEvents;
    enum class Answer : std::uint8_t { goOn, stopped };
    struct ListingError {
        /// How many children the listing had given before.
        std::int64_t afterChildren = 0;
        SkippedItem item;
    };

    void skipRoot(std::string_view reason);
    void scanChildren();
    void decideHere(Platform::DirectoryEnumerator& children);
    void decideOnThreads(Platform::DirectoryEnumerator& children);
    [[nodiscard]] std::unique_ptr<ChildPipeline::Batch> nextBatch(
        Platform::DirectoryEnumerator& children, const std::shared_ptr<const ChildDecision>& decision);
    [[nodiscard]] Answer replayOldestBatch();
    [[nodiscard]] Answer beginChild(const Platform::ItemReference& child);
    void finishChild(ChildOutcome outcome);
    void walkingAt(Platform::FileURL url);
    void failed(InventoryFailure failure, SkippedItem item);

    [[nodiscard]] StorageScanProgress progress(std::int64_t completedLocations) const;
    void reportEnd();

    ScanRun& m_run;
    const ScanLocation& m_location;
    std::int64_t m_index;
    std::int64_t m_listedChildren = 0;
    std::optional<Platform::ItemReference> m_heldBackFolder;
    std::int64_t m_begunChildren = 0;
    std::vector<ListingError> m_listingErrors;
    /// The last report on the current child: its walk repeats it with another URL.
    StorageScanProgress m_childProgress;
    /// Folders below the current child that could not be listed; they follow what its walk met item by item.
    std::vector<SkippedItem> m_childEnumerationErrors;
};

} // namespace CleanerCore
