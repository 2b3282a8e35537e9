#pragma once

#include "CleanerCore/Insights/DuplicateFileGroup.h"
#include "CleanerCore/Insights/FileRecord.h"
#include "CleanerCore/Insights/InsightConfiguration.h"
#include "CleanerCore/Scan/SkippedItem.h"
#include "Platform/Files/FileManager.h"

#include <cstdint>
#include <functional>
#include <span>
#include <stop_token>
#include <vector>

namespace CleanerCore {

struct DuplicateSearchResult {
    /// What wastes most comes first.
    std::vector<DuplicateFileGroup> groups;
    /// A limit ended the search early, or kept files out of it.
    bool isTruncated = false;
};

/// Finds files with the same contents: of the files of one size those that agree in two samples are read and compared,
/// the largest sizes first, until the limits of the configuration are reached. What a group holds was equal byte for
/// byte, and was still unchanged when the group was made; several names of one file count as one.
///
/// Groups, skipped items, their order and the use of the limits are those of a search that takes the files one after
/// another and hashes each for itself, whatever the number of jobs. One thing shows that it does not: of a file that
/// turns out to be like no other, the rest is not read, so it is not told if that rest could not have been read.
class DuplicateFinder {
public:
    /// Told the number of bytes read so far, a few times a second and at the end, on the thread that called `find`.
    using ProgressHandler = std::function<void(std::int64_t)>;

    /// `fileManager` must outlive the finder. `jobs` is the number of threads, at least one, that read files.
    DuplicateFinder(const InsightConfiguration& configuration, const Platform::FileManager& fileManager, unsigned jobs,
        ProgressHandler onProgress = {});

    /// `records` may hold folders and files of any size. What cannot be judged is added to `skipped`, one item with a
    /// reason each. A stop leaves the groups of the sizes that were done by then and does not count as truncation.
    [[nodiscard]] DuplicateSearchResult find(
        std::span<const FileRecord> records, std::vector<SkippedItem>& skipped, const std::stop_token& stop = {}) const;

private:
    InsightConfiguration m_configuration;
    const Platform::FileManager& m_fileManager;
    unsigned m_jobs;
    ProgressHandler m_onProgress;
};

} // namespace CleanerCore
