#include "Platform/Linux/LinuxRunningApplications.h"

#include "Platform/Base/Waiting.h"
#include "Tests/Platform/Linux/RunningApplicationsFixture.h"

#include <cerrno>

namespace {

using namespace RunningApplicationsTests;
using namespace std::chrono_literals;

class LinuxRunningApplicationsTest : public RunningApplicationsTest {};

TEST_F(LinuxRunningApplicationsTest, ProcessesOfOneApplicationAreOneRowWithTheirSums)
{
    add({.number = 12, .start = 90, .unit = "app-gnome-editor-12.scope", .share = 100});
    add({.number = 10, .start = 95, .unit = "app-gnome-editor-12.scope", .share = 20});
    add({.number = 20, .start = 200, .unit = "app-gnome-editor-20.scope", .pages = 5});
    const auto found = measured();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].processIdentifier, 12) << "the first that was started stands for all";
    EXPECT_THAT(found[0].processes,
        testing::ElementsAre(ProcessIdentity{12, 90}, ProcessIdentity{10, 95}, ProcessIdentity{20, 200}));
    EXPECT_EQ(found[0].residentMemoryBytes, 125U * 1024);
    EXPECT_EQ(found[0].memoryFractionOfPhysicalMemory, 0.125);
}

TEST_F(LinuxRunningApplicationsTest, MoreMemoryThanThereIsIsAllOfIt)
{
    add({.number = 12, .unit = "app-gnome-editor-12.scope", .share = 2000});
    EXPECT_EQ(measured()[0].memoryFractionOfPhysicalMemory, 1);
}

TEST_F(LinuxRunningApplicationsTest, ProcessorTimeIsTheShareOfAllProcessorsBetweenTwoLooks)
{
    FakeProcess first{.number = 10, .ticks = 1000, .unit = "app-gnome-editor-10.scope"};
    FakeProcess second{.number = 11, .ticks = 50, .unit = "app-gnome-editor-10.scope"};
    add(first);
    add(second);
    m_meanwhile = [&] {
        first.ticks += 7;
        second.ticks += 7;
        add(first);
        add(second);
    };
    // 0.14 s of 4 times 0.35 s.
    EXPECT_DOUBLE_EQ(measured()[0].cpuFractionOfTotalCapacity.value_or(-1), 0.1);
    EXPECT_EQ(m_waited, LinuxRunningApplications::kSamplingTime);
}

TEST_F(LinuxRunningApplicationsTest, WhatStartedBetweenTheLooksHasNoProcessorFigure)
{
    m_meanwhile = [&] { add({.number = 10, .ticks = 7, .unit = "app-gnome-editor-10.scope"}); };
    add({.number = 30, .unit = "app-gnome-org.example.Notes-30.scope"});
    const auto found = measured();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].cpuFractionOfTotalCapacity, std::nullopt);
    EXPECT_EQ(found[1].cpuFractionOfTotalCapacity, 0);
}

TEST_F(LinuxRunningApplicationsTest, ANumberThatWasGivenOutAgainIsAnotherProcess)
{
    add({.number = 10, .start = 100, .ticks = 5, .unit = "app-gnome-editor-10.scope"});
    m_meanwhile = [&] { add({.number = 10, .start = 5000, .ticks = 9, .unit = "app-gnome-editor-10.scope"}); };
    EXPECT_EQ(measured()[0].cpuFractionOfTotalCapacity, std::nullopt);
}

TEST_F(LinuxRunningApplicationsTest, AChildThatIsNewCountsWithAllThatItDid)
{
    add({.number = 10, .unit = "app-gnome-editor-10.scope"});
    m_meanwhile = [&] { add({.number = 11, .start = 500, .ticks = 14, .unit = "app-gnome-editor-10.scope"}); };
    EXPECT_DOUBLE_EQ(measured()[0].cpuFractionOfTotalCapacity.value_or(-1), 0.1);
}

TEST_F(LinuxRunningApplicationsTest, TicksThatWentBackOrTimeThatStoodStillGiveNoFigure)
{
    add({.number = 10, .ticks = 50, .unit = "app-gnome-editor-10.scope"});
    m_meanwhile = [&] { add({.number = 10, .ticks = 49, .unit = "app-gnome-editor-10.scope"}); };
    EXPECT_EQ(measured()[0].cpuFractionOfTotalCapacity, std::nullopt);
    m_settings.wait = [](std::chrono::milliseconds, const std::stop_token&) {};
    EXPECT_EQ(measured()[0].cpuFractionOfTotalCapacity, std::nullopt);
}

TEST_F(LinuxRunningApplicationsTest, NobodyTakesMoreThanAllProcessors)
{
    add({.number = 10, .unit = "app-gnome-editor-10.scope"});
    m_meanwhile = [&] { add({.number = 10, .ticks = 100'000, .unit = "app-gnome-editor-10.scope"}); };
    EXPECT_EQ(measured()[0].cpuFractionOfTotalCapacity, 1);
}

TEST_F(LinuxRunningApplicationsTest, ProcessesThatVanishAreNoError)
{
    add({.number = 10, .unit = "app-gnome-editor-10.scope"});
    add({.number = 11, .unit = "app-gnome-org.example.Notes-11.scope"});
    std::filesystem::create_directories(m_tree.path("proc/12"));
    write("proc/13", "no folder");
    std::filesystem::create_directories(m_tree.path("proc/14/stat"));
    std::filesystem::create_directories(m_tree.path("proc/15"));
    write("proc/15/stat", "15 (cut");
    m_meanwhile = [&] { remove(11); };
    const auto found = measured();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].processIdentifier, 10);
}

TEST_F(LinuxRunningApplicationsTest, ProcessesThatHaveEndedAreNotThere)
{
    add({.number = 10, .unit = "app-gnome-editor-10.scope", .state = 'Z'});
    EXPECT_TRUE(list().empty());
}

TEST_F(LinuxRunningApplicationsTest, OnlyProcessesOfTheUserCount)
{
    add({.number = 10, .unit = "app-gnome-editor-10.scope"});
    m_settings.user = geteuid() + 1;
    EXPECT_TRUE(list().empty());
}

TEST_F(LinuxRunningApplicationsTest, AMachineWhoseProcessesCannotBeSeenIsAnError)
{
    EXPECT_EQ(errorOf(source().applications()), ENOENT);
    EXPECT_EQ(errorOf(source().measuredApplications({})), ENOENT);
    m_settings.procRoot = m_tree.path("missing");
    EXPECT_EQ(errorOf(source().applications()), ENOENT);
}

TEST_F(LinuxRunningApplicationsTest, AStopEndsTheWait)
{
    add({.number = 10, .unit = "app-gnome-editor-10.scope"});
    std::stop_source stop;
    m_meanwhile = [&] { stop.request_stop(); };
    EXPECT_EQ(errorOf(source().measuredApplications(stop.get_token())), ECANCELED);
}

TEST(Waiting, EndsAtOnceWhenAStopIsAskedFor)
{
    std::stop_source stop;
    stop.request_stop();
    const auto before = std::chrono::steady_clock::now();
    Platform::waitUnlessStopped(10min, stop.get_token());
    EXPECT_LT(std::chrono::steady_clock::now() - before, 1min);
}

TEST_F(LinuxRunningApplicationsTest, OneApplicationIsFoundByTheProcessThatStandsForIt)
{
    add({.number = 10, .start = 100, .unit = "app-gnome-editor-10.scope", .share = 10});
    add({.number = 11, .start = 110, .unit = "app-gnome-editor-10.scope", .share = 10});
    const auto found = source().application(10);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->bundleIdentifier, "editor");
    EXPECT_EQ(found->residentMemoryBytes, 20U * 1024);
    EXPECT_EQ(found->cpuFractionOfTotalCapacity, std::nullopt);
    EXPECT_FALSE(source().application(11));
    EXPECT_FALSE(source().application(12));
}

TEST_F(LinuxRunningApplicationsTest, WithoutTheStartOfTheMachineThereIsNoLaunchDate)
{
    write("proc/stat", "cpu 1 2 3 4\n");
    add({.number = 10, .unit = "app-gnome-editor-10.scope"});
    EXPECT_EQ(list()[0].launchDate, std::nullopt);
}

TEST(LinuxRunningApplications, ReadsTheProcessesOfThisMachine)
{
    const LinuxRunningApplications source(LinuxRunningApplications::Settings::current(Platform::Environment()),
        Platform::SystemStatistics::ofThisMachine());
    const auto found = source.measuredApplications({});
    ASSERT_TRUE(found);
    const auto own = std::ranges::find(*found, getpid(), &RunningApplication::processIdentifier);
    ASSERT_NE(own, found->end());
    EXPECT_EQ(own->displayName, "PlatformTests");
    EXPECT_GT(own->residentMemoryBytes.value_or(0), 0U);
    EXPECT_LT(own->launchDate.value_or(Date{1e12}), Date::now().addingSeconds(2));
    EXPECT_GT(own->launchDate.value_or(Date{}), Date::now().addingSeconds(-86400));
}

} // namespace
