#include "KarvelloUI/Sessions/JobThreads.h"
#include "KarvelloUI/Sessions/MacResourceReliefViewModel.h"
#include "Platform/Linux/LinuxRunningApplications.h"
#include "Platform/Linux/LinuxSystemStatistics.h"
#include "PlatformDesktop/LinuxDesktopApplications.h"
#include "Tests/DesktopSupport/OwnedProgram.h"
#include "Tests/DesktopSupport/PrivateDisplay.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/TemporaryTree.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <unistd.h>
#include <vector>

/// The whole way, from the list of what really runs to the program that is asked.
namespace {

using CleanerCore::MacResourceReliefRuntime;
using CleanerCore::ResourceReliefActionResult;
using CleanerCore::ResourceReliefActionStatus;
using CleanerCore::ResourceReliefCandidate;
using CleanerCore::ResourceReliefCapability;
using DesktopTestSupport::OwnedProgram;
using DesktopTestSupport::PrivateDisplay;
using KarvelloUI::JobThreads;
using KarvelloUI::MacResourceReliefViewModel;
using KarvelloUI::ResourceReliefProviders;
using Platform::LinuxRunningApplications;
using PlatformDesktop::LinuxDesktopApplications;

/// Names of programs that nobody else runs; desktop files make applications of them.
const std::string kSuffix = "-editor-" + std::to_string(getpid());
const std::string kClosing = "closing" + kSuffix;
const std::string kAsking = "asking" + kSuffix;
const std::string kRefusing = "refusing" + kSuffix;

class ResourceReliefOnADesktop : public testing::Test {
protected:
    ResourceReliefOnADesktop()
    {
        for (const auto& name : {kClosing, kAsking, kRefusing}) {
            std::filesystem::copy_file(KARVELLO_TEST_WINDOW, m_tree.path("bin/" + name));
            std::ofstream(m_tree.path("applications/" + name + ".desktop"))
                << "[Desktop Entry]\nType=Application\nName=" << name << "\nExec=" << name << "\n";
        }
    }

    void SetUp() override { ASSERT_NE(m_display.name(), ""); }

    LinuxRunningApplications::Settings applicationSettings() const
    {
        auto settings = LinuxRunningApplications::Settings::current({});
        settings.desktopFileFolders = {m_tree.path("applications")};
        return settings;
    }

    LinuxDesktopApplications::Settings desktopSettings() const
    {
        auto settings = LinuxDesktopApplications::Settings::current({});
        settings.display = m_display.name();
        return settings;
    }

    std::unique_ptr<OwnedProgram> shown(const std::string& name, const std::string& behaviour) const
    {
        auto program = std::make_unique<OwnedProgram>(m_tree.path("bin/" + name), std::vector{behaviour},
            std::map<std::string, std::string>{{"DISPLAY", m_display.name()}});
        EXPECT_THAT(program->line(), testing::StartsWith("shown"));
        return program;
    }

    const ResourceReliefCandidate* find(const std::string& name) const
    {
        const auto& all = m_model.candidates();
        const auto found = std::ranges::find(all, name, &ResourceReliefCandidate::displayName);
        return found == all.end() ? nullptr : &*found;
    }

    void refresh()
    {
        m_model.refreshCandidates();
        ASSERT_TRUE(m_loop.runUntil([this] { return !m_model.isRefreshing(); }));
    }

    /// What became of the one request to all of these.
    std::map<std::string, ResourceReliefActionStatus> request(const std::vector<std::string>& names)
    {
        for (const auto& name : names) {
            const auto* const candidate = find(name);
            EXPECT_NE(candidate, nullptr) << name;
            if (candidate != nullptr) {
                m_model.setSelected(*candidate, true);
            }
        }
        std::map<std::string, ResourceReliefActionStatus> statuses;
        m_model.requestQuitForSelection([&statuses](const std::vector<ResourceReliefActionResult>& results) {
            for (const auto& result : results) {
                statuses.emplace(result.displayName, result.status);
            }
        });
        EXPECT_TRUE(m_loop.runUntil([this] { return !m_model.isRequestingQuit(); }));
        return statuses;
    }

    TestSupport::EventLoop m_loop;
    TestSupport::TemporaryTree m_tree{"bin/\napplications/\n"};
    PrivateDisplay m_display{PrivateDisplay::Manager::openbox};
    Platform::LinuxSystemStatistics m_statistics{"/proc", "/sys"};
    LinuxRunningApplications m_applications{applicationSettings(), m_statistics};
    LinuxDesktopApplications m_desktop{desktopSettings()};
    MacResourceReliefRuntime m_runtime{m_applications, m_desktop, [] { return false; }};
    JobThreads m_threads;
    MacResourceReliefViewModel m_model{
        m_threads, ResourceReliefProviders::of(m_runtime), {.currentProcessIdentifier = getpid()}};
};

TEST_F(ResourceReliefOnADesktop, WhatRunsIsListedWithItsFiguresAndWhoIsInFront)
{
    const auto program = shown(kClosing, "closes");
    ASSERT_TRUE(m_loop.runUntil([this] { return m_desktop.frontmostProcess().has_value(); }));
    refresh();
    EXPECT_EQ(m_model.capability(), ResourceReliefCapability::supported());
    const auto* const editor = find(kClosing);
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->processIdentifier, program->process());
    EXPECT_EQ(editor->bundleIdentifier, kClosing);
    EXPECT_TRUE(editor->isFrontmost);
    EXPECT_TRUE(editor->eligibility.isActionable);
    EXPECT_TRUE(editor->usage.cpuFractionOfTotalCapacity);
    EXPECT_GT(editor->usage.residentMemoryBytes.value_or(0), 0U);
}

TEST_F(ResourceReliefOnADesktop, AProgramThatClosesLeavesTheList)
{
    const auto program = shown(kClosing, "closes");
    refresh();
    EXPECT_EQ(request({kClosing})[kClosing], ResourceReliefActionStatus::requestSent);
    EXPECT_TRUE(program->ends());
    EXPECT_TRUE(m_loop.runUntil([this] { return find(kClosing) == nullptr; }));
}

TEST_F(ResourceReliefOnADesktop, ProgramsThatAskOrRefuseRunOn)
{
    const auto asking = shown(kAsking, "asks");
    const auto refusing = shown(kRefusing, "refuses");
    refresh();
    const auto statuses = request({kAsking, kRefusing});
    EXPECT_THAT(statuses,
        testing::UnorderedElementsAre(std::pair(kAsking, ResourceReliefActionStatus::requestSent),
            std::pair(kRefusing, ResourceReliefActionStatus::requestSent)));
    EXPECT_TRUE(asking->says("asked"));
    EXPECT_TRUE(refusing->says("asked"));
    refresh();
    EXPECT_NE(find(kAsking), nullptr);
    EXPECT_NE(find(kRefusing), nullptr);
    asking->tell("save");
    EXPECT_TRUE(asking->ends());
    EXPECT_TRUE(refusing->staysQuiet());
}

TEST_F(ResourceReliefOnADesktop, WhatHasEndedSinceIsNotAskedAndWhatHasNoWindowCannotBe)
{
    auto ended = shown(kClosing, "closes");
    const auto ignorant = shown(kRefusing, "ignorant");
    refresh();
    ended.reset();
    const auto statuses = request({kClosing, kRefusing});
    EXPECT_THAT(statuses,
        testing::UnorderedElementsAre(std::pair(kClosing, ResourceReliefActionStatus::alreadyExited),
            std::pair(kRefusing, ResourceReliefActionStatus::failedToSend)));
    EXPECT_TRUE(ignorant->staysQuiet());
}

TEST_F(ResourceReliefOnADesktop, TheSameProgramStartedAgainIsAnother)
{
    auto program = shown(kClosing, "closes");
    refresh();
    const auto first = *find(kClosing);
    program.reset();
    program = shown(kClosing, "closes");
    EXPECT_EQ(request({kClosing})[kClosing], ResourceReliefActionStatus::alreadyExited);
    EXPECT_TRUE(program->staysQuiet());
    ASSERT_NE(find(kClosing), nullptr);
    EXPECT_NE(find(kClosing)->id, first.id);
}

} // namespace
