#include "CleanerCore/Scan/LocationScan.h"

#include "CleanerCore/Safety/SafePathPolicy.h"
#include "CleanerCore/Scan/StorageScannerSkipReason.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace CleanerCore {

using Platform::DirectoryEnumerator;
using Platform::EnumerationErrorAnswer;
using Platform::FileError;
using Platform::FileURL;
using Platform::ItemReference;

/// Hands what a walk reports on at once, on the scanning thread.
class LocationScan::DirectEvents final : public InventoryEvents {
public:
    explicit DirectEvents(LocationScan& scan)
        : m_scan(scan)
    {
    }
    [[nodiscard]] bool wantsProgress() const override { return static_cast<bool>(m_scan.m_run.progressHandler); }
    void walkingAt(std::int64_t /*itemNumber*/, FileURL url) override { m_scan.walkingAt(std::move(url)); }
    void failed(InventoryFailure failure, std::int64_t /*itemNumber*/, SkippedItem item) override
    {
        m_scan.failed(failure, std::move(item));
    }

private:
    LocationScan& m_scan;
};

LocationScan::LocationScan(ScanRun& run, const ScanLocation& location, std::int64_t index)
    : m_run(run)
    , m_location(location)
    , m_index(index)
{
}

void LocationScan::perform()
{
    auto atRoot = progress(m_index);
    atRoot.currentURL = m_location.rootURL;
    m_run.report(atRoot);

    if (!m_run.fileManager.directoryExists(m_location.rootURL)) {
        skipRoot(StorageScannerSkipReason::folderDoesNotExist);
    } else if (const auto valid =
                   SafePathPolicy::validateScanRoot(m_location.rootURL, m_run.homeDirectory, m_run.fileManager);
        !valid) {
        skipRoot(valid.error().errorDescription());
    } else if (m_location.depth == ScanDepth::directoryItself) {
        m_begunChildren = 1;
        ++m_run.completedItems;
        skipRoot(StorageScannerSkipReason::scanRootItself);
    } else {
        scanChildren();
    }
    reportEnd();
}

void LocationScan::skipRoot(std::string_view reason)
{
    m_run.skippedItems.push_back({m_location.rootURL, std::string(reason)});
}

void LocationScan::scanChildren()
{
    const auto onError = [this](const FileURL& url, const FileError& error) {
        m_listingErrors.push_back({m_listedChildren, {url, error.localizedDescription()}});
        return EnumerationErrorAnswer::goOn;
    };
    const Platform::EnumerationOptions options{
        .skipsSubdirectoryDescendants = true,
        .skipsHiddenFiles = !m_location.includesHiddenFiles,
    };
    const auto children = m_run.fileManager.enumerator(m_location.rootURL, options, onError);
    if (!children) {
        skipRoot(StorageScannerSkipReason::couldNotEnumerateFolder);
        return;
    }
    if (m_run.pipeline != nullptr) {
        decideOnThreads(*children);
    } else {
        decideHere(*children);
    }
    // The listing runs ahead of the decisions; after a stop, what it met beyond the last child is nobody's news.
    for (auto& error : m_listingErrors) {
        if (error.afterChildren <= m_begunChildren) {
            m_run.skippedItems.push_back(std::move(error.item));
        }
    }
}

void LocationScan::decideHere(DirectoryEnumerator& children)
{
    const ChildDecision decision(
        m_location, {m_location, m_run.configuration, m_run.now}, m_run.fileManager, m_run.stop);
    DirectEvents events(*this);
    while (children.next()) {
        ++m_listedChildren;
        const auto child = children.reference();
        if (beginChild(child) == Answer::stopped) {
            return;
        }
        finishChild(decision.decide(child, events));
    }
}

void LocationScan::decideOnThreads(DirectoryEnumerator& children)
{
    const auto decision = std::make_shared<const ChildDecision>(
        m_location, InventoryRules(m_location, m_run.configuration, m_run.now), m_run.fileManager, m_run.stop);
    auto& pipeline = *m_run.pipeline;
    bool hasMore = true;
    while (true) {
        while (hasMore && pipeline.hasRoom() && !m_run.stop.stop_requested()) {
            auto batch = nextBatch(children, decision);
            hasMore = batch != nullptr;
            if (batch) {
                pipeline.submit(std::move(batch));
            }
        }
        if (pipeline.isEmpty()) {
            return;
        }
        if (replayOldestBatch() == Answer::stopped) {
            pipeline.discard();
            return;
        }
    }
}

/// A run of items that are no folders, or one folder alone: its walk may be long, and what it reports comes while the
/// batch is being decided.
std::unique_ptr<ChildPipeline::Batch> LocationScan::nextBatch(
    DirectoryEnumerator& children, const std::shared_ptr<const ChildDecision>& decision)
{
    const auto newBatch = [&] {
        return std::make_unique<ChildPipeline::Batch>(decision, static_cast<bool>(m_run.progressHandler));
    };
    std::unique_ptr<ChildPipeline::Batch> batch;
    if (m_heldBackFolder) {
        batch = newBatch();
        batch->add(*std::exchange(m_heldBackFolder, std::nullopt));
        return batch;
    }
    while ((!batch || !batch->isFull()) && children.next()) {
        ++m_listedChildren;
        const bool mayBeFolder = children.listedType() != Platform::ListedType::other;
        if (mayBeFolder && batch) {
            m_heldBackFolder = children.reference();
            return batch;
        }
        if (!batch) {
            batch = newBatch();
        }
        batch->add(children.reference());
        if (mayBeFolder) {
            return batch;
        }
    }
    return batch;
}

LocationScan::Answer LocationScan::replayOldestBatch()
{
    auto& pipeline = *m_run.pipeline;
    const auto batch = pipeline.front();
    std::vector<ChildOutcome> outcomes;
    for (std::size_t index = 0; index < batch->children().size(); ++index) {
        if (beginChild(batch->children()[index]) == Answer::stopped) {
            return Answer::stopped;
        }
        // A stop that the handler asks for at one item of a walk leaves out what the walk met behind that item; one that
        // it asks for as the child begins leaves out all of it.
        constexpr std::int64_t kNoItem = -1;
        auto lastItem = m_run.stop.stop_requested() ? std::optional(kNoItem) : std::nullopt;
        while (outcomes.empty()) {
            auto events = pipeline.nextEvents();
            if (events.empty()) {
                outcomes = pipeline.takeOutcomes();
            }
            for (auto& event : events) {
                if (lastItem && event.itemNumber > *lastItem) {
                    continue;
                }
                if (event.kind == ChildPipeline::Event::Kind::walking) {
                    walkingAt(std::move(event.url));
                } else {
                    const auto failure = event.kind == ChildPipeline::Event::Kind::itemFailed
                        ? InventoryFailure::item
                        : InventoryFailure::enumeration;
                    failed(failure, {std::move(event.url), std::move(event.reason)});
                }
                if (!lastItem && m_run.stop.stop_requested()) {
                    lastItem = event.itemNumber;
                }
            }
        }
        finishChild(std::move(outcomes[index]));
    }
    return Answer::goOn;
}

LocationScan::Answer LocationScan::beginChild(const ItemReference& child)
{
    if (m_run.stop.stop_requested()) {
        return Answer::stopped;
    }
    ++m_begunChildren;
    if (m_run.progressHandler) {
        m_childProgress = progress(m_index);
        m_childProgress.currentURL = child.url();
        m_run.report(m_childProgress);
    }
    return Answer::goOn;
}

void LocationScan::finishChild(ChildOutcome outcome)
{
    std::ranges::move(m_childEnumerationErrors, std::back_inserter(m_run.skippedItems));
    m_childEnumerationErrors.clear();
    // A child that was decided on another thread before the stop is dropped like one that was not reached.
    if (!m_run.stop.stop_requested()) {
        if (auto* candidate = std::get_if<CleanupCandidate>(&outcome)) {
            m_run.candidates.push_back(std::move(*candidate));
        } else if (auto* skipped = std::get_if<SkippedItem>(&outcome)) {
            m_run.skippedItems.push_back(std::move(*skipped));
        }
    }
    ++m_run.completedItems;
    if (m_run.progressHandler) {
        auto finished = progress(m_index);
        finished.currentURL = std::move(m_childProgress.currentURL);
        m_run.report(finished);
    }
}

void LocationScan::walkingAt(FileURL url)
{
    auto walking = m_childProgress;
    walking.currentURL = std::move(url);
    m_run.report(walking);
}

void LocationScan::failed(InventoryFailure failure, SkippedItem item)
{
    auto& list = failure == InventoryFailure::item ? m_run.skippedItems : m_childEnumerationErrors;
    list.push_back(std::move(item));
}

StorageScanProgress LocationScan::progress(std::int64_t completedLocations) const
{
    return {
        .currentURL = std::nullopt,
        .completedLocations = std::min(completedLocations, m_run.totalLocations),
        .totalLocations = m_run.totalLocations,
        .completedItems = m_run.completedItems,
        .completedItemsInCurrentLocation = m_begunChildren,
        .totalItemsInCurrentLocation = std::nullopt,
        .foundCandidates = static_cast<std::int64_t>(m_run.candidates.size()),
        .skippedItems = static_cast<std::int64_t>(m_run.skippedItems.size()),
        .fractionCompleted = static_cast<double>(completedLocations) / static_cast<double>(m_run.totalLocations),
    };
}

void LocationScan::reportEnd()
{
    auto end = progress(m_index + 1);
    end.currentURL = m_location.rootURL;
    end.totalItemsInCurrentLocation = m_begunChildren;
    m_run.report(end);
}

} // namespace CleanerCore
