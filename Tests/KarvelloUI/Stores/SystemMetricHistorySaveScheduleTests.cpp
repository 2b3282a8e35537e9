#include "KarvelloUI/Stores/SystemMetricHistorySaveSchedule.h"

#include <gtest/gtest.h>

namespace KarvelloUI {

namespace {

using enum SystemMetricHistorySaveSchedule::Decision;

} // namespace

TEST(SystemMetricHistorySaveSchedule, IgnoresASequenceThatIsNotAboveThoseBefore)
{
    SystemMetricHistorySaveSchedule schedule(100);
    EXPECT_EQ(schedule.accept(0, 0), ignore);
    EXPECT_EQ(schedule.accept(-1, 0), ignore);
    EXPECT_EQ(schedule.accept(5, 0), saveLater);
    EXPECT_EQ(schedule.accept(5, 1), ignore);
    EXPECT_EQ(schedule.accept(4, 1000), ignore);
    EXPECT_EQ(schedule.latestAcceptedSequence(), 5);
    EXPECT_EQ(schedule.accept(6, 99), saveLater);
}

TEST(SystemMetricHistorySaveSchedule, SavesAtOnceWhenTheFirstHasWaitedForTheMaximum)
{
    SystemMetricHistorySaveSchedule schedule(100);
    EXPECT_EQ(schedule.accept(1, 1000), saveLater);
    EXPECT_EQ(schedule.accept(2, 1099), saveLater);
    EXPECT_EQ(schedule.accept(3, 1100), saveNow);
    EXPECT_EQ(schedule.accept(4, 1199), saveLater) << "a new wait begins";
    EXPECT_EQ(schedule.accept(5, 1298), saveLater);
    EXPECT_EQ(schedule.accept(6, 1299), saveNow);
}

TEST(SystemMetricHistorySaveSchedule, PutsASaveOffWithoutEndForAMaximumOfZero)
{
    SystemMetricHistorySaveSchedule schedule(0);
    EXPECT_EQ(schedule.accept(1, 0), saveLater);
    EXPECT_EQ(schedule.accept(2, UINT64_MAX), saveLater);
}

TEST(SystemMetricHistorySaveSchedule, BeginsANewWaitAfterASave)
{
    SystemMetricHistorySaveSchedule schedule(100);
    EXPECT_EQ(schedule.accept(1, 0), saveLater);
    EXPECT_TRUE(schedule.finishWaiting(1));
    EXPECT_EQ(schedule.accept(2, 150), saveLater);
    schedule.flush(3);
    EXPECT_EQ(schedule.accept(4, 260), saveLater);
    EXPECT_EQ(schedule.accept(5, 359), saveLater);
    EXPECT_EQ(schedule.accept(6, 360), saveNow);
}

TEST(SystemMetricHistorySaveSchedule, SavesAfterTheDebounceOnlyTheNewest)
{
    SystemMetricHistorySaveSchedule schedule(100);
    EXPECT_EQ(schedule.accept(1, 0), saveLater);
    EXPECT_EQ(schedule.accept(2, 50), saveLater);
    EXPECT_FALSE(schedule.finishWaiting(1));
    EXPECT_EQ(schedule.accept(3, 100), saveNow) << "what was void did not end the wait";
}

TEST(SystemMetricHistorySaveSchedule, KeepsTheHighestSequenceOverAFlush)
{
    SystemMetricHistorySaveSchedule schedule(100);
    EXPECT_EQ(schedule.accept(5, 0), saveLater);
    schedule.flush(3);
    EXPECT_EQ(schedule.latestAcceptedSequence(), 5);
    schedule.flush(8);
    EXPECT_EQ(schedule.accept(8, 1), ignore);
}

} // namespace KarvelloUI
