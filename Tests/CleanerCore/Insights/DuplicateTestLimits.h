#pragma once

#include "CleanerCore/Insights/InsightConfiguration.h"

#include <cstdint>
#include <limits>

namespace CleanerCore {

/// No limit in the way; a test sets those that it is about.
inline InsightConfiguration duplicateTestLimits()
{
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    return InsightConfiguration({
        .minimumLargeFileBytes = 1,
        .minimumDuplicateFileBytes = 1,
        .minimumReviewFileAge = 0,
        .maximumVisitedItemsPerRoot = most,
        .maximumResultCount = 250,
        .maximumRecentReviewSkippedItems = 0,
        .maximumDuplicateHashFiles = most,
        .maximumDuplicateFullHashBytesPerFile = most,
        .maximumDuplicateHashBytes = most,
    });
}

} // namespace CleanerCore
