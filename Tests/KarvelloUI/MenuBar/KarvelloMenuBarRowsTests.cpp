#include "KarvelloUI/MenuBar/KarvelloMenuBarSystemMetrics.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarTriagePanel.h"
#include "Tests/KarvelloUI/MenuBar/MenuBarSnapshots.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace MenuBarTests;
using KarvelloUI::KarvelloMenuBarStrings;
using Destination = KarvelloUI::KarvelloDashboardLaunchDestination;
using Metrics = KarvelloUI::KarvelloMenuBarSystemMetrics;
using Panel = KarvelloUI::KarvelloMenuBarTriagePanel;
using testing::ElementsAre;
using testing::IsEmpty;

const KarvelloMenuBarStrings kStrings{{KarvelloUI::AppLanguage::english}};

TEST(KarvelloMenuBarTriagePanel, HasNoRowsWithoutReminders)
{
    EXPECT_THAT(Panel::rows({}, strained(), kStrings), IsEmpty());
}

TEST(KarvelloMenuBarTriagePanel, HasARowForEachReminderInTheirOrder)
{
    const std::vector reminders{kLowDisk, kHighMemory, kCriticalHeat};
    EXPECT_THAT(Panel::rows(reminders, strained("Critical"), kStrings),
        ElementsAre(Panel::Row{.kind = Kind::lowDiskSpace,
                        .symbol = "internaldrive",
                        .detail = "Free space 5% · 50 bytes left",
                        .buttonTitle = "Review Cleanup",
                        .destination = Destination::cleanupReview,
                        .severity = Severity::warning},
            Panel::Row{.kind = Kind::highMemoryPressure,
                .symbol = "memorychip",
                .detail = "High memory pressure · review running apps in Memory Analysis",
                .buttonTitle = "Open Memory Analysis",
                .destination = Destination::memoryReview,
                .severity = Severity::warning},
            Panel::Row{.kind = Kind::thermalPressure,
                .symbol = "thermometer.medium",
                .detail = "Thermal pressure Critical · pause heavy work",
                .buttonTitle = "Review System Status",
                .destination = Destination::systemReview,
                .severity = Severity::critical}));
}

TEST(KarvelloMenuBarSystemMetrics, TellProcessorsMemoryAndHeat)
{
    EXPECT_THAT(Metrics::metrics(calm(), kStrings),
        ElementsAre(Metrics::Metric{.symbol = "cpu.fill", .title = "CPU", .value = "25%", .barValue = 0.25},
            Metrics::Metric{.symbol = "memorychip.fill", .title = "Memory", .value = "25%", .barValue = 0.25},
            Metrics::Metric{.symbol = "thermometer.medium", .title = "Thermal", .value = "Nominal", .barValue = 0.22}));
}

TEST(KarvelloMenuBarSystemMetrics, MemoryThatIsNotKnownIs0Percent)
{
    auto snapshot = calm();
    snapshot.systemSnapshot.physicalMemoryBytes = 0;
    EXPECT_EQ(Metrics::metrics(snapshot, kStrings)[1].value, "0%");
}

TEST(KarvelloMenuBarSystemMetrics, TheBarOfTheHeatFollowsTheState)
{
    EXPECT_EQ(Metrics::thermalBarValue("Critical"), 1.0);
    EXPECT_EQ(Metrics::thermalBarValue("Serious"), 0.76);
    EXPECT_EQ(Metrics::thermalBarValue("Fair"), 0.48);
    EXPECT_EQ(Metrics::thermalBarValue("Nominal"), 0.22);
    EXPECT_EQ(Metrics::thermalBarValue("Unknown"), 0.0);
    EXPECT_EQ(Metrics::thermalBarValue(""), 0.0);
}

} // namespace
