#include "Platform/Linux/LinuxRunningApplications.h"

#include "Platform/Base/Waiting.h"
#include "Platform/Linux/LinuxSystemStatistics.h"
#include "Tests/Support/TemporaryTree.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fmt/format.h>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace Platform {

namespace {

using namespace std::chrono_literals;
using TestSupport::TemporaryTree;

constexpr std::int32_t kOwn = 999;
constexpr std::string_view kAppSlice = "0::/user.slice/user@1000.service/app.slice/";

struct FakeProcess {
    std::int32_t number = 0;
    std::uint64_t start = 100;
    std::uint64_t ticks = 0;
    std::int32_t parent = 1;
    std::string unit = {};
    std::string program = {};
    std::optional<std::uint64_t> share = {};
    std::uint64_t pages = 0;
    char state = 'S';
    std::string name = "name (of) it) ";
};

int errorOf(const RunningApplications::Listing& listing)
{
    return listing ? 0 : listing.error();
}

/// A machine of 1000 KiB with four processors and a few applications in its menus.
class LinuxRunningApplicationsTest : public testing::Test {
protected:
    LinuxRunningApplicationsTest()
    {
        entry("editor", "Name=Editor\nExec=/usr/bin/editor\n");
        entry("org.example.Notes", "Name=Notes\nExec=notes\n");
        entry("helper", "Name=Helper\nExec=helper\nNoDisplay=true\n");
        write("proc/stat", "cpu 1 2 3 4\ncpu0\ncpu1\ncpu2\ncpu3\nbtime 978307200\n");
        write("proc/meminfo", "MemTotal: 1000 kB\n");
        m_settings = {.procRoot = m_tree.path("proc"),
            .user = geteuid(),
            .ownProcess = kOwn,
            .desktopFileFolders = {m_tree.path("applications")},
            .ticksPerSecond = 100,
            .pageBytes = 1024,
            .wait = [this](std::chrono::milliseconds time, const std::stop_token&) { between(time); },
            .now = [this] { return m_now; }};
    }

    void write(const std::string& path, std::string_view text) { std::ofstream(m_tree.path(path)) << text; }

    void entry(const std::string& identifier, std::string_view body)
    {
        write(
            "applications/" + identifier + ".desktop", std::string("[Desktop Entry]\nType=Application\n").append(body));
    }

    std::string folder(const FakeProcess& process) const { return fmt::format("proc/{}/", process.number); }

    void add(const FakeProcess& process)
    {
        const auto path = folder(process);
        std::filesystem::create_directories(m_tree.path(path) + "/root");
        write(path + "stat",
            fmt::format("{} ({}) {} {} 1 1 0 -1 0 0 0 0 0 {} 0 0 0 20 0 1 0 {} 4096 {} 0 0\n", process.number,
                process.name, process.state, process.parent, process.ticks, process.start, process.pages));
        write(path + "cgroup",
            process.unit.empty() ? "0::/user.slice/session-2.scope\n" : std::string(kAppSlice) + process.unit + "\n");
        if (!process.program.empty()) {
            const auto link = m_tree.path(path + "exe");
            std::filesystem::remove(link);
            std::filesystem::create_symlink("/usr/bin/" + process.program, link);
        }
        if (process.share) {
            write(path + "smaps_rollup", fmt::format("1-2 ---p [rollup]\nRss: 9 kB\nPss:   {} kB\n", *process.share));
        }
    }

    void remove(std::int32_t process) { std::filesystem::remove_all(m_tree.path(fmt::format("proc/{}", process))); }

    void between(std::chrono::milliseconds time)
    {
        m_now += time;
        m_waited += time;
        if (m_meanwhile) {
            m_meanwhile();
        }
    }

    LinuxRunningApplications source() const { return {m_settings, m_statistics}; }

    std::vector<RunningApplication> list() const
    {
        auto found = source().applications();
        EXPECT_TRUE(found);
        return sorted(found.value_or(std::vector<RunningApplication>()));
    }

    std::vector<RunningApplication> measured() const
    {
        auto found = source().measuredApplications({});
        EXPECT_TRUE(found);
        return sorted(found.value_or(std::vector<RunningApplication>()));
    }

    static std::vector<RunningApplication> sorted(std::vector<RunningApplication> applications)
    {
        std::ranges::sort(applications, {}, &RunningApplication::processIdentifier);
        return applications;
    }

    std::vector<std::string> identifiers() const
    {
        std::vector<std::string> identifiers;
        for (const auto& application : list()) {
            identifiers.push_back(application.bundleIdentifier.value_or("-"));
        }
        return identifiers;
    }

    TemporaryTree m_tree{"proc/\napplications/\nsys/\n"};
    LinuxSystemStatistics m_statistics{m_tree.path("proc"), m_tree.path("sys")};
    LinuxRunningApplications::Settings m_settings;
    LinuxRunningApplications::Clock::time_point m_now{1h};
    std::chrono::milliseconds m_waited{0};
    std::function<void()> m_meanwhile;
};

TEST_F(LinuxRunningApplicationsTest, TheDesktopFileOfAUnitNamesTheApplication)
{
    add({.number = 10, .start = 1050, .unit = "app-gnome-editor-10.scope"});
    EXPECT_THAT(list(),
        testing::ElementsAre(RunningApplication{.displayName = "Editor",
            .bundleIdentifier = "editor",
            .processIdentifier = 10,
            .isUserVisible = true,
            .launchDate = Date{10.5},
            .processCount = 1}));
}

TEST_F(LinuxRunningApplicationsTest, WithoutADesktopFileThereIsNoIdentifier)
{
    add({.number = 10, .unit = "app-gnome-sync-10.scope", .program = "syncd"});
    add({.number = 11, .unit = "app-gnome-other-11.scope"});
    const auto found = list();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].bundleIdentifier, std::nullopt);
    EXPECT_EQ(found[0].displayName, "syncd");
    EXPECT_FALSE(found[0].isUserVisible);
    EXPECT_EQ(found[1].displayName, "name (of) it) ");
}

TEST_F(LinuxRunningApplicationsTest, WhatMenusDoNotShowIsNotVisible)
{
    add({.number = 10, .unit = "app-helper@autostart.service"});
    EXPECT_EQ(identifiers(), std::vector<std::string>{"helper"});
    EXPECT_FALSE(list().front().isUserVisible);
}

TEST_F(LinuxRunningApplicationsTest, AMalformedDesktopFileIsNone)
{
    write("applications/editor.desktop", "[Desktop Entry\nType=Application\nName=Editor\n");
    add({.number = 10, .unit = "app-gnome-editor-10.scope"});
    EXPECT_EQ(identifiers(), std::vector<std::string>{"-"});
}

TEST_F(LinuxRunningApplicationsTest, ProcessesOfOneApplicationAreOneRowWithTheirSums)
{
    add({.number = 12, .start = 90, .unit = "app-gnome-editor-12.scope", .share = 100});
    add({.number = 10, .start = 95, .unit = "app-gnome-editor-12.scope", .share = 20});
    add({.number = 20, .start = 200, .unit = "app-gnome-editor-20.scope", .pages = 5});
    const auto found = measured();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].processIdentifier, 12) << "the first that was started stands for all";
    EXPECT_EQ(found[0].processCount, 3U);
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
    waitUnlessStopped(10min, stop.get_token());
    EXPECT_LT(std::chrono::steady_clock::now() - before, 1min);
}

TEST_F(LinuxRunningApplicationsTest, TheDesktopItselfIsNotListed)
{
    add({.number = 10, .program = "editor"});
    write("proc/10/cgroup", "0::/user.slice/user@1000.service/session.slice/org.gnome.Shell@wayland.service\n");
    add({.number = 11, .start = 101, .parent = 10});
    EXPECT_TRUE(list().empty());
}

TEST_F(LinuxRunningApplicationsTest, FlatpakTellsWhoRunsInItsRootFolder)
{
    add({.number = 10});
    write("proc/10/root/.flatpak-info", "[Instance]\nname=wrong\n[Application]\nname=org.example.Notes\n");
    EXPECT_EQ(identifiers(), std::vector<std::string>{"org.example.Notes"});
}

TEST_F(LinuxRunningApplicationsTest, VariablesOfLaunchersTellWhoRuns)
{
    using namespace std::string_view_literals;
    add({.number = 10});
    write("proc/10/environ", "A=b\0BAMF_DESKTOP_FILE_HINT=/var/lib/x/org.example.Notes.desktop\0"sv);
    add({.number = 20});
    write("proc/20/environ", "GIO_LAUNCHED_DESKTOP_FILE=/x/editor.desktop\0GIO_LAUNCHED_DESKTOP_FILE_PID=20\0"sv);
    add({.number = 30});
    write("proc/30/environ", "GIO_LAUNCHED_DESKTOP_FILE=/x/helper.desktop\0GIO_LAUNCHED_DESKTOP_FILE_PID=31\0"sv);
    EXPECT_THAT(identifiers(), testing::ElementsAre("org.example.Notes", "editor"));
}

TEST_F(LinuxRunningApplicationsTest, TheProgramTellsWhoRunsWhereNothingElseDoes)
{
    add({.number = 10, .program = "editor"});
    add({.number = 11, .program = "notes (deleted)"});
    add({.number = 12, .program = "bash"});
    EXPECT_THAT(identifiers(), testing::ElementsAre("editor", "org.example.Notes"));
}

TEST_F(LinuxRunningApplicationsTest, WhatAnApplicationStartsBelongsToIt)
{
    add({.number = 10, .start = 100, .program = "editor"});
    add({.number = 11, .start = 110, .parent = 10, .program = "bash"});
    add({.number = 12, .start = 120, .parent = 11, .program = "make"});
    add({.number = 13, .start = 130, .parent = 12, .program = "notes"});
    add({.number = 14, .start = 90, .parent = 10, .program = "older"});
    add({.number = 20, .start = 100, .program = "helper"});
    write("proc/20/root/.flatpak-info", "[Application]\nname=helper\n");
    add({.number = 21, .start = 110, .parent = 20, .program = "bash"});
    const auto found = list();
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[0].processCount, 3U);
    EXPECT_EQ(found[1].bundleIdentifier, "org.example.Notes");
    EXPECT_EQ(found[2].processCount, 1U) << "what the desktop's own programs start is not theirs";
}

TEST_F(LinuxRunningApplicationsTest, ParentsInACircleEnd)
{
    add({.number = 10, .start = 100, .parent = 11, .program = "a"});
    add({.number = 11, .start = 100, .parent = 10, .program = "b"});
    EXPECT_TRUE(list().empty());
}

TEST_F(LinuxRunningApplicationsTest, AUnitThatTellsNothingIsWhatItsFirstProcessIs)
{
    add({.number = 10, .start = 100, .unit = "app-gnome-unknown-10.scope", .program = "editor"});
    add({.number = 11, .start = 110, .unit = "app-gnome-unknown-10.scope", .program = "notes"});
    EXPECT_EQ(identifiers(), std::vector<std::string>{"editor"});
    EXPECT_EQ(list()[0].processCount, 2U);
}

TEST_F(LinuxRunningApplicationsTest, TheOwnProcessIsNoPartOfItsTerminal)
{
    add({.number = 10, .unit = "app-gnome-editor-10.scope", .program = "editor", .share = 10});
    add({.number = kOwn, .start = 50, .unit = "app-gnome-editor-10.scope", .program = "karvello-cli", .share = 100});
    const auto found = measured();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].residentMemoryBytes, 10U * 1024);
    EXPECT_EQ(found[1].processIdentifier, kOwn);
    EXPECT_EQ(found[1].displayName, "karvello-cli");
    EXPECT_EQ(found[1].bundleIdentifier, std::nullopt);
}

TEST_F(LinuxRunningApplicationsTest, TheOwnProcessStandsForItsOwnApplication)
{
    add({.number = 10, .start = 10, .unit = "app-gnome-editor-10.scope", .program = "bash"});
    add({.number = kOwn, .start = 50, .unit = "app-gnome-editor-10.scope", .program = "editor"});
    add({.number = 5, .start = 5, .unit = "app-gnome-editor-10.scope", .program = "bash"});
    const auto found = list();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].processIdentifier, kOwn);
    EXPECT_EQ(found[0].bundleIdentifier, "editor");
    EXPECT_EQ(found[0].processCount, 3U);
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
    const LinuxRunningApplications source(
        LinuxRunningApplications::Settings::current(Environment()), SystemStatistics::ofThisMachine());
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

} // namespace Platform
