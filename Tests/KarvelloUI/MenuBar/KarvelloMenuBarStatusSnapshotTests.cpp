#include "Tests/KarvelloUI/MenuBar/MenuBarSnapshots.h"
#include "Tests/Support/TemporaryTree.h"

#include <gtest/gtest.h>

namespace {

using namespace MenuBarTests;

KarvelloMenuBarStatusSnapshot ofDisk(std::int64_t total, std::int64_t free)
{
    return KarvelloMenuBarStatusSnapshot::of({7}, {.totalBytes = total, .freeBytes = free}, {.uptime = 3});
}

TEST(KarvelloMenuBarStatusSnapshot, KeepsWhatWasRead)
{
    const auto snapshot = ofDisk(100, 30);
    EXPECT_EQ(snapshot,
        (KarvelloMenuBarStatusSnapshot{
            .capturedAt = {7}, .diskTotalBytes = 100, .diskFreeBytes = 30, .systemSnapshot = {.uptime = 3}}));
}

TEST(KarvelloMenuBarStatusSnapshot, AReadingThatMakesNoSenseIsLimited)
{
    EXPECT_EQ(ofDisk(-5, 30).diskTotalBytes, 0);
    EXPECT_EQ(ofDisk(-5, 30).diskFreeBytes, 0);
    EXPECT_EQ(ofDisk(100, 130).diskFreeBytes, 100);
    EXPECT_EQ(ofDisk(100, -1).diskFreeBytes, 0);
}

TEST(KarvelloMenuBarStatusSnapshot, FractionsAreThoseOfTheTotal)
{
    const auto snapshot = withDisk(1000, 250);
    EXPECT_EQ(snapshot.diskUsedBytes(), 750);
    EXPECT_EQ(snapshot.diskUsedFraction(), 0.75);
    EXPECT_EQ(snapshot.diskFreeFraction(), 0.25);
    EXPECT_EQ(snapshot.memoryUsedFraction(), 0.25);
}

TEST(KarvelloMenuBarStatusSnapshot, WithoutACapacityTheFractionsAre0)
{
    for (const std::int64_t total : {0, -1}) {
        EXPECT_EQ(withDisk(total, 10).diskUsedBytes(), 0);
        EXPECT_EQ(withDisk(total, 10).diskUsedFraction(), 0);
        EXPECT_EQ(withDisk(total, 10).diskFreeFraction(), 0);
    }
}

TEST(KarvelloMenuBarStatusSnapshot, MoreFreeThanThereIsLeavesNothingUsed)
{
    EXPECT_EQ(withDisk(10, 20).diskUsedBytes(), 0);
    EXPECT_EQ(withDisk(10, 20).diskUsedFraction(), 0);
    EXPECT_EQ(withDisk(10, 20).diskFreeFraction(), 1);
    EXPECT_EQ(withDisk(10, -10).diskFreeFraction(), 0);
    EXPECT_EQ(withDisk(10, -10).diskUsedFraction(), 1);
}

TEST(KarvelloMenuBarStatusSnapshot, TheLoadIsNotLimited)
{
    auto snapshot = calm();
    snapshot.systemSnapshot.normalizedCPULoad = 3.5;
    EXPECT_EQ(snapshot.cpuLoadFraction(), 3.5);
}

TEST(KarvelloMenuBarStatusSnapshot, MemoryBeyondWhatThereIsCountsAsAllOfIt)
{
    auto snapshot = calm();
    snapshot.systemSnapshot.usedMemoryBytes = 32;
    EXPECT_EQ(snapshot.memoryUsedFraction(), 1);
    snapshot.systemSnapshot.physicalMemoryBytes = 0;
    EXPECT_EQ(snapshot.memoryUsedFraction(), 0);
}

TEST(KarvelloMenuBarStatusSnapshot, OfThisMachineHasADiskAndAMemory)
{
    const TestSupport::TemporaryTree tree;
    const auto before = Platform::Date::now();
    const auto snapshot = KarvelloMenuBarStatusSnapshot::current(tree.root());
    EXPECT_GE(snapshot.capturedAt, before);
    EXPECT_GT(snapshot.diskTotalBytes, 0);
    EXPECT_LE(snapshot.diskFreeBytes, snapshot.diskTotalBytes);
    EXPECT_GT(snapshot.systemSnapshot.physicalMemoryBytes, 0);
}

TEST(KarvelloMenuBarStatusSnapshot, AVolumeThatCannotBeReadHasNoCapacity)
{
    const TestSupport::TemporaryTree tree;
    const auto snapshot = KarvelloMenuBarStatusSnapshot::current(tree.url("missing/"));
    EXPECT_EQ(snapshot.diskTotalBytes, 0);
    EXPECT_EQ(snapshot.diskFreeBytes, 0);
}

} // namespace
