#include "KarvelloUI/Sessions/Job.h"

#include "Tests/Support/EventLoop.h"
#include "Tests/Support/ManualExecutor.h"

#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace KarvelloUI {

namespace {

/// By hand: work runs when the test says so, on the test's thread.
class JobTest : public testing::Test {
protected:
    /// Notes each value that comes back.
    auto noting()
    {
        return [this](JobOutcome<int> outcome) { results.push_back(outcome.value()); };
    }
    auto notingProgress()
    {
        return [this](int progress) { reports.push_back(progress); };
    }

    TestSupport::EventLoop loop;
    TestSupport::ManualExecutor executor;
    std::vector<int> results;
    std::vector<int> reports;
    std::unique_ptr<Job> job = std::make_unique<Job>(executor);
};

auto returning(int value)
{
    return [value](const std::stop_token&) { return value; };
}

} // namespace

TEST_F(JobTest, BringsTheResultBackByAQueuedCall)
{
    job->start(returning(7), noting());
    EXPECT_TRUE(job->isRunning());
    executor.runAll();
    EXPECT_TRUE(results.empty());
    EXPECT_TRUE(job->isRunning());
    loop.handleEvents();
    EXPECT_EQ(results, std::vector{7});
    EXPECT_FALSE(job->isRunning());
}

TEST_F(JobTest, HasNothingToDoAtFirst)
{
    EXPECT_FALSE(job->isRunning());
    job->requestStop();
    job->cancel();
    loop.handleEvents();
    EXPECT_FALSE(job->isRunning());
}

TEST_F(JobTest, TakesWhatCannotBeCopied)
{
    int got = 0;
    auto given = std::make_unique<int>(5);
    job->start([given = std::move(given)](const std::stop_token&) { return std::make_unique<int>(*given + 1); },
        [&, held = std::make_unique<int>(1)](JobOutcome<std::unique_ptr<int>> outcome) { got = **outcome + *held; });
    executor.runAll();
    loop.handleEvents();
    EXPECT_EQ(got, 7);
}

TEST_F(JobTest, RunsWorkThatReturnsNothing)
{
    bool hasRun = false;
    bool hasFinished = false;
    job->start([&](const std::stop_token&) { hasRun = true; },
        [&](JobOutcome<void> outcome) { hasFinished = outcome.has_value(); });
    executor.runAll();
    loop.handleEvents();
    EXPECT_TRUE(hasRun);
    EXPECT_TRUE(hasFinished);
}

TEST_F(JobTest, RestartSupersedesWhateverTheOldRunHasComeTo)
{
    // Not begun: it never begins.
    bool hasBegun = false;
    job->start(
        [&](const std::stop_token&) {
            hasBegun = true;
            return 1;
        },
        noting());
    job->start(returning(2), noting());
    executor.runAll();
    EXPECT_FALSE(hasBegun);

    // Its result is on its way.
    job->start(returning(3), noting());
    loop.handleEvents();
    EXPECT_TRUE(results.empty());
    executor.runAll();
    loop.handleEvents();
    EXPECT_EQ(results, std::vector{3});
}

TEST_F(JobTest, RestartStopsTheOldRun)
{
    std::stop_token first;
    job->start(
        [&](const std::stop_token& stop) {
            first = stop;
            return 1;
        },
        noting());
    executor.runAll();
    EXPECT_FALSE(first.stop_requested());
    std::stop_token second;
    job->start(
        [&](const std::stop_token& stop) {
            second = stop;
            return 2;
        },
        noting());
    executor.runAll();
    EXPECT_TRUE(first.stop_requested());
    EXPECT_FALSE(second.stop_requested());
}

TEST_F(JobTest, CancelWhileFinishingDropsTheResult)
{
    std::stop_token token;
    job->start(
        [&](const std::stop_token& stop) {
            token = stop;
            return 1;
        },
        noting());
    executor.runAll();
    job->cancel();
    EXPECT_FALSE(job->isRunning());
    EXPECT_TRUE(token.stop_requested());
    loop.handleEvents();
    EXPECT_TRUE(results.empty());
}

TEST_F(JobTest, WorkThatWasCancelledBeforeItBeganNeverBegins)
{
    bool hasBegun = false;
    job->start([&](const std::stop_token&) { hasBegun = true; }, [](const JobOutcome<void>&) { FAIL(); });
    job->cancel();
    executor.runAll();
    loop.handleEvents();
    EXPECT_FALSE(hasBegun);
}

TEST_F(JobTest, AResultComesThoughTheWorkWasAskedToStop)
{
    job->start([](const std::stop_token& stop) { return stop.stop_requested() ? 1 : 2; }, noting());
    job->requestStop();
    EXPECT_TRUE(job->isRunning());
    executor.runAll();
    loop.handleEvents();
    EXPECT_EQ(results, std::vector{1});
}

TEST_F(JobTest, ARequestToStopDoesNotReachTheNextRun)
{
    job->start(returning(1), noting());
    job->requestStop();
    job->start([](const std::stop_token& stop) { return stop.stop_requested() ? 2 : 3; }, noting());
    executor.runAll();
    loop.handleEvents();
    EXPECT_EQ(results, std::vector{3});
}

TEST_F(JobTest, ProgressComesBeforeTheResultAndTheNewestReplacesWhatNobodySaw)
{
    job->start<int>(
        [](const std::stop_token&, const JobProgress<int>& progress) {
            for (int step = 1; step <= 1000; ++step) {
                progress(step);
            }
            return 5;
        },
        notingProgress(),
        [this](JobOutcome<int> outcome) {
            EXPECT_EQ(reports, std::vector{1000});
            results.push_back(outcome.value());
        });
    executor.runAll();
    EXPECT_TRUE(reports.empty());
    loop.handleEvents();
    EXPECT_EQ(results, std::vector{5});
}

TEST_F(JobTest, EachReportIsSeenIfTheOwnerIsQuickEnough)
{
    job->start<int>(
        [this](const std::stop_token&, const JobProgress<int>& progress) {
            for (int step = 1; step <= 3; ++step) {
                progress(step);
                loop.handleEvents();
            }
            return 0;
        },
        notingProgress(), noting());
    executor.runAll();
    EXPECT_EQ(reports, (std::vector{1, 2, 3}));
}

TEST_F(JobTest, ProgressAfterCancelIsDropped)
{
    std::optional<JobProgress<int>> kept;
    const auto work = [&](const std::stop_token&, const JobProgress<int>& progress) {
        progress(1);
        kept = progress;
        return 0;
    };
    job->start<int>(work, notingProgress(), noting());
    executor.runAll();
    job->cancel();
    loop.handleEvents();
    (*kept)(2);
    loop.handleEvents();
    EXPECT_TRUE(reports.empty());

    // Nor does the next run get it.
    job->start<int>(work, notingProgress(), noting());
    (*kept)(3);
    loop.handleEvents();
    EXPECT_TRUE(reports.empty());

    // Nor does anyone when the job has gone.
    job.reset();
    (*kept)(4);
    loop.handleEvents();
    EXPECT_TRUE(reports.empty());
}

TEST_F(JobTest, ProgressAfterTheResultIsDropped)
{
    std::optional<JobProgress<int>> kept;
    job->start<int>(
        [&](const std::stop_token&, const JobProgress<int>& progress) {
            kept = progress;
            return 1;
        },
        notingProgress(), noting());
    executor.runAll();
    loop.handleEvents();
    (*kept)(9);
    loop.handleEvents();
    EXPECT_EQ(results, std::vector{1});
    EXPECT_TRUE(reports.empty());
}

TEST_F(JobTest, AnExceptionOfTheWorkIsAResult)
{
    std::string reason;
    const auto finished = [&](const JobOutcome<int>& outcome) { reason = outcome.error().reason; };
    job->start([](const std::stop_token&) -> int { throw std::runtime_error("no more memory"); }, finished);
    executor.runAll();
    loop.handleEvents();
    EXPECT_EQ(reason, "no more memory");
    EXPECT_FALSE(job->isRunning());

    job->start([](const std::stop_token&) -> int { throw 1; }, finished);
    executor.runAll();
    loop.handleEvents();
    EXPECT_EQ(reason, "unknown exception");
}

TEST_F(JobTest, CanBeStartedAgainByTheResult)
{
    job->start(returning(1), [this](JobOutcome<int> outcome) {
        EXPECT_FALSE(job->isRunning());
        results.push_back(*outcome);
        job->start(returning(2), noting());
    });
    executor.runAll();
    loop.handleEvents();
    EXPECT_TRUE(job->isRunning());
    executor.runAll();
    loop.handleEvents();
    EXPECT_EQ(results, (std::vector{1, 2}));
}

TEST_F(JobTest, CanBeDestroyedByTheResult)
{
    job->start(returning(1), [this, text = std::string("what the callback holds stays until it returns")](auto) {
        job.reset();
        EXPECT_EQ(text, "what the callback holds stays until it returns");
        results.push_back(1);
    });
    executor.runAll();
    loop.handleEvents();
    EXPECT_EQ(results, std::vector{1});
}

TEST_F(JobTest, CanBeDestroyedByProgress)
{
    job->start<int>(
        [](const std::stop_token&, const JobProgress<int>& progress) {
            progress(1);
            return 2;
        },
        [this, text = std::string("what the callback holds stays until it returns")](int progress) {
            job.reset();
            EXPECT_EQ(text, "what the callback holds stays until it returns");
            reports.push_back(progress);
        },
        noting());
    executor.runAll();
    loop.handleEvents();
    EXPECT_EQ(reports, std::vector{1});
    EXPECT_TRUE(results.empty());
}

TEST_F(JobTest, CanBeCancelledByProgressEvenIfALoopRunsInIt)
{
    job->start<int>(
        [](const std::stop_token&, const JobProgress<int>& progress) {
            progress(1);
            return 2;
        },
        [this](int progress) {
            reports.push_back(progress);
            job->cancel();
            loop.handleEvents();
        },
        noting());
    executor.runAll();
    loop.handleEvents();
    EXPECT_EQ(reports, std::vector{1});
    EXPECT_TRUE(results.empty());
}

TEST_F(JobTest, DestructionBeforeTheWorkBeganLeavesNothingToDo)
{
    bool hasBegun = false;
    job->start([&](const std::stop_token&) { hasBegun = true; }, [](const JobOutcome<void>&) { FAIL(); });
    job.reset();
    executor.runAll();
    loop.handleEvents();
    EXPECT_FALSE(hasBegun);
}

TEST_F(JobTest, DestructionAsksTheWorkToStop)
{
    std::stop_token token;
    job->start([&](const std::stop_token& stop) { token = stop; }, [](const JobOutcome<void>&) { FAIL(); });
    executor.runAll();
    EXPECT_FALSE(token.stop_requested());
    job.reset();
    EXPECT_TRUE(token.stop_requested());
}

TEST_F(JobTest, DestructionWithAResultOnItsWayCallsNobody)
{
    job->start(returning(1), noting());
    executor.runAll();
    job.reset();
    loop.handleEvents();
    EXPECT_TRUE(results.empty());
}

TEST_F(JobTest, DestructionLetsGoOfAResultOnItsWay)
{
    const auto result = std::make_shared<int>(1);
    std::optional<JobProgress<int>> kept;
    job->start<int>(
        [&](const std::stop_token&, const JobProgress<int>& progress) {
            kept = progress;
            return result;
        },
        notingProgress(), [](const JobOutcome<std::shared_ptr<int>>&) { FAIL(); });
    executor.runAll();
    EXPECT_GT(result.use_count(), 1);
    // Though somebody could still tell of progress.
    job.reset();
    EXPECT_EQ(result.use_count(), 1);
}

TEST_F(JobTest, ACancelledRunLetsGoOfWhatItWouldHaveCalled)
{
    auto held = std::make_shared<int>(1);
    job->start(returning(1), [held](const JobOutcome<int>&) {});
    EXPECT_EQ(held.use_count(), 2);
    job->cancel();
    EXPECT_EQ(held.use_count(), 1);
    executor.runAll();
}

} // namespace KarvelloUI
