#include "KarvelloUI/Dashboard/MacCleanerDashboardDependencies.h"

#include <gtest/gtest.h>

namespace KarvelloUI {

TEST(MacCleanerDashboardDependencies, ScanInsightsWithTheApplicationsOwnLimits)
{
    const auto configuration = MacCleanerDashboardDependencies::insightConfiguration();
    EXPECT_EQ(configuration.minimumLargeFileBytes, 104'857'600);
    EXPECT_EQ(configuration.minimumDuplicateFileBytes, 20'971'520);
    EXPECT_EQ(configuration.minimumReviewFileAge, 86'400.0);
    EXPECT_EQ(configuration.maximumVisitedItemsPerRoot, 8'000);
    EXPECT_EQ(configuration.maximumResultCount, 250);
    EXPECT_EQ(configuration.maximumRecentReviewSkippedItems, 250);
    EXPECT_EQ(configuration.maximumDuplicateHashFiles, 500);
    EXPECT_EQ(configuration.maximumDuplicateFullHashBytesPerFile, 536'870'912);
    EXPECT_EQ(configuration.maximumDuplicateHashBytes, 1'073'741'824);
}

} // namespace KarvelloUI
