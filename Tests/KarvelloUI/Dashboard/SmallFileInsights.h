#pragma once

#include "CleanerCore/Insights/InsightConfiguration.h"

namespace DashboardTests {

/// With limits that files of some kilobytes reach, so that a home of a test has something of everything.
inline CleanerCore::InsightConfiguration insightsOfSmallFiles()
{
    return CleanerCore::InsightConfiguration({
        .minimumLargeFileBytes = 48 << 10,
        .minimumDuplicateFileBytes = 16 << 10,
        .minimumReviewFileAge = 86'400,
        .maximumVisitedItemsPerRoot = 1000,
        .maximumResultCount = 100,
        .maximumRecentReviewSkippedItems = 10,
        .maximumDuplicateHashFiles = 100,
        .maximumDuplicateFullHashBytesPerFile = 1 << 20,
        .maximumDuplicateHashBytes = 16 << 20,
    });
}

} // namespace DashboardTests
