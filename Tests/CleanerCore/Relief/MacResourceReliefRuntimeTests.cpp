#include "CleanerCore/Relief/MacResourceReliefRuntime.h"

#include "CleanerCore/Relief/ResourceReliefPolicy.h"

#include <algorithm>
#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace CleanerCore {

namespace {

using Platform::Date;
using Platform::RunningApplication;
using testing::IsEmpty;

constexpr double kMeasured = 0.25;

RunningApplication editor()
{
    return {.displayName = "Editor",
        .bundleIdentifier = "org.example.Editor",
        .processIdentifier = 10,
        .isUserVisible = true,
        .launchDate = Date{1000},
        .processes = {{10, 500}, {11, 510}},
        .residentMemoryBytes = 4096};
}

RunningApplication player()
{
    return {.displayName = "Player",
        .bundleIdentifier = "org.example.Player",
        .processIdentifier = 20,
        .isUserVisible = true,
        .launchDate = Date{2000},
        .processes = {{20, 600}}};
}

/// Applications as a test says they are; only measuring makes processor figures.
class SaidApplications final : public Platform::RunningApplications {
public:
    Listing applications() const override { return listing; }
    Listing measuredApplications(const std::stop_token& stop) const override
    {
        if (stop.stop_requested() || !listing) {
            return std::unexpected(stop.stop_requested() ? ECANCELED : listing.error());
        }
        std::vector<RunningApplication> measured = *listing;
        for (auto& application : measured) {
            application.cpuFractionOfTotalCapacity = kMeasured;
        }
        return measured;
    }
    std::optional<RunningApplication> application(std::int32_t process) const override
    {
        const auto found = std::ranges::find(*listing, process, &RunningApplication::processIdentifier);
        return found == listing->end() ? std::nullopt : std::optional(*found);
    }

    Listing listing = std::vector{editor(), player()};
};

class NotingDesktop final : public Platform::DesktopApplications {
public:
    bool canRequestQuit() const override { return can; }
    std::optional<std::int32_t> frontmostProcess() const override { return frontmost; }
    bool requestQuit(const RunningApplication& application) const override
    {
        asked.push_back(application);
        return answer;
    }

    bool can = true;
    std::optional<std::int32_t> frontmost;
    bool answer = true;
    mutable std::vector<RunningApplication> asked;
};

class MacResourceReliefRuntimeTest : public testing::Test {
protected:
    std::vector<ResourceReliefProcessSnapshot> snapshots() const { return m_runtime.runningApplicationSnapshots({}); }

    SaidApplications m_applications;
    NotingDesktop m_desktop;
    std::optional<bool> m_entitlement = false;
    MacResourceReliefRuntime m_runtime{m_applications, m_desktop, [this] { return m_entitlement; }};
};

TEST_F(MacResourceReliefRuntimeTest, SnapshotsHaveTheFiguresOfTheMeasurement)
{
    const auto found = snapshots();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].displayName, "Editor");
    EXPECT_EQ(found[0].launchDate, Date{1000});
    EXPECT_EQ(found[0].usage.cpuFractionOfTotalCapacity, kMeasured);
    EXPECT_EQ(found[0].usage.residentMemoryBytes, 4096U);
    EXPECT_FALSE(found[0].isFrontmost || found[1].isFrontmost) << "this desktop does not tell";
}

TEST_F(MacResourceReliefRuntimeTest, TheApplicationInFrontIsTheOneThatHasTheProcessInFront)
{
    m_desktop.frontmost = 11;
    const auto found = snapshots();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_TRUE(found[0].isFrontmost);
    EXPECT_FALSE(found[1].isFrontmost);
}

TEST_F(MacResourceReliefRuntimeTest, AListThatCannotBeReadOrWasStoppedHoldsNothing)
{
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THAT(m_runtime.runningApplicationSnapshots(stop.get_token()), IsEmpty());
    m_applications.listing = std::unexpected(EACCES);
    EXPECT_FALSE(m_runtime.requestNormalQuit(ResourceReliefProcessSnapshot::of(editor())));
    EXPECT_THAT(m_desktop.asked, IsEmpty());
}

TEST_F(MacResourceReliefRuntimeTest, TheSecondLookHasMemoryButNoProcessorFigure)
{
    const auto candidate =
        ResourceReliefPolicy(1, std::nullopt, m_runtime.currentCapability()).candidate(snapshots()[0]);
    ASSERT_TRUE(candidate);
    const auto again = m_runtime.revalidatedSnapshot(*candidate);
    ASSERT_TRUE(again);
    EXPECT_TRUE(ResourceReliefPolicy::identityMatches(*again, *candidate));
    EXPECT_EQ(again->usage.residentMemoryBytes, 4096U);
    EXPECT_EQ(again->usage.cpuFractionOfTotalCapacity, std::nullopt);
    m_applications.listing->clear();
    EXPECT_EQ(m_runtime.revalidatedSnapshot(*candidate), std::nullopt);
}

TEST_F(MacResourceReliefRuntimeTest, TheDesktopIsAskedForTheApplicationWithAllItsProcesses)
{
    EXPECT_TRUE(m_runtime.requestNormalQuit(snapshots()[0]));
    EXPECT_THAT(m_desktop.asked, testing::ElementsAre(editor()));
    m_desktop.answer = false;
    EXPECT_FALSE(m_runtime.requestNormalQuit(snapshots()[1]));
    EXPECT_EQ(m_desktop.asked.size(), 2U);
}

TEST_F(MacResourceReliefRuntimeTest, WhatIsNoLongerThatApplicationIsNotAsked)
{
    const auto asked = snapshots()[0];
    const auto isAskedAfter = [&](const std::function<void(RunningApplication&)>& change) {
        m_applications.listing = std::vector{editor(), player()};
        change(m_applications.listing->front());
        return m_runtime.requestNormalQuit(asked);
    };
    EXPECT_TRUE(isAskedAfter([](auto&) {}));
    EXPECT_FALSE(isAskedAfter([](auto& application) { application.processIdentifier = 30; })) << "it is gone";
    EXPECT_FALSE(isAskedAfter([](auto& application) { application.launchDate = Date{1000.01}; }));
    EXPECT_FALSE(isAskedAfter([](auto& application) { application.launchDate.reset(); }));
    EXPECT_FALSE(isAskedAfter([](auto& application) { application.bundleIdentifier = "org.example.Other"; }));
    EXPECT_EQ(m_desktop.asked.size(), 1U);
}

TEST_F(MacResourceReliefRuntimeTest, AnApplicationWhoseStartIsNotKnownIsNotAsked)
{
    m_applications.listing->front().launchDate.reset();
    EXPECT_FALSE(m_runtime.requestNormalQuit(snapshots()[0]));
    EXPECT_THAT(m_desktop.asked, IsEmpty());
}

TEST_F(MacResourceReliefRuntimeTest, TheSandboxDecidesFirstAndThenTheDesktop)
{
    EXPECT_EQ(MacResourceReliefRuntime::capability(true), ResourceReliefCapability::appSandbox());
    EXPECT_EQ(MacResourceReliefRuntime::capability(false), ResourceReliefCapability::supported());
    EXPECT_EQ(MacResourceReliefRuntime::capability(std::nullopt), ResourceReliefCapability::unknown());
    EXPECT_EQ(m_runtime.currentCapability(), ResourceReliefCapability::supported());
    m_desktop.can = false;
    EXPECT_EQ(m_runtime.currentCapability(), ResourceReliefCapability::unknown());
    m_entitlement = true;
    EXPECT_EQ(m_runtime.currentCapability(), ResourceReliefCapability::appSandbox());
    m_entitlement.reset();
    EXPECT_EQ(m_runtime.currentCapability(), ResourceReliefCapability::unknown());
}

} // namespace

} // namespace CleanerCore
