#include "KarvelloUI/MenuBar/KarvelloMenuBarReminderPolicy.h"
#include "Tests/KarvelloUI/MenuBar/MenuBarSnapshots.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace MenuBarTests;
using KarvelloUI::KarvelloMenuBarReminderPolicy;
using Platform::Date;
using testing::ElementsAre;
using testing::IsEmpty;

const KarvelloMenuBarReminderPolicy kPolicy;

TEST(KarvelloMenuBarReminderPolicy, RemindsAtATenthAndOnceInSixHours)
{
    EXPECT_EQ(kPolicy.lowDiskFreeFraction, 0.1);
    EXPECT_EQ(kPolicy.minimumInterval, 6 * 3600);
}

TEST(KarvelloMenuBarReminderPolicy, ACalmMachineCallsForNothing)
{
    EXPECT_THAT(kPolicy.reminders(calm()), IsEmpty());
}

TEST(KarvelloMenuBarReminderPolicy, Exactly10PercentFreeIsLow)
{
    EXPECT_THAT(kPolicy.reminders(withDisk(1000, 100)), ElementsAre(kLowDisk));
    EXPECT_THAT(kPolicy.reminders(withDisk(1000, 101)), IsEmpty());
}

TEST(KarvelloMenuBarReminderPolicy, AFullDiskIsNoMoreThanAWarning)
{
    EXPECT_THAT(kPolicy.reminders(withDisk(1000, 0)), ElementsAre(kLowDisk));
}

TEST(KarvelloMenuBarReminderPolicy, ATotalOf0IsNotLow)
{
    EXPECT_THAT(kPolicy.reminders(withDisk(0, 0)), IsEmpty());
    EXPECT_THAT(kPolicy.reminders(withDisk(1, 0)), ElementsAre(kLowDisk));
}

TEST(KarvelloMenuBarReminderPolicy, OnlyTheWordHighRaisesAMemoryReminder)
{
    EXPECT_THAT(kPolicy.reminders(withMemoryPressure("High")), ElementsAre(kHighMemory));
    for (const auto* const pressure : {"Critical", "high", "HIGH", "High ", "Moderate", "Unknown", ""}) {
        EXPECT_THAT(kPolicy.reminders(withMemoryPressure(pressure)), IsEmpty()) << pressure;
    }
}

TEST(KarvelloMenuBarReminderPolicy, FairHeatRaisesNothing)
{
    for (const auto* const state : {"Fair", "Nominal", "Unknown", "serious", ""}) {
        EXPECT_THAT(kPolicy.reminders(withHeat(state)), IsEmpty()) << state;
    }
}

TEST(KarvelloMenuBarReminderPolicy, OnlyCriticalHeatIsCritical)
{
    EXPECT_THAT(kPolicy.reminders(withHeat("Serious")), ElementsAre(kSeriousHeat));
    EXPECT_THAT(kPolicy.reminders(withHeat("Critical")), ElementsAre(kCriticalHeat));
}

TEST(KarvelloMenuBarReminderPolicy, RemindersStandInTheOrderOfTheirKinds)
{
    EXPECT_THAT(kPolicy.reminders(strained()), ElementsAre(kLowDisk, kHighMemory, kSeriousHeat));
}

TEST(KarvelloMenuBarReminderPolicy, TheThresholdIsThePolicys)
{
    const KarvelloMenuBarReminderPolicy half{.lowDiskFreeFraction = 0.5};
    EXPECT_THAT(half.reminders(calm()), ElementsAre(kLowDisk));
}

TEST(KarvelloMenuBarReminderPolicy, ADeliveryMustLieBackByTheInterval)
{
    constexpr Date now{800'000'000};
    EXPECT_TRUE(kPolicy.canDeliver(std::nullopt, now));
    EXPECT_FALSE(kPolicy.canDeliver(now.addingSeconds(-21599), now));
    EXPECT_TRUE(kPolicy.canDeliver(now.addingSeconds(-21600), now));
    EXPECT_TRUE(kPolicy.canDeliver(now.addingSeconds(-100'000), now));
}

TEST(KarvelloMenuBarReminderPolicy, ADeliveryInTheFutureAllowsNone)
{
    constexpr Date now{800'000'000};
    EXPECT_FALSE(kPolicy.canDeliver(now.addingSeconds(1), now));
    EXPECT_FALSE(kPolicy.canDeliver(now.addingSeconds(1e9), now));
}

TEST(KarvelloMenuBarReminder, SeveritiesRise)
{
    EXPECT_LT(Severity::notice, Severity::warning);
    EXPECT_LT(Severity::warning, Severity::critical);
    EXPECT_EQ(static_cast<int>(Severity::notice), 0);
    EXPECT_EQ(static_cast<int>(Severity::critical), 2);
}

} // namespace
