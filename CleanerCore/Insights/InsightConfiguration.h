#pragma once

#include <cstdint>

namespace CleanerCore {

/// The limits of an insight scan. The constructor forces each into its range, so none can be switched off.
struct InsightConfiguration {
    /// The limits as asked for. None has a value of its own: whoever builds a configuration decides all of them.
    struct Fields {
        std::int64_t minimumLargeFileBytes;
        std::int64_t minimumDuplicateFileBytes;
        double minimumReviewFileAge;
        std::int64_t maximumVisitedItemsPerRoot;
        std::int64_t maximumResultCount;
        std::int64_t maximumRecentReviewSkippedItems;
        std::int64_t maximumDuplicateHashFiles;
        std::int64_t maximumDuplicateFullHashBytesPerFile;
        std::int64_t maximumDuplicateHashBytes;
    };

    explicit InsightConfiguration(const Fields& fields);
    /// What the application scans with.
    static InsightConfiguration standard();

    /// At least 1.
    std::int64_t minimumLargeFileBytes;
    /// At least 1.
    std::int64_t minimumDuplicateFileBytes;
    /// Seconds, 0 to 30 days: a file that was modified since is not judged yet. 0 judges all.
    double minimumReviewFileAge;
    /// At least 128; also the visits that the packages of the whole scan share.
    std::int64_t maximumVisitedItemsPerRoot;
    /// At least 20: the length of each list.
    std::int64_t maximumResultCount;
    /// At least 0: how many files that are too new are named.
    std::int64_t maximumRecentReviewSkippedItems;
    /// At least 1.
    std::int64_t maximumDuplicateHashFiles;
    /// At least 1 MiB.
    std::int64_t maximumDuplicateFullHashBytesPerFile;
    /// At least 1 MiB.
    std::int64_t maximumDuplicateHashBytes;

    friend bool operator==(const InsightConfiguration&, const InsightConfiguration&) = default;
};

} // namespace CleanerCore
