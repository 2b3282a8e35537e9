#include "KarvelloUI/Sessions/Job.h"

#include "KarvelloUI/Sessions/JobThreads.h"
#include "Tests/Support/EventLoop.h"

#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <latch>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace KarvelloUI {

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

class ThreadedJob : public testing::Test {
protected:
    TestSupport::EventLoop loop;
    JobThreads threads{4};
};

} // namespace

TEST_F(ThreadedJob, RunsOffTheOwnersThreadAndCallsBackOnIt)
{
    const auto here = std::this_thread::get_id();
    std::thread::id worker;
    std::thread::id caller;
    std::thread::id reporter;
    Job job(threads);
    job.start<int>(
        [](const std::stop_token&, const JobProgress<int>& progress) {
            progress(1);
            return std::this_thread::get_id();
        },
        [&](int) { reporter = std::this_thread::get_id(); },
        [&](JobOutcome<std::thread::id> outcome) {
            worker = *outcome;
            caller = std::this_thread::get_id();
        });
    ASSERT_TRUE(loop.runUntil([&] { return !job.isRunning(); }));
    EXPECT_NE(worker, here);
    EXPECT_EQ(caller, here);
    EXPECT_EQ(reporter, here);
}

TEST_F(ThreadedJob, DestructionWhileRunningWaitsForNothing)
{
    // Both sides hold them: the work outlives this test.
    const auto hasBegun = std::make_shared<std::latch>(1);
    const auto mayEnd = std::make_shared<std::latch>(1);
    auto job = std::make_unique<Job>(threads);
    job->start(
        [hasBegun, mayEnd](const std::stop_token&) {
            hasBegun->count_down();
            // It does not look whether it is to stop.
            mayEnd->wait();
            return std::string(1000, 'x');
        },
        [](const JobOutcome<std::string>&) { FAIL() << "called back into the dead"; });
    hasBegun->wait();
    job.reset();
    // Only now does the work end: the destructor cannot have waited for it.
    mayEnd->count_down();
    loop.handleEvents();
}

TEST_F(ThreadedJob, DestructionAtAnyMomentCallsNobodyBack)
{
    std::atomic<int> begun = 0;
    for (int round = 0; round < 300; ++round) {
        bool isAlive = true;
        auto job = std::make_unique<Job>(threads);
        job->start<int>(
            [&begun](const std::stop_token& stop, const JobProgress<int>& progress) {
                ++begun;
                for (int step = 0; !stop.stop_requested() && step < 200; ++step) {
                    progress(step);
                }
                return std::vector<int>(100, 1);
            },
            [&isAlive](int) { EXPECT_TRUE(isAlive); },
            [&isAlive](const JobOutcome<std::vector<int>>&) { EXPECT_TRUE(isAlive); });
        for (int turn = 0; turn < round % 7; ++turn) {
            loop.handleEvents();
            std::this_thread::sleep_for(std::chrono::microseconds(round));
        }
        job.reset();
        isAlive = false;
        loop.handleEvents();
    }
    EXPECT_GT(begun, 0);
}

TEST_F(ThreadedJob, AThousandQuickRestartsEndInTheLastOne)
{
    std::atomic<int> running = 0;
    std::vector<int> results;
    Job job(threads);
    for (int round = 1; round <= 1000; ++round) {
        job.start<int>(
            [round, &running](const std::stop_token& stop, const JobProgress<int>& progress) {
                ++running;
                progress(round);
                // Every other run works until it is told to stop; the last one comes to its end.
                while (round % 2 == 1 && !stop.stop_requested()) {
                    std::this_thread::yield();
                }
                --running;
                return round;
            },
            [round](int progress) { EXPECT_EQ(progress, round); },
            [&](JobOutcome<int> outcome) { results.push_back(*outcome); });
        if (round % 10 == 0) {
            loop.handleEvents();
        }
    }
    ASSERT_TRUE(loop.runUntil([&] { return !job.isRunning() && running == 0; }));
    loop.handleEvents();
    ASSERT_FALSE(results.empty());
    EXPECT_EQ(results.back(), 1000);
}

TEST_F(ThreadedJob, CancelStopsTheWorkWithin200Milliseconds)
{
    std::latch hasBegun(1);
    std::atomic<bool> hasEnded = false;
    Job job(threads);
    job.start(
        [&](const std::stop_token& stop) {
            hasBegun.count_down();
            while (!stop.stop_requested()) {
                std::this_thread::sleep_for(1ms);
            }
            hasEnded = true;
        },
        [](const JobOutcome<void>&) { FAIL(); });
    hasBegun.wait();
    const auto start = Clock::now();
    job.cancel();
    while (!hasEnded && Clock::now() - start < 200ms) {
        std::this_thread::sleep_for(1ms);
    }
    EXPECT_TRUE(hasEnded);
}

} // namespace KarvelloUI
