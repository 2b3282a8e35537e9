#pragma once

#include "KarvelloUI/Sessions/MacResourceReliefViewModel.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/ManualExecutor.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ResourceReliefTests {

using CleanerCore::ResourceReliefActionResult;
using CleanerCore::ResourceReliefActionStatus;
using CleanerCore::ResourceReliefCandidate;
using CleanerCore::ResourceReliefCapability;
using CleanerCore::ResourceReliefProtectionReason;
using KarvelloUI::MacResourceReliefViewModel;
using KarvelloUI::ResourceReliefProviders;
using Platform::Date;
using Snapshot = CleanerCore::ResourceReliefProcessSnapshot;

inline constexpr std::int32_t kOwnProcess = 7;

inline Snapshot application(std::string name, std::int32_t process)
{
    const auto identifier = "org.example." + name;
    return {.displayName = std::move(name),
        .bundleIdentifier = identifier,
        .processIdentifier = process,
        .isUserVisible = true,
        .launchDate = Date{1000.0 + process}};
}

/// A machine on which runs what a test says. Its work waits until the test lets it run, and so does time.
class ResourceReliefTest : public testing::Test {
protected:
    ResourceReliefProviders providers()
    {
        return {
            .candidateProvider =
                [this](const std::stop_token&) {
                    ++m_readings;
                    return m_running;
                },
            .capabilityProvider = [this] { return m_capability; },
            .revalidationProvider = [this](const ResourceReliefCandidate& candidate) { return again(candidate); },
            .quitRequester =
                [this](const Snapshot& snapshot) {
                    m_asked.push_back(*snapshot.displayName);
                    if (m_whenAsked) {
                        m_whenAsked();
                    }
                    return !std::ranges::count(m_refusing, *snapshot.displayName);
                },
            .postQuitRefreshDelay = [this](const std::stop_token&) { ++m_delays; },
            .now = [this] { return m_now; },
        };
    }

    std::unique_ptr<MacResourceReliefViewModel> newModel()
    {
        return std::make_unique<MacResourceReliefViewModel>(m_executor, providers(),
            KarvelloUI::ResourceReliefRequester{
                .currentProcessIdentifier = kOwnProcess, .currentBundleIdentifier = "org.example.Karvello"});
    }

    std::optional<Snapshot> again(const ResourceReliefCandidate& candidate) const
    {
        const auto found = std::ranges::find(m_running, candidate.processIdentifier, &Snapshot::processIdentifier);
        return found == m_running.end() ? std::nullopt : std::optional(*found);
    }

    Snapshot& running(const std::string& name)
    {
        return *std::ranges::find(m_running, name, [](const Snapshot& each) { return each.displayName.value_or(""); });
    }

    /// Runs the work that waits and brings its result.
    void runOne()
    {
        ASSERT_GT(m_executor.waitingCount(), 0U);
        m_executor.runOne();
        m_loop.handleEvents();
    }

    /// Until nothing waits.
    void settle()
    {
        m_loop.handleEvents();
        while (m_executor.waitingCount() > 0) {
            runOne();
        }
    }

    void refresh()
    {
        m_model->refreshCandidates();
        settle();
    }

    const ResourceReliefCandidate& candidate(const std::string& name) const
    {
        return *std::ranges::find(m_model->candidates(), name, &ResourceReliefCandidate::displayName);
    }

    void select(const std::string& name) { m_model->setSelected(candidate(name), true); }

    /// Refreshes and selects all of these.
    void refreshAndSelect(const std::vector<std::string>& names)
    {
        refresh();
        std::ranges::for_each(names, [this](const std::string& name) { select(name); });
        ASSERT_EQ(m_model->selectedIDs().size(), names.size());
    }

    void request()
    {
        m_model->requestQuitForSelection([this](const std::vector<ResourceReliefActionResult>& results) {
            ++m_answers;
            m_results = results;
        });
    }

    static std::vector<std::string> names(const std::vector<ResourceReliefCandidate>& candidates)
    {
        std::vector<std::string> names;
        std::ranges::transform(candidates, std::back_inserter(names), &ResourceReliefCandidate::displayName);
        return names;
    }

    std::vector<std::string> selectedNames() const { return names(m_model->selectedCandidates()); }

    std::vector<ResourceReliefActionStatus> statuses() const
    {
        std::vector<ResourceReliefActionStatus> statuses;
        std::ranges::transform(m_results, std::back_inserter(statuses), &ResourceReliefActionResult::status);
        return statuses;
    }

    std::vector<Snapshot> m_running{application("Chart", 30), application("Album", 10), application("Book", 20)};
    ResourceReliefCapability m_capability = ResourceReliefCapability::supported();
    std::vector<std::string> m_refusing;
    std::function<void()> m_whenAsked;
    std::vector<std::string> m_asked;
    int m_readings = 0;
    int m_delays = 0;
    Date m_now{5000};
    int m_answers = 0;
    std::vector<ResourceReliefActionResult> m_results;

    TestSupport::EventLoop m_loop;
    TestSupport::ManualExecutor m_executor;
    std::unique_ptr<MacResourceReliefViewModel> m_model = newModel();
};

} // namespace ResourceReliefTests
