#include "KarvelloUI/Stores/SystemMetricHistory.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace KarvelloUI {

namespace {

using CleanerCore::SystemResourceSnapshot;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

SystemResourceSnapshot snapshot(double load)
{
    return {.physicalMemoryBytes = 1000, .usedMemoryBytes = 250, .normalizedCPULoad = load, .thermalState = "Fair"};
}

/// 0.00, 0.01 ...
std::vector<double> series(int count)
{
    std::vector<double> values;
    for (int index = 0; index < count; ++index) {
        values.push_back(index / 100.0);
    }
    return values;
}

std::vector<double> last(std::vector<double> values, std::ptrdiff_t count)
{
    values.erase(values.begin(), values.end() - count);
    return values;
}

void expectEmpty(const SystemMetricHistory& history)
{
    EXPECT_THAT(history.cpuLoad(), IsEmpty());
    EXPECT_THAT(history.memoryUsage(), IsEmpty());
    EXPECT_THAT(history.thermalPressure(), IsEmpty());
}

} // namespace

TEST(SystemMetricHistory, DropsTheOldestOfEachSeriesForTheTwentyFifthSample)
{
    SystemMetricHistory history;
    for (int index = 0; index < 25; ++index) {
        auto sample = snapshot(index / 100.0);
        sample.usedMemoryBytes = static_cast<std::uint64_t>(10 * index);
        sample.thermalState = index == 0 ? "Critical" : "Nominal";
        history.append(sample);
    }
    EXPECT_EQ(history.cpuLoad(), last(series(25), 24));
    EXPECT_EQ(history.memoryUsage(), last(series(25), 24));
    EXPECT_EQ(history.thermalPressure(), std::vector(24, 0.18));
}

TEST(SystemMetricHistory, LimitsALoadThatIsNoFraction)
{
    SystemMetricHistory history;
    for (const double load : {kNaN, 1.5, -0.5, kInfinity, -kInfinity, 0.25}) {
        history.append(snapshot(load));
    }
    EXPECT_THAT(history.cpuLoad(), ElementsAre(0, 1, 0, 1, 0, 0.25));
}

TEST(SystemMetricHistory, LimitsAndTrimsWhatItIsMadeOf)
{
    const SystemMetricHistory history({kNaN, 1.5, -1, kInfinity, -kInfinity}, series(40), {});
    EXPECT_THAT(history.cpuLoad(), ElementsAre(0, 1, 0, 1, 0));
    EXPECT_EQ(history.memoryUsage(), last(series(40), 24));
    EXPECT_THAT(history.thermalPressure(), IsEmpty());
}

TEST(SystemMetricHistory, TakesTheShareOfMemoryThatIsUsed)
{
    constexpr auto most = std::numeric_limits<std::uint64_t>::max();
    SystemMetricHistory history;
    for (const auto& [used, physical] : std::vector<std::pair<std::uint64_t, std::uint64_t>>{
             {250, 1000}, {2000, 1000}, {5, 0}, {0, 0}, {most, most}, {0, most}}) {
        history.append({.physicalMemoryBytes = physical, .usedMemoryBytes = used});
    }
    EXPECT_THAT(history.memoryUsage(), ElementsAre(0.25, 1, 0, 0, 1, 0));
}

TEST(SystemMetricHistory, GivesEachThermalStateItsHeight)
{
    EXPECT_EQ(SystemMetricHistory::thermalPressure("Critical"), 1.0);
    EXPECT_EQ(SystemMetricHistory::thermalPressure("Serious"), 0.82);
    EXPECT_EQ(SystemMetricHistory::thermalPressure("Fair"), 0.48);
    EXPECT_EQ(SystemMetricHistory::thermalPressure("Nominal"), 0.18);
    for (const auto* const other : {"Unknown", "", "critical"}) {
        EXPECT_EQ(SystemMetricHistory::thermalPressure(other), 0.1) << other;
    }
}

TEST(SystemMetricHistory, KeepsNoMoreThanTheLimitOfAnAppend)
{
    SystemMetricHistory history(series(10), series(10), series(10));
    history.append(snapshot(0.5), 3);
    EXPECT_THAT(history.cpuLoad(), ElementsAre(0.08, 0.09, 0.5));
    EXPECT_THAT(history.memoryUsage(), ElementsAre(0.08, 0.09, 0.25));
    EXPECT_THAT(history.thermalPressure(), ElementsAre(0.08, 0.09, 0.48));
    for (int index = 0; index < 40; ++index) {
        history.append(snapshot(0.5), 1000);
    }
    EXPECT_EQ(history.cpuLoad().size(), 24);
}

TEST(SystemMetricHistory, IsEmptyAfterALimitBelowOne)
{
    for (const std::int64_t limit : {std::int64_t{0}, std::int64_t{-1}, std::numeric_limits<std::int64_t>::min()}) {
        SystemMetricHistory history(series(10), series(10), series(10));
        history.append(snapshot(0.5), limit);
        expectEmpty(history);
        SystemMetricHistory trimmed(series(10), series(10), series(10));
        trimmed.trim(limit);
        expectEmpty(trimmed);
    }
}

TEST(SystemMetricHistory, TrimsEachSeriesByItself)
{
    SystemMetricHistory history(series(10), series(2), {});
    history.trim(3);
    EXPECT_THAT(history.cpuLoad(), ElementsAre(0.07, 0.08, 0.09));
    EXPECT_THAT(history.memoryUsage(), ElementsAre(0.0, 0.01));
    EXPECT_THAT(history.thermalPressure(), IsEmpty());
}

TEST(SystemMetricHistory, ReadsAStoredHistoryAsIfItWereMadeAnew)
{
    const auto read = Platform::decodeJSON<SystemMetricHistory>(R"({"cpuLoad":[-1,2,0.5],"other":true})");
    ASSERT_TRUE(read);
    EXPECT_THAT(read->cpuLoad(), ElementsAre(0, 1, 0.5));
    EXPECT_THAT(read->memoryUsage(), IsEmpty());
    EXPECT_THAT(read->thermalPressure(), IsEmpty());
}

} // namespace KarvelloUI
