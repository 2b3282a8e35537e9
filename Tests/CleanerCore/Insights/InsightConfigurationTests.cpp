#include "CleanerCore/Insights/InsightConfiguration.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace CleanerCore {

namespace {

InsightConfiguration withAll(std::int64_t value, double age)
{
    return InsightConfiguration({
        .minimumLargeFileBytes = value,
        .minimumDuplicateFileBytes = value,
        .minimumReviewFileAge = age,
        .maximumVisitedItemsPerRoot = value,
        .maximumResultCount = value,
        .maximumRecentReviewSkippedItems = value,
        .maximumDuplicateHashFiles = value,
        .maximumDuplicateFullHashBytesPerFile = value,
        .maximumDuplicateHashBytes = value,
    });
}

} // namespace

TEST(InsightConfiguration, RaisesWhatIsBelowItsRange)
{
    for (const std::int64_t value : {std::int64_t{-5}, std::numeric_limits<std::int64_t>::min()}) {
        const auto raised = withAll(value, -1);
        EXPECT_EQ(raised.minimumLargeFileBytes, 1);
        EXPECT_EQ(raised.minimumDuplicateFileBytes, 1);
        EXPECT_EQ(raised.minimumReviewFileAge, 0);
        EXPECT_EQ(raised.maximumVisitedItemsPerRoot, 128);
        EXPECT_EQ(raised.maximumResultCount, 20);
        EXPECT_EQ(raised.maximumRecentReviewSkippedItems, 0);
        EXPECT_EQ(raised.maximumDuplicateHashFiles, 1);
        EXPECT_EQ(raised.maximumDuplicateFullHashBytesPerFile, 1'048'576);
        EXPECT_EQ(raised.maximumDuplicateHashBytes, 1'048'576);
    }
    EXPECT_EQ(withAll(5, 0).maximumResultCount, 20);
}

TEST(InsightConfiguration, KeepsWhatIsInItsRange)
{
    const auto kept = withAll(2'000'000, 2'592'000);
    EXPECT_EQ(kept.minimumLargeFileBytes, 2'000'000);
    EXPECT_EQ(kept.minimumReviewFileAge, 2'592'000);
    EXPECT_EQ(kept.maximumVisitedItemsPerRoot, 2'000'000);
    EXPECT_EQ(kept.maximumResultCount, 2'000'000);
    EXPECT_EQ(kept.maximumDuplicateHashBytes, 2'000'000);
}

TEST(InsightConfiguration, BoundsTheAge)
{
    EXPECT_EQ(withAll(1, 2'592'001).minimumReviewFileAge, 2'592'000);
    EXPECT_EQ(withAll(1, std::numeric_limits<double>::infinity()).minimumReviewFileAge, 2'592'000);
    EXPECT_EQ(withAll(1, std::nan("")).minimumReviewFileAge, 0);
}

TEST(InsightConfiguration, IsTheApplicationsUnlessToldOtherwise)
{
    const auto standard = InsightConfiguration::standard();
    EXPECT_EQ(standard.minimumLargeFileBytes, 104'857'600);
    EXPECT_EQ(standard.minimumDuplicateFileBytes, 20'971'520);
    EXPECT_EQ(standard.minimumReviewFileAge, 86'400);
    EXPECT_EQ(standard.maximumVisitedItemsPerRoot, 8'000);
    EXPECT_EQ(standard.maximumResultCount, 250);
    EXPECT_EQ(standard.maximumRecentReviewSkippedItems, 250);
    EXPECT_EQ(standard.maximumDuplicateHashFiles, 500);
    EXPECT_EQ(standard.maximumDuplicateFullHashBytesPerFile, 536'870'912);
    EXPECT_EQ(standard.maximumDuplicateHashBytes, 1'073'741'824);
}

} // namespace CleanerCore
