#pragma once

#include "CleanerCore/Insights/DuplicateFinder.h"
#include "CleanerCore/Insights/DuplicateSizes.h"
#include "CleanerCore/Insights/FileReading.h"
#include "CleanerCore/Insights/SameSizeSearch.h"
#include "CleanerCore/Insights/WorkerPool.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <span>
#include <stop_token>
#include <vector>

namespace CleanerCore {

/// One run of a `DuplicateFinder`. Threads read; this one decides, size by size in their order, what is read next and
/// what comes of it. Fingerprints of smaller sizes are taken ahead of time, a limited number of them.
class DuplicateSearch {
public:
    DuplicateSearch(const InsightConfiguration& configuration, const Platform::FileManager& fileManager, unsigned jobs,
        std::span<const FileRecord> records, std::stop_token stop);

    [[nodiscard]] DuplicateSearchResult run(
        std::vector<SkippedItem>& skipped, const DuplicateFinder::ProgressHandler& onProgress);

private:
    enum class Phase : std::uint8_t { fingerprinting, hashing, gathering };

    /// The files of one size in the works.
    struct Size {
        explicit Size(const SameSizeFiles& files)
            : search(files)
        {
        }

        SameSizeSearch search;
        Phase phase = Phase::fingerprinting;
        /// Tasks of this phase that are not done. What they wrote may be read once it is 0.
        std::atomic<std::size_t> pendingTasks = 0;
        /// Nobody will ask for it any more.
        std::atomic<bool> isAbandoned = false;
        SameSizeSearch::Result result;
    };
    using SizeTask = std::function<void(Size&, std::span<std::byte>)>;

    /// Hands out fingerprints of further sizes, as far as it is worth it.
    void admitSizes();
    /// Moves those on whose tasks are done.
    void advanceAll();
    void beginHashing(const std::shared_ptr<Size>& size);
    void submit(const std::shared_ptr<Size>& size, WorkerPool::Urgency urgency, std::vector<SizeTask> tasks);
    void abandonFrom(std::size_t index);
    /// Takes over what the first size gave.
    void finishFirst(std::vector<SkippedItem>& skipped);
    void keepMostWasteful();
    void reportProgress(const DuplicateFinder::ProgressHandler& onProgress);

    const InsightConfiguration& m_configuration;
    FileReading m_reading;
    std::size_t m_maximumFilesAhead;
    std::size_t m_maximumHeldFiles;
    DuplicateSizes m_sizes;
    DuplicateHashBudget m_budget;
    /// No further size is admitted.
    bool m_isEnding = false;
    std::deque<std::shared_ptr<Size>> m_inWork;
    DuplicateSearchResult m_result;
    std::int64_t m_reportedBytes = 0;
    /// Last, so that its threads end before what they work on.
    WorkerPool m_pool;
};

} // namespace CleanerCore
