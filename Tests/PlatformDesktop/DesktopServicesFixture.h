#pragma once

#include "PlatformDesktop/DesktopBus.h"
#include "Tests/DesktopSupport/FakeBusService.h"
#include "Tests/DesktopSupport/PrivateBus.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/TemporaryTree.h"

#include <QtCore/QTimer>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace PlatformDesktopTests {

using namespace std::chrono_literals;
using DesktopTestSupport::FakeBusService;
using PlatformDesktop::DesktopBus;

/// A session with a bus and nothing on it, to which tests add what they need.
class DesktopServicesTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(m_privateBus.address(), ""); }

    static std::shared_ptr<DesktopBus> withoutABus()
    {
        return std::make_shared<DesktopBus>(DesktopBus::Settings{.hasSessionBus = false});
    }

    /// What is answered, and that it is not answered before the call is over.
    template <typename Value, typename Call>
    std::optional<Value> answerOf(Call call)
    {
        std::optional<Value> answer;
        call([&answer](const Value& value) { answer = value; });
        EXPECT_FALSE(answer);
        EXPECT_TRUE(m_loop.runUntil([&answer] { return answer.has_value(); }));
        return answer;
    }

    /// Time enough for whatever should not happen.
    void letTimePass(std::chrono::milliseconds time = 150ms)
    {
        const auto end = std::chrono::steady_clock::now() + time;
        EXPECT_TRUE(m_loop.runUntil([end] { return std::chrono::steady_clock::now() > end; }));
    }

    /// A program that notes its name and its arguments, one on a line.
    static void addProgram(const std::string& path)
    {
        std::ofstream(path)
            << "#!/bin/sh\nprintf '%s\\n' \"${0##*/}\" \"$@\" > \"$0.new\" && mv \"$0.new\" \"$0.said\"\n";
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    }
    /// What that program has noted, once it has; empty if it was not started.
    std::string saidBy(const std::string& path)
    {
        if (!m_loop.runUntil([&path] { return std::filesystem::exists(path + ".said"); }, 10s)) {
            return {};
        }
        std::ifstream file(path + ".said");
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static bool wasStarted(const std::string& path) { return std::filesystem::exists(path + ".said"); }

    TestSupport::EventLoop m_loop;
    const DesktopTestSupport::PrivateBus& m_privateBus = DesktopTestSupport::PrivateBus::ofThisProcess();
    std::shared_ptr<DesktopBus> m_bus = std::make_shared<DesktopBus>(DesktopBus::Settings{.hasSessionBus = true});
};

} // namespace PlatformDesktopTests
