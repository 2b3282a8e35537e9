#include "Tests/KarvelloUI/Sessions/ResourceReliefFixture.h"

#include <QObject>

namespace {

using namespace ResourceReliefTests;
using enum ResourceReliefActionStatus;
using testing::ElementsAre;
using testing::IsEmpty;

class MacResourceReliefViewModelTest : public ResourceReliefTest {};

TEST_F(MacResourceReliefViewModelTest, BeginsEmptyAndKnowsNothing)
{
    EXPECT_THAT(m_model->candidates(), IsEmpty());
    EXPECT_THAT(m_model->selectedIDs(), IsEmpty());
    EXPECT_EQ(m_model->capability(), ResourceReliefCapability::unknown());
    EXPECT_THAT(m_model->lastResults(), IsEmpty());
    EXPECT_FALSE(m_model->isRefreshing());
    EXPECT_FALSE(m_model->isRequestingQuit());
    EXPECT_EQ(m_executor.waitingCount(), 0U);
}

TEST_F(MacResourceReliefViewModelTest, ARefreshListsWhoRunsInTheOrderOfThePolicy)
{
    running("Chart").isFrontmost = true;
    m_running.push_back(application("Karvello", 40));
    int refreshed = 0;
    m_model->refreshCandidates([&] { ++refreshed; });
    EXPECT_TRUE(m_model->isRefreshing());
    EXPECT_THAT(m_model->candidates(), IsEmpty());
    settle();
    EXPECT_EQ(refreshed, 1);
    EXPECT_FALSE(m_model->isRefreshing());
    EXPECT_EQ(m_model->capability(), ResourceReliefCapability::supported());
    EXPECT_THAT(names(m_model->candidates()), ElementsAre("Chart", "Album", "Book", "Karvello"));
    EXPECT_EQ(candidate("Karvello").eligibility.reason, ResourceReliefProtectionReason::currentApplication);
}

TEST_F(MacResourceReliefViewModelTest, ARefreshWhileOneRunsReturnsAtOnce)
{
    int refreshed = 0;
    m_model->refreshCandidates();
    m_model->refreshCandidates([&] { ++refreshed; });
    EXPECT_EQ(refreshed, 1);
    settle();
    EXPECT_EQ(m_readings, 1);
    EXPECT_FALSE(m_model->isRefreshing());
}

TEST_F(MacResourceReliefViewModelTest, AProcessLaunchedBetweenTheSamplesSortsAfterAllThatHaveAFigure)
{
    running("Book").usage.cpuFractionOfTotalCapacity = 0;
    running("Chart").usage.cpuFractionOfTotalCapacity = 0.5;
    running("Album").usage.memoryFractionOfPhysicalMemory = 0.5;
    refresh();
    EXPECT_THAT(names(m_model->cpuSortedCandidates()), ElementsAre("Chart", "Book", "Album"));
    EXPECT_THAT(names(m_model->memorySortedCandidates()), ElementsAre("Album", "Book", "Chart"));
}

TEST_F(MacResourceReliefViewModelTest, InASandboxNobodyCanBeSelectedOrAsked)
{
    m_capability = ResourceReliefCapability::appSandbox();
    refresh();
    for (const auto& each : m_model->candidates()) {
        EXPECT_EQ(each.eligibility.reason, ResourceReliefProtectionReason::sandboxUnavailable);
        m_model->setSelected(each, true);
    }
    EXPECT_THAT(m_model->selectedIDs(), IsEmpty());
    request();
    settle();
    EXPECT_EQ(m_answers, 1);
    EXPECT_THAT(m_results, IsEmpty());
    EXPECT_THAT(m_asked, IsEmpty());
    EXPECT_FALSE(m_model->isRequestingQuit());
}

TEST_F(MacResourceReliefViewModelTest, OnlyWhoMayBeAskedIsSelected)
{
    running("Album").bundleIdentifier = "com.apple.finder";
    refresh();
    m_model->setSelected(candidate("Album"), true);
    EXPECT_THAT(selectedNames(), IsEmpty());
    select("Book");
    m_model->setSelected(candidate("Chart"), true);
    EXPECT_THAT(selectedNames(), ElementsAre("Book", "Chart"));
    m_model->setSelected(candidate("Book"), false);
    EXPECT_THAT(selectedNames(), ElementsAre("Chart"));
    m_model->clearSelection();
    EXPECT_THAT(selectedNames(), IsEmpty());
}

TEST_F(MacResourceReliefViewModelTest, WhoMayNotBeAskedCannotBeDeselectedEither)
{
    refreshAndSelect({"Album"});
    auto unavailable = candidate("Album");
    unavailable.eligibility = {};
    m_model->setSelected(unavailable, false);
    EXPECT_THAT(selectedNames(), ElementsAre("Album"));
}

TEST_F(MacResourceReliefViewModelTest, BeforeTheFirstRefreshNobodyCanBeSelected)
{
    refresh();
    const auto album = candidate("Album");
    m_model = newModel();
    m_model->setSelected(album, true);
    EXPECT_THAT(m_model->selectedIDs(), IsEmpty());
}

TEST_F(MacResourceReliefViewModelTest, ARefreshKeepsTheSelectionOfThoseWhoMayStillBeAsked)
{
    refreshAndSelect({"Album", "Book", "Chart"});
    std::erase_if(m_running, [](const Snapshot& each) { return each.displayName == "Album"; });
    running("Book").isTerminated = true;
    refresh();
    EXPECT_THAT(selectedNames(), ElementsAre("Chart"));
    EXPECT_EQ(m_model->selectedCount(), 1);
}

TEST_F(MacResourceReliefViewModelTest, TheSelectedAreAskedInTheOrderOfTheList)
{
    refreshAndSelect({"Chart", "Album"});
    request();
    EXPECT_TRUE(m_model->isRequestingQuit());
    EXPECT_THAT(m_asked, IsEmpty());
    settle();
    EXPECT_THAT(m_asked, ElementsAre("Album", "Chart"));
    EXPECT_THAT(statuses(), ElementsAre(requestSent, requestSent));
    EXPECT_EQ(m_model->lastResults(), m_results);
    EXPECT_EQ(m_results[0].candidateID, candidate("Album").id);
    EXPECT_EQ(m_results[0].displayName, "Album");
    EXPECT_EQ(m_results[0].occurredAt, m_now);
    EXPECT_NE(m_results[0].id, m_results[1].id);
    EXPECT_THAT(m_model->selectedIDs(), IsEmpty());
    EXPECT_FALSE(m_model->isRequestingQuit());
}

TEST_F(MacResourceReliefViewModelTest, AnApplicationThatQuitAfterListingHasAlreadyExited)
{
    refreshAndSelect({"Album"});
    std::erase_if(m_running, [](const Snapshot& each) { return each.displayName == "Album"; });
    request();
    settle();
    EXPECT_THAT(statuses(), ElementsAre(alreadyExited));
    EXPECT_THAT(m_asked, IsEmpty());
}

TEST_F(MacResourceReliefViewModelTest, AProcessNumberReusedByAnotherIsStaleAndNotAsked)
{
    refreshAndSelect({"Album", "Book", "Chart"});
    running("Album") = application("Other", 10);
    running("Book").launchDate = Date{9999};
    running("Chart").launchDate.reset();
    request();
    settle();
    EXPECT_THAT(statuses(), ElementsAre(staleCandidate, staleCandidate, staleCandidate));
    EXPECT_THAT(m_asked, IsEmpty());
}

TEST_F(MacResourceReliefViewModelTest, WhatHasEndedIsNotStaleWhateverItIsNow)
{
    refreshAndSelect({"Album", "Book"});
    running("Album").isTerminated = true;
    running("Book").isTerminated = true;
    running("Book").displayName.reset();
    request();
    settle();
    EXPECT_THAT(statuses(), ElementsAre(alreadyExited, alreadyExited));
    EXPECT_THAT(m_asked, IsEmpty());
}

TEST_F(MacResourceReliefViewModelTest, WhatMayNoLongerBeAskedIsNotAsked)
{
    refreshAndSelect({"Album"});
    running("Album").isUserVisible = false;
    request();
    settle();
    EXPECT_THAT(statuses(), ElementsAre(isProtected));
    running("Album").isUserVisible = true;
    refreshAndSelect({"Album"});
    m_capability = ResourceReliefCapability::appSandbox();
    request();
    settle();
    EXPECT_THAT(statuses(), ElementsAre(unavailableInSandbox));
    EXPECT_THAT(m_asked, IsEmpty());
}

TEST_F(MacResourceReliefViewModelTest, OfTwoOneRefusesAndTheListIsReadAgainLater)
{
    refreshAndSelect({"Album", "Book"});
    m_refusing = {"Album"};
    request();
    runOne(); // the requests
    runOne(); // the refresh
    EXPECT_THAT(statuses(), ElementsAre(failedToSend, requestSent));
    EXPECT_FALSE(m_model->isRequestingQuit());
    EXPECT_EQ(m_readings, 2);
    EXPECT_EQ(m_executor.waitingCount(), 1U);
    settle();
    EXPECT_EQ(m_delays, 1);
    EXPECT_EQ(m_readings, 3);
}

TEST_F(MacResourceReliefViewModelTest, WithoutARequestSentTheListIsNotReadAgainLater)
{
    refreshAndSelect({"Album"});
    m_refusing = {"Album"};
    request();
    settle();
    EXPECT_THAT(statuses(), ElementsAre(failedToSend));
    EXPECT_EQ(m_readings, 2);
    EXPECT_EQ(m_delays, 0);
}

TEST_F(MacResourceReliefViewModelTest, ASecondRequestWhileOneRunsGetsNothing)
{
    refreshAndSelect({"Album", "Book"});
    request();
    std::optional<std::vector<ResourceReliefActionResult>> second;
    m_model->requestQuitForSelection([&](const auto& results) { second = results; });
    ASSERT_TRUE(second) << "at once";
    EXPECT_THAT(*second, IsEmpty());
    settle();
    EXPECT_THAT(m_asked, ElementsAre("Album", "Book"));
    EXPECT_EQ(m_answers, 1);
}

TEST_F(MacResourceReliefViewModelTest, ARequestLastsUntilTheListIsThereAgain)
{
    refreshAndSelect({"Album"});
    request();
    runOne();
    EXPECT_TRUE(m_model->isRequestingQuit());
    EXPECT_TRUE(m_model->isRefreshing());
    EXPECT_EQ(m_model->lastResults().size(), 1U);
    EXPECT_EQ(m_answers, 0);
    runOne();
    EXPECT_FALSE(m_model->isRequestingQuit());
    EXPECT_EQ(m_answers, 1);
}

TEST_F(MacResourceReliefViewModelTest, ARefreshThatRunsIsNotWaitedFor)
{
    refreshAndSelect({"Album"});
    request();
    m_whenAsked = [this] { m_model->refreshCandidates(); };
    runOne();
    EXPECT_TRUE(m_model->isRefreshing());
    EXPECT_FALSE(m_model->isRequestingQuit());
    EXPECT_EQ(m_answers, 1);
    EXPECT_EQ(m_readings, 1);
}

TEST_F(MacResourceReliefViewModelTest, WhoIsSelectedMeanwhileStaysSelected)
{
    refreshAndSelect({"Album"});
    request();
    select("Book");
    settle();
    EXPECT_THAT(m_asked, ElementsAre("Album"));
    EXPECT_THAT(selectedNames(), ElementsAre("Book"));
}

TEST_F(MacResourceReliefViewModelTest, ANewRequestReplacesARefreshThatWaits)
{
    refreshAndSelect({"Album"});
    request();
    runOne();
    runOne();
    ASSERT_EQ(m_executor.waitingCount(), 1U) << "the delay of the first";
    select("Book");
    request();
    m_executor.runAll();
    m_loop.handleEvents();
    settle();
    EXPECT_EQ(m_answers, 2);
    // The two that were asked for, the two of the requests, and one later.
    EXPECT_EQ(m_readings, 4);
}

TEST_F(MacResourceReliefViewModelTest, ObserversSeeEachChangeOnceAllOfItHolds)
{
    std::vector<std::string> seen;
    const auto note = [&](const char* what) {
        seen.push_back(std::string(what) + (m_model->isRefreshing() ? "+" : "-")
            + (m_model->isRequestingQuit() ? "+" : "-") + std::to_string(m_model->selectedCount())
            + std::to_string(m_model->lastResults().size()));
    };
    QObject::connect(m_model.get(), &MacResourceReliefViewModel::candidatesChanged, [&] { note("list"); });
    QObject::connect(m_model.get(), &MacResourceReliefViewModel::selectionChanged, [&] { note("selection"); });
    QObject::connect(m_model.get(), &MacResourceReliefViewModel::lastResultsChanged, [&] { note("results"); });
    QObject::connect(m_model.get(), &MacResourceReliefViewModel::refreshingChanged, [&] { note("refresh"); });
    QObject::connect(m_model.get(), &MacResourceReliefViewModel::requestingQuitChanged, [&] { note("request"); });
    refresh();
    select("Album");
    select("Album");
    EXPECT_THAT(seen, ElementsAre("refresh+-00", "list--00", "refresh--00", "selection--10"));
    seen.clear();
    m_refusing = {"Album"};
    request();
    settle();
    EXPECT_THAT(seen,
        ElementsAre(
            "request-+10", "selection-+01", "results-+01", "refresh++01", "list-+01", "refresh-+01", "request--01"));
}

TEST_F(MacResourceReliefViewModelTest, AfterItsEndNothingIsListedOrAsked)
{
    refreshAndSelect({"Album"});
    request();
    m_model.reset();
    settle();
    EXPECT_THAT(m_asked, IsEmpty());
    EXPECT_EQ(m_answers, 0);
    EXPECT_EQ(m_readings, 1);
}

TEST_F(MacResourceReliefViewModelTest, WhoHasNotBeenAskedBeforeItsEndIsNotAskedAfterIt)
{
    refreshAndSelect({"Album", "Book"});
    m_whenAsked = [this] { m_model.reset(); };
    request();
    settle();
    EXPECT_THAT(m_asked, ElementsAre("Album"));
    EXPECT_EQ(m_answers, 0);
}

TEST_F(MacResourceReliefViewModelTest, ALookThatTakesUntilItsEndAsksNobody)
{
    refreshAndSelect({"Album"});
    auto slow = providers();
    slow.revalidationProvider = [this](const ResourceReliefCandidate& candidate) {
        m_model.reset();
        return again(candidate);
    };
    m_model = std::make_unique<MacResourceReliefViewModel>(
        m_executor, std::move(slow), KarvelloUI::ResourceReliefRequester{.currentProcessIdentifier = kOwnProcess});
    refreshAndSelect({"Album"});
    request();
    settle();
    EXPECT_EQ(m_model, nullptr);
    EXPECT_THAT(m_asked, IsEmpty());
}

TEST_F(MacResourceReliefViewModelTest, ObserversMayEndItAtEachOfItsChanges)
{
    using Signal = void (MacResourceReliefViewModel::*)();
    for (const Signal signal : {&MacResourceReliefViewModel::candidatesChanged,
             &MacResourceReliefViewModel::selectionChanged, &MacResourceReliefViewModel::lastResultsChanged,
             &MacResourceReliefViewModel::refreshingChanged, &MacResourceReliefViewModel::requestingQuitChanged}) {
        m_model = newModel();
        refreshAndSelect({"Album"});
        request();
        runOne();
        ASSERT_NE(m_model, nullptr);
        refreshAndSelect({"Book"});
        m_loop.handleEvents();
        QObject::connect(m_model.get(), signal, [this] { m_model.reset(); });
        request();
        settle();
        EXPECT_EQ(m_model, nullptr);
    }
}

TEST_F(MacResourceReliefViewModelTest, TheListThatComesLaterComesOnlyToOneThatLives)
{
    refreshAndSelect({"Album"});
    request();
    runOne();
    runOne();
    m_model.reset();
    settle();
    EXPECT_EQ(m_readings, 2);
    EXPECT_EQ(m_delays, 0);
}

} // namespace
