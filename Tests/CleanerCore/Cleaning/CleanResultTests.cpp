#include "CleanerCore/Cleaning/CleanResult.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using CleanerCore::CleanedItem;
using CleanerCore::CleanResult;
using CleanerCore::CleanupCandidate;

CleanupCandidate candidate(std::int64_t sizeBytes)
{
    return CleanupCandidate({.url = Platform::FileURL("/u/a"), .sizeBytes = sizeBytes});
}

CleanedItem cleaned(std::int64_t sizeBytes)
{
    CleanedItem item;
    item.candidate = candidate(sizeBytes);
    return item;
}

TEST(CleanResult, ReclaimsTheBytesOfTheCleanedItemsOnly)
{
    EXPECT_EQ(CleanResult().reclaimedBytes(), 0);
    const CleanResult result{
        .cleanedItems = {cleaned(3), cleaned(std::int64_t{1} << 40)},
        .failedItems = {{.candidate = candidate(100), .reason = ""}},
        .wasCancelled = false,
    };
    EXPECT_EQ(result.reclaimedBytes(), (std::int64_t{1} << 40) + 3);
}

TEST(CleanResultDeathTest, StopsTheProgramWhenTheSumOverflows)
{
    CleanResult result;
    result.cleanedItems = {cleaned(std::numeric_limits<std::int64_t>::max()), cleaned(1)};
    EXPECT_DEATH((void)result.reclaimedBytes(), "overflow");
}

} // namespace
