#include "KarvelloUI/Advisors/DiskCapacitySnapshot.h"

#include "Tests/Support/TemporaryTree.h"

#include <gtest/gtest.h>

#include <limits>

namespace KarvelloUI {
namespace {

TEST(DiskCapacitySnapshot, ReadsTheVolumeOfAFolder)
{
    const TestSupport::TemporaryTree tree;
    const auto snapshot = DiskCapacitySnapshot::current(tree.root());
    EXPECT_GT(snapshot.totalBytes, 0);
    EXPECT_GE(snapshot.freeBytes, 0);
    EXPECT_LE(snapshot.freeBytes, snapshot.totalBytes);
}

TEST(DiskCapacitySnapshot, IsEmptyForAFolderThatIsNotThere)
{
    const TestSupport::TemporaryTree tree;
    EXPECT_EQ(DiskCapacitySnapshot::current(tree.root().appending("nowhere")), DiskCapacitySnapshot{});
}

TEST(DiskCapacitySnapshot, KeepsToItsRangesWhateverIsRead)
{
    constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
    constexpr auto kLeast = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ((DiskCapacitySnapshot{.totalBytes = 100, .freeBytes = 30}.usedBytes()), 70);
    EXPECT_EQ((DiskCapacitySnapshot{.totalBytes = 100, .freeBytes = 130}.usedBytes()), 0);
    EXPECT_EQ((DiskCapacitySnapshot{.totalBytes = kMost, .freeBytes = kLeast}.usedBytes()), kMost);
    EXPECT_EQ((DiskCapacitySnapshot{.totalBytes = 100, .freeBytes = 130}.freeFraction()), 1.0);
    EXPECT_EQ((DiskCapacitySnapshot{.totalBytes = 100, .freeBytes = -1}.freeFraction()), 0.0);
    EXPECT_EQ((DiskCapacitySnapshot{.totalBytes = 0, .freeBytes = 5}.freeFraction()), 0.0);
}

TEST(DiskCapacitySnapshot, IsLowFromTwelvePercentDown)
{
    EXPECT_TRUE((DiskCapacitySnapshot{.totalBytes = 100, .freeBytes = 12}.isLow()));
    EXPECT_TRUE((DiskCapacitySnapshot{.totalBytes = 100, .freeBytes = 0}.isLow()));
    EXPECT_FALSE((DiskCapacitySnapshot{.totalBytes = 1'000'000, .freeBytes = 120'001}.isLow()));
    EXPECT_FALSE((DiskCapacitySnapshot{}.isLow()));
}

} // namespace
} // namespace KarvelloUI
