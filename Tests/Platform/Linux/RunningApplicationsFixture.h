#pragma once

#include "Platform/Linux/LinuxRunningApplications.h"
#include "Platform/Linux/LinuxSystemStatistics.h"
#include "Tests/Support/TemporaryTree.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fmt/format.h>
#include <fstream>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace RunningApplicationsTests {

using Platform::Date;
using Platform::LinuxRunningApplications;
using Platform::LinuxSystemStatistics;
using Platform::ProcessIdentity;
using Platform::RunningApplication;
using Platform::RunningApplications;

inline constexpr std::int32_t kOwn = 999;
inline constexpr std::string_view kAppSlice = "0::/user.slice/user@1000.service/app.slice/";

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

inline int errorOf(const RunningApplications::Listing& listing)
{
    return listing ? 0 : listing.error();
}

/// A machine of 1000 KiB with four processors and a few applications in its menus.
class RunningApplicationsTest : public testing::Test {
protected:
    RunningApplicationsTest()
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

    TestSupport::TemporaryTree m_tree{"proc/\napplications/\nsys/\n"};
    LinuxSystemStatistics m_statistics{m_tree.path("proc"), m_tree.path("sys")};
    LinuxRunningApplications::Settings m_settings;
    LinuxRunningApplications::Clock::time_point m_now{std::chrono::hours(1)};
    std::chrono::milliseconds m_waited{0};
    std::function<void()> m_meanwhile;
};

} // namespace RunningApplicationsTests
