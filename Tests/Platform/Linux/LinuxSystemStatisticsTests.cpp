#include "Platform/Linux/LinuxSystemStatistics.h"

#include "Tests/Support/TemporaryTree.h"

#include <fstream>
#include <gtest/gtest.h>
#include <string_view>

namespace {

using Platform::CPUTicks;
using Platform::LinuxSystemStatistics;
using TestSupport::TemporaryTree;

class LinuxSystemStatisticsTest : public testing::Test {
protected:
    LinuxSystemStatistics statistics() const { return LinuxSystemStatistics(m_tree.path("proc"), m_tree.path("sys")); }

    /// The text of a file that the tree has already.
    void rewrite(std::string_view path, std::string_view text) { std::ofstream(m_tree.path(path)) << text; }

    TemporaryTree m_tree{"proc/\nsys/\n"};
};

TEST_F(LinuxSystemStatisticsTest, CountsAsUsedWhatIsNotAvailable)
{
    m_tree.add(R"(proc/meminfo text="MemTotal:  1000 kB\nMemFree:  10 kB\nMemAvailable:  400 kB\nCached:  390 kB\n")");
    EXPECT_EQ(statistics().physicalMemory(), 1000U * 1024);
    EXPECT_EQ(statistics().usedMemory(), 600U * 1024);
}

TEST_F(LinuxSystemStatisticsTest, MoreAvailableMemoryThanThereIsIsNoneUsed)
{
    m_tree.add(R"(proc/meminfo text="MemTotal: 1000 kB\nMemAvailable: 1001 kB\n")");
    EXPECT_EQ(statistics().usedMemory(), 0U);
}

TEST_F(LinuxSystemStatisticsTest, TellsNothingOfMemoryThatItCannotRead)
{
    EXPECT_EQ(statistics().physicalMemory(), std::nullopt);
    EXPECT_EQ(statistics().usedMemory(), std::nullopt);
    m_tree.add("proc/meminfo");
    rewrite("proc/meminfo", "MemTotal: 1000 kB\nMemFree: 10 kB\n");
    EXPECT_EQ(statistics().physicalMemory(), 1000U * 1024);
    EXPECT_EQ(statistics().usedMemory(), std::nullopt);
    rewrite("proc/meminfo", "MemTotal: 18446744073709551615 kB\nMemAvailable: many kB\n");
    EXPECT_EQ(statistics().physicalMemory(), std::nullopt);
    EXPECT_EQ(statistics().usedMemory(), std::nullopt);
}

TEST_F(LinuxSystemStatisticsTest, SumsTheCountersByKindAndLeavesOutWhatIsCountedTwice)
{
    m_tree.add(R"(proc/stat text="cpu  1 20 300 4000 50000 600000 7000000 80000000 9 9\ncpu0 1 1 1 1\n")");
    EXPECT_EQ(statistics().cpuTicks(), (CPUTicks{.user = 1, .system = 87'600'300, .idle = 54'000, .nice = 20}));
}

TEST_F(LinuxSystemStatisticsTest, AWaitThatGoesBackIsToldAsItWas)
{
    const auto machine = statistics();
    m_tree.add(R"(proc/stat text="cpu 0 0 0 100 50\n")");
    EXPECT_EQ(machine.cpuTicks()->idle, 150U);
    rewrite("proc/stat", "cpu 0 0 0 110 40\n");
    EXPECT_EQ(machine.cpuTicks()->idle, 160U);
    rewrite("proc/stat", "cpu 0 0 0 110 60\n");
    EXPECT_EQ(machine.cpuTicks()->idle, 170U);
}

TEST_F(LinuxSystemStatisticsTest, TellsNoTicksOfALineThatIsNoneOfTheProcessors)
{
    m_tree.add("proc/stat");
    for (const auto* const text : {"", "cpu0 1 2 3 4\n", "cpu 1 2 3\n", "cpu 1 2 x 4 5\n", "cpu 1 2 -3 4\n"}) {
        rewrite("proc/stat", text);
        EXPECT_EQ(statistics().cpuTicks(), std::nullopt) << text;
    }
    m_tree.remove("proc/stat");
    EXPECT_EQ(statistics().cpuTicks(), std::nullopt);
}

TEST_F(LinuxSystemStatisticsTest, ReadsTheLoadAndTheUptime)
{
    m_tree.add(R"(proc/loadavg text="3.21 2.84 1.61 4/114 25135\n")");
    m_tree.add(R"(proc/uptime text="819.39 358.44\n")");
    EXPECT_EQ(statistics().loadAverage(), 3.21);
    EXPECT_EQ(statistics().uptime(), 819.39);
}

TEST_F(LinuxSystemStatisticsTest, TellsNeitherLoadNorUptimeThatItCannotRead)
{
    EXPECT_EQ(statistics().loadAverage(), std::nullopt);
    EXPECT_EQ(statistics().uptime(), std::nullopt);
    m_tree.add(R"(proc/loadavg text="\n")");
    m_tree.add(R"(proc/uptime text="long\n")");
    EXPECT_EQ(statistics().loadAverage(), std::nullopt);
    EXPECT_EQ(statistics().uptime(), std::nullopt);
}

TEST_F(LinuxSystemStatisticsTest, CountsProcessorsThatAreThereAndThoseInUse)
{
    m_tree.add(R"(sys/devices/system/cpu/present text="0-7\n")");
    m_tree.add(R"(sys/devices/system/cpu/online text="0,2-4\n")");
    EXPECT_EQ(statistics().processorCount(), 8);
    EXPECT_EQ(statistics().activeProcessorCount(), 4);
}

TEST_F(LinuxSystemStatisticsTest, CountsTheLinesOfProcessorsWhereListsAreMissingOrBroken)
{
    m_tree.add(R"(proc/stat text="cpu 1 2 3 4\ncpu0 1\ncpu1 2\ncpu2 3\nintr 5\n")");
    EXPECT_EQ(statistics().processorCount(), 3);
    m_tree.add("sys/devices/system/cpu/online");
    for (const auto* const list : {"\n", "0-\n", "3-1\n", "-1\n", "0-9999999999\n"}) {
        rewrite("sys/devices/system/cpu/online", list);
        EXPECT_EQ(statistics().activeProcessorCount(), 3) << list;
    }
}

TEST(ThisMachine, TellsFiguresThatCanBe)
{
    const auto& machine = Platform::SystemStatistics::ofThisMachine();
    ASSERT_TRUE(machine.physicalMemory());
    ASSERT_TRUE(machine.usedMemory());
    EXPECT_GT(*machine.usedMemory(), 0U);
    EXPECT_LT(*machine.usedMemory(), *machine.physicalMemory());
    EXPECT_GE(machine.loadAverage().value_or(-1), 0);
    EXPECT_GT(machine.cpuTicks().value_or(CPUTicks{}).idle, 0U);
    EXPECT_GE(machine.activeProcessorCount(), 1);
    EXPECT_GE(machine.processorCount(), machine.activeProcessorCount());
    EXPECT_GT(machine.uptime().value_or(0), 0);
}

} // namespace
