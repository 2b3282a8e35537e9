#include "CleanerCore/Insights/InsightConfiguration.h"

#include <algorithm>

namespace CleanerCore {

namespace {

constexpr std::int64_t kMebibyte = 1'048'576;
constexpr double kSecondsPerDay = 86'400;

std::int64_t atLeast(std::int64_t minimum, std::int64_t value)
{
    return std::max(minimum, value);
}

/// What is no number counts as 0.
double forcedAge(double seconds)
{
    return seconds > 0 ? std::min(seconds, 30 * kSecondsPerDay) : 0;
}

} // namespace

InsightConfiguration::InsightConfiguration(const Fields& fields)
    : minimumLargeFileBytes(atLeast(1, fields.minimumLargeFileBytes))
    , minimumDuplicateFileBytes(atLeast(1, fields.minimumDuplicateFileBytes))
    , minimumReviewFileAge(forcedAge(fields.minimumReviewFileAge))
    , maximumVisitedItemsPerRoot(atLeast(128, fields.maximumVisitedItemsPerRoot))
    , maximumResultCount(atLeast(20, fields.maximumResultCount))
    , maximumRecentReviewSkippedItems(atLeast(0, fields.maximumRecentReviewSkippedItems))
    , maximumDuplicateHashFiles(atLeast(1, fields.maximumDuplicateHashFiles))
    , maximumDuplicateFullHashBytesPerFile(atLeast(kMebibyte, fields.maximumDuplicateFullHashBytesPerFile))
    , maximumDuplicateHashBytes(atLeast(kMebibyte, fields.maximumDuplicateHashBytes))
{
}

InsightConfiguration InsightConfiguration::standard()
{
    return InsightConfiguration({
        .minimumLargeFileBytes = 100 * kMebibyte,
        .minimumDuplicateFileBytes = 20 * kMebibyte,
        .minimumReviewFileAge = kSecondsPerDay,
        .maximumVisitedItemsPerRoot = 8'000,
        .maximumResultCount = 250,
        .maximumRecentReviewSkippedItems = 250,
        .maximumDuplicateHashFiles = 500,
        .maximumDuplicateFullHashBytesPerFile = 512 * kMebibyte,
        .maximumDuplicateHashBytes = 1'024 * kMebibyte,
    });
}

} // namespace CleanerCore
