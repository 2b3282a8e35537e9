#include "CleanerCore/Insights/SystemResourceSnapshot.h"

#include "CleanerCore/Insights/CPUUsageSampler.h"
#include "CleanerCore/Insights/SystemResourceCoding.h"
#include "Tests/CleanerCore/Insights/FakeSystemStatistics.h"

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <unordered_set>

namespace {

using CleanerCore::CPUUsageSampler;
using CleanerCore::SystemResourceSnapshot;
using InsightTests::FakeSystemStatistics;
using Platform::ThermalState;

class SystemResourceSnapshotTest : public testing::Test {
protected:
    SystemResourceSnapshot take() { return SystemResourceSnapshot::current(m_machine, m_sampler, {700}); }

    std::string pressureAt(std::uint64_t used)
    {
        m_machine.used = used;
        return take().memoryPressure;
    }

    FakeSystemStatistics m_machine;
    CPUUsageSampler m_sampler;
};

SystemResourceSnapshot sample()
{
    return {.capturedAt = {1.5},
        .physicalMemoryBytes = UINT64_MAX,
        .usedMemoryBytes = 12,
        .memoryPressure = "High",
        .cpuLoadAverage = 1.25,
        .normalizedCPULoad = 0.5,
        .processorCount = 8,
        .activeProcessorCount = 6,
        .thermalState = "Fair",
        .uptime = 99.5,
        .temperatureDetail = "none"};
}

TEST_F(SystemResourceSnapshotTest, TakesEachFigureFromItsSource)
{
    m_machine.load = 2;
    m_machine.activeProcessors = 4;
    m_machine.thermal = ThermalState::serious;
    EXPECT_EQ(take(),
        (SystemResourceSnapshot{.capturedAt = {700},
            .physicalMemoryBytes = 1000,
            .usedMemoryBytes = 500,
            .memoryPressure = "Normal",
            .cpuLoadAverage = 2,
            .normalizedCPULoad = 0.5,
            .processorCount = 8,
            .activeProcessorCount = 4,
            .thermalState = "Serious",
            .uptime = 60,
            .temperatureDetail =
                "Raw sensor temperatures require private/privileged SMC access. Karvello reports Apple's public "
                "thermal pressure state instead."}));
}

TEST_F(SystemResourceSnapshotTest, PressureTurnsAtExactlySevenTenthsAndEightyFiveHundredths)
{
    EXPECT_EQ(pressureAt(699), "Normal");
    EXPECT_EQ(pressureAt(700), "Moderate");
    EXPECT_EQ(pressureAt(849), "Moderate");
    EXPECT_EQ(pressureAt(850), "High");
}

TEST_F(SystemResourceSnapshotTest, UsedMemoryIsCappedAtWhatThereIs)
{
    m_machine.used = 1001;
    const auto snapshot = take();
    EXPECT_EQ(snapshot.usedMemoryBytes, 1000U);
    EXPECT_EQ(snapshot.memoryPressure, "High");
    EXPECT_EQ(snapshot.freeMemoryBytes(), 0U);
}

TEST_F(SystemResourceSnapshotTest, UsedMemoryThatCannotBeReadIsNoneAndNormal)
{
    m_machine.used = std::nullopt;
    const auto snapshot = take();
    EXPECT_EQ(snapshot.usedMemoryBytes, 0U);
    EXPECT_EQ(snapshot.memoryPressure, "Normal");
}

TEST_F(SystemResourceSnapshotTest, PressureIsUnknownWithoutPhysicalMemoryAlone)
{
    m_machine.physical = 0;
    EXPECT_EQ(take().memoryPressure, "Unknown");
    m_machine.physical = std::nullopt;
    EXPECT_EQ(take().memoryPressure, "Unknown");
    EXPECT_EQ(take().usedMemoryBytes, 0U);
}

TEST_F(SystemResourceSnapshotTest, NoLoadAverageIsBelowZero)
{
    m_machine.load = -1;
    EXPECT_EQ(take().cpuLoadAverage, 0);
    m_machine.load = std::nullopt;
    EXPECT_EQ(take().cpuLoadAverage, 0);
}

TEST_F(SystemResourceSnapshotTest, ALoadOfTwelveOnEightProcessorsIsFull)
{
    m_machine.load = 12;
    const auto snapshot = take();
    EXPECT_EQ(snapshot.cpuLoadAverage, 12);
    EXPECT_EQ(snapshot.normalizedCPULoad, 1);
}

TEST_F(SystemResourceSnapshotTest, AtLeastOneProcessorIsActive)
{
    m_machine.activeProcessors = 0;
    m_machine.processors = 0;
    m_machine.load = 0.25;
    const auto snapshot = take();
    EXPECT_EQ(snapshot.activeProcessorCount, 1);
    EXPECT_EQ(snapshot.processorCount, 0);
    EXPECT_EQ(snapshot.normalizedCPULoad, 0.25);
}

TEST_F(SystemResourceSnapshotTest, EachThermalStateHasItsWord)
{
    const std::pair<ThermalState, std::string_view> words[]{{ThermalState::nominal, "Nominal"},
        {ThermalState::fair, "Fair"}, {ThermalState::serious, "Serious"}, {ThermalState::critical, "Critical"},
        {ThermalState::unknown, "Unknown"}};
    for (const auto& [state, word] : words) {
        m_machine.thermal = state;
        EXPECT_EQ(take().thermalState, word);
    }
}

TEST_F(SystemResourceSnapshotTest, TheFirstLookFallsBackAndTheNextCoversTheTimeBetween)
{
    m_machine.load = 2;
    m_machine.ticks = {.user = 100, .system = 10, .idle = 1000, .nice = 1};
    EXPECT_EQ(take().normalizedCPULoad, 0.25);
    m_machine.ticks = {.user = 120, .system = 15, .idle = 1070, .nice = 6};
    EXPECT_EQ(take().normalizedCPULoad, 0.3);
}

TEST_F(SystemResourceSnapshotTest, TwoLooksWithinOneTickFallBack)
{
    m_machine.load = 2;
    m_machine.ticks = {.user = 100, .system = 10, .idle = 1000, .nice = 0};
    EXPECT_EQ(take().normalizedCPULoad, 0.25);
    EXPECT_EQ(take().normalizedCPULoad, 0.25);
    m_machine.ticks->user += 10;
    EXPECT_EQ(take().normalizedCPULoad, 1);
}

TEST_F(SystemResourceSnapshotTest, TicksThatCannotBeReadKeepTheLookBefore)
{
    m_machine.load = 2;
    m_machine.ticks = {.user = 100, .system = 0, .idle = 100, .nice = 0};
    EXPECT_EQ(take().normalizedCPULoad, 0.25);
    m_machine.ticks = std::nullopt;
    EXPECT_EQ(take().normalizedCPULoad, 0.25);
    m_machine.ticks = {.user = 103, .system = 0, .idle = 101, .nice = 0};
    EXPECT_EQ(take().normalizedCPULoad, 0.75);
}

TEST_F(SystemResourceSnapshotTest, WorkThatShrankIsNoWork)
{
    m_machine.ticks = {.user = 100, .system = 50, .idle = 100, .nice = 0};
    (void)take();
    m_machine.ticks = {.user = 90, .system = 50, .idle = 200, .nice = 0};
    m_machine.load = 8;
    EXPECT_EQ(take().normalizedCPULoad, 0);
}

TEST_F(SystemResourceSnapshotTest, AnIdleCounterThatShrankGivesNoMoreThanAll)
{
    m_machine.ticks = {.user = 100, .system = 0, .idle = 100, .nice = 0};
    (void)take();
    m_machine.ticks = {.user = 150, .system = 0, .idle = 80, .nice = 0};
    EXPECT_EQ(take().normalizedCPULoad, 1);
}

TEST_F(SystemResourceSnapshotTest, ATotalThatShrankIsTheNewLookAllTheSame)
{
    m_machine.load = 2;
    m_machine.ticks = {.user = 100, .system = 0, .idle = 100, .nice = 0};
    (void)take();
    m_machine.ticks = {.user = 10, .system = 0, .idle = 10, .nice = 0};
    EXPECT_EQ(take().normalizedCPULoad, 0.25);
    m_machine.ticks = {.user = 11, .system = 0, .idle = 11, .nice = 0};
    EXPECT_EQ(take().normalizedCPULoad, 0.5);
}

TEST(SystemResourceSnapshot, TakesThisMachineByItself)
{
    const auto snapshot = SystemResourceSnapshot::current();
    EXPECT_GT(snapshot.physicalMemoryBytes, snapshot.usedMemoryBytes);
    EXPECT_GT(snapshot.uptime, 0);
    EXPECT_NE(snapshot.memoryPressure, "Unknown");
}

TEST(SystemResourceSnapshot, FreeMemoryIsNeverBelowZero)
{
    auto snapshot = sample();
    EXPECT_EQ(snapshot.freeMemoryBytes(), UINT64_MAX - 12);
    snapshot.physicalMemoryBytes = 11;
    EXPECT_EQ(snapshot.freeMemoryBytes(), 0U);
}

TEST(SystemResourceSnapshot, IsTheSameAfterAWayThroughJSON)
{
    const auto json = Platform::encodeJSON(sample());
    ASSERT_TRUE(json);
    EXPECT_NE(json->find("\"physicalMemoryBytes\" : 18446744073709551615"), std::string::npos) << *json;
    EXPECT_EQ(Platform::decodeJSON<SystemResourceSnapshot>(*json), sample());
}

TEST(SystemResourceSnapshot, NeedsEveryFieldInJSON)
{
    const auto json = Platform::encodeJSON(sample());
    ASSERT_TRUE(json);
    for (const auto* const field : {"capturedAt", "physicalMemoryBytes", "usedMemoryBytes", "memoryPressure",
             "cpuLoadAverage", "normalizedCPULoad", "processorCount", "activeProcessorCount", "thermalState", "uptime",
             "temperatureDetail"}) {
        auto lacking = *json;
        const auto place = lacking.find(fmt::format("\"{}\"", field));
        ASSERT_NE(place, std::string::npos) << field;
        lacking.replace(place + 1, 1, "?");
        EXPECT_FALSE(Platform::decodeJSON<SystemResourceSnapshot>(lacking)) << field;
    }
}

TEST(SystemResourceSnapshot, HashesByItsFields)
{
    auto other = sample();
    other.uptime = 100;
    const std::unordered_set<SystemResourceSnapshot> set{sample(), sample(), other};
    EXPECT_EQ(set.size(), 2U);
}

} // namespace
