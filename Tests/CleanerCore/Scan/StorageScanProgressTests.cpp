#include "CleanerCore/Scan/StorageScanProgress.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace CleanerCore {

namespace {

double normalizedFraction(double fraction)
{
    return StorageScanProgress{.fractionCompleted = fraction}.normalized().fractionCompleted;
}

int percentageOf(double fraction)
{
    return StorageScanProgress{.fractionCompleted = fraction}.percentage();
}

} // namespace

TEST(StorageScanProgress, IsEmptyAtFirst)
{
    const auto progress = StorageScanProgress::empty();
    EXPECT_FALSE(progress.currentURL);
    EXPECT_FALSE(progress.totalItemsInCurrentLocation);
    EXPECT_EQ(progress.completedItems, 0);
    EXPECT_EQ(progress.fractionCompleted, 0);
    EXPECT_EQ(progress.percentage(), 0);
    EXPECT_EQ(progress.normalized(), progress);
}

TEST(StorageScanProgress, MakesNegativeCountsZero)
{
    const StorageScanProgress negative{.completedLocations = -1,
        .totalLocations = -2,
        .completedItems = -3,
        .completedItemsInCurrentLocation = -4,
        .totalItemsInCurrentLocation = -5,
        .foundCandidates = -6,
        .skippedItems = std::numeric_limits<std::int64_t>::min()};
    EXPECT_EQ(negative.normalized(), StorageScanProgress{.totalItemsInCurrentLocation = 0});
}

TEST(StorageScanProgress, KeepsWhatIsInRange)
{
    const StorageScanProgress progress{.currentURL = Platform::FileURL("/a"),
        .completedLocations = 1,
        .totalLocations = 2,
        .completedItems = 3,
        .completedItemsInCurrentLocation = 4,
        .totalItemsInCurrentLocation = 5,
        .foundCandidates = 6,
        .skippedItems = 7,
        .fractionCompleted = 0.5};
    EXPECT_EQ(progress.normalized(), progress);
    EXPECT_FALSE(StorageScanProgress{}.normalized().totalItemsInCurrentLocation);
}

TEST(StorageScanProgress, ClampsTheFraction)
{
    EXPECT_EQ(normalizedFraction(1.5), 1.0);
    EXPECT_EQ(normalizedFraction(-0.2), 0.0);
    EXPECT_EQ(normalizedFraction(0.25), 0.25);
    EXPECT_EQ(normalizedFraction(std::numeric_limits<double>::infinity()), 1.0);
    EXPECT_EQ(normalizedFraction(std::nan("")), 0.0);
}

TEST(StorageScanProgress, RoundsThePercentageToTheNearest)
{
    EXPECT_EQ(percentageOf(0.004), 0);
    EXPECT_EQ(percentageOf(0.125), 13);
    EXPECT_EQ(percentageOf(1.0 / 3), 33);
    EXPECT_EQ(percentageOf(0.996), 100);
    EXPECT_EQ(percentageOf(7), 100);
    EXPECT_EQ(percentageOf(std::nan("")), 0);
}

} // namespace CleanerCore
