#pragma once

#include "Platform/Linux/ProcessFolder.h"
#include "PlatformDesktop/LinuxDesktopApplications.h"
#include "Tests/DesktopSupport/OwnedProgram.h"
#include "Tests/Support/EventLoop.h"

#include <charconv>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace PlatformDesktopTests {

using DesktopTestSupport::OwnedProgram;
using Platform::ProcessIdentity;
using Platform::RunningApplication;
using PlatformDesktop::LinuxDesktopApplications;

/// A desktop without anything, to which tests add what they need.
class DesktopApplicationsTest : public testing::Test {
protected:
    DesktopApplicationsTest()
    {
        m_settings = LinuxDesktopApplications::Settings::current({});
        EXPECT_EQ(m_settings.display, "");
        EXPECT_FALSE(m_settings.hasSessionBus);
    }

    /// By its number now.
    static ProcessIdentity identityOf(std::int32_t process)
    {
        const auto folder = Platform::ProcessFolder::open("/proc", process);
        const auto state = folder ? folder->state() : std::nullopt;
        EXPECT_TRUE(state) << process;
        return {.processIdentifier = process, .startTicks = state ? state->startTicks : 0};
    }

    static RunningApplication applicationOf(std::vector<ProcessIdentity> processes, std::string identifier = "window")
    {
        return {.displayName = "Test",
            .bundleIdentifier = std::move(identifier),
            .processIdentifier = processes.front().processIdentifier,
            .isUserVisible = true,
            .processes = std::move(processes)};
    }

    static RunningApplication applicationOf(const OwnedProgram& program, std::string identifier = "window")
    {
        return applicationOf({identityOf(program.process())}, std::move(identifier));
    }

    /// What stands behind the word in a line such as "shown 12".
    static std::int32_t numberIn(std::string_view line)
    {
        std::int32_t number = 0;
        const auto digits = line.substr(line.rfind(' ') + 1);
        std::from_chars(digits.data(), digits.data() + digits.size(), number);
        EXPECT_GT(number, 0) << line;
        return number;
    }

    bool requestQuit(const RunningApplication& application) const
    {
        return LinuxDesktopApplications(m_settings).requestQuit(application);
    }

    /// Qt wants to know a program before it talks to a bus.
    TestSupport::EventLoop m_loop;
    LinuxDesktopApplications::Settings m_settings;
};

} // namespace PlatformDesktopTests
