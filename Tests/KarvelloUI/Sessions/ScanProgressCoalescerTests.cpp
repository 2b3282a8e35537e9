#include "KarvelloUI/Sessions/ScanProgressCoalescer.h"

#include "KarvelloUI/Sessions/JobThreads.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace KarvelloUI {

namespace {

using namespace std::chrono_literals;
using CleanerCore::StorageScanProgress;
using Pending = ScanProgressCoalescer::Pending;

StorageScanProgress update(std::int64_t number, double fraction = 0.5)
{
    return {.completedItems = number, .fractionCompleted = fraction};
}

/// A clock that the test moves, and tasks that the test wakes.
class ScanProgressCoalescerTest : public testing::Test {
protected:
    struct Task {
        std::chrono::nanoseconds delay;
        std::stop_token stop;
        std::function<void()> call;

        /// What the end of the sleep does.
        void wake() const
        {
            if (!stop.stop_requested()) {
                call();
            }
        }
    };

    ScanProgressContinuation continuation()
    {
        return {.yield = [this](const StorageScanProgress& progress) { yielded.push_back(progress.completedItems); },
            .finish = [this] { ++finishes; }};
    }
    ScanProgressTiming timing()
    {
        return {.now = [this] { return static_cast<std::uint64_t>(now.count()); },
            .callAfter =
                [this](std::chrono::nanoseconds delay, std::stop_token stop, std::function<void()> call) {
                    tasks.push_back({delay, std::move(stop), std::move(call)});
                }};
    }

    using Numbers = std::vector<std::int64_t>;

    std::chrono::nanoseconds now = 1s;
    std::vector<Task> tasks;
    Numbers yielded;
    int finishes = 0;
    std::unique_ptr<ScanProgressCoalescer> coalescer =
        std::make_unique<ScanProgressCoalescer>(continuation(), timing());
};

} // namespace

TEST_F(ScanProgressCoalescerTest, TheFirstUpdatePassesAtOnceWhateverItsFraction)
{
    coalescer->submit(update(1, 0));
    EXPECT_EQ(yielded, Numbers{1});
    EXPECT_TRUE(tasks.empty());
}

TEST_F(ScanProgressCoalescerTest, TheFinalUpdatePassesAtOnceAndCancelsWhatWaits)
{
    coalescer->submit(update(1));
    now += 10ms;
    coalescer->submit(update(2));
    ASSERT_EQ(tasks.size(), 1U);
    now += 10ms;
    coalescer->submit(update(3, 1.0));
    EXPECT_EQ(yielded, (Numbers{1, 3}));
    EXPECT_TRUE(tasks[0].stop.stop_requested());
    tasks[0].wake();
    coalescer->finish(Pending::publish);
    EXPECT_EQ(yielded, (Numbers{1, 3}));
}

TEST_F(ScanProgressCoalescerTest, OfTenUpdatesWithinTheIntervalOnlyTheTenthIsPublished)
{
    coalescer->submit(update(0));
    for (std::int64_t number = 1; number <= 10; ++number) {
        now += 5ms;
        coalescer->submit(update(number));
    }
    ASSERT_EQ(tasks.size(), 1U);
    EXPECT_EQ(tasks[0].delay, 75ms);
    EXPECT_EQ(yielded, Numbers{0});
    now += 30ms;
    tasks[0].wake();
    EXPECT_EQ(yielded, (Numbers{0, 10}));
}

TEST_F(ScanProgressCoalescerTest, AnUpdateExactlyOneIntervalLaterPasses)
{
    coalescer->submit(update(1));
    now += 80ms - 1ns;
    coalescer->submit(update(2));
    EXPECT_EQ(yielded, Numbers{1});
    EXPECT_EQ(tasks.at(0).delay, 1ns);
    now += 1ns;
    coalescer->submit(update(3));
    EXPECT_EQ(yielded, (Numbers{1, 3}));
    tasks[0].wake();
    EXPECT_EQ(yielded, (Numbers{1, 3}));
}

TEST_F(ScanProgressCoalescerTest, AClockReadingNotLaterThanTheLastPassesAtOnce)
{
    coalescer->submit(update(1));
    coalescer->submit(update(2));
    now -= 500ms;
    coalescer->submit(update(3));
    EXPECT_EQ(yielded, (Numbers{1, 2, 3}));
    EXPECT_TRUE(tasks.empty());
}

TEST_F(ScanProgressCoalescerTest, ADelayedPublishBeginsTheNextInterval)
{
    coalescer->submit(update(1));
    now += 40ms;
    coalescer->submit(update(2));
    now += 40ms;
    tasks.at(0).wake();
    now += 40ms;
    coalescer->submit(update(3));
    EXPECT_EQ(yielded, (Numbers{1, 2}));
    ASSERT_EQ(tasks.size(), 2U);
    EXPECT_EQ(tasks[1].delay, 40ms);
    tasks[1].wake();
    EXPECT_EQ(yielded, (Numbers{1, 2, 3}));
}

TEST_F(ScanProgressCoalescerTest, ASleepThatWasOverWhenItWasCancelledPublishesNothingOfTheNext)
{
    coalescer->submit(update(1));
    now += 10ms;
    coalescer->submit(update(2));
    now += 80ms;
    coalescer->submit(update(3));
    now += 10ms;
    coalescer->submit(update(4));
    ASSERT_EQ(tasks.size(), 2U);
    // The first sleep had ended before it was cancelled.
    tasks[0].call();
    EXPECT_EQ(yielded, (Numbers{1, 3}));
    tasks[1].wake();
    EXPECT_EQ(yielded, (Numbers{1, 3, 4}));
}

TEST_F(ScanProgressCoalescerTest, SubmitAfterFinishSendsNothing)
{
    coalescer->finish(Pending::publish);
    coalescer->submit(update(1));
    coalescer->submit(update(2, 1.0));
    EXPECT_TRUE(yielded.empty());
    EXPECT_TRUE(tasks.empty());
}

TEST_F(ScanProgressCoalescerTest, FinishSendsWhatWaitsBeforeTheStreamEnds)
{
    coalescer->submit(update(1));
    now += 10ms;
    coalescer->submit(update(2));
    EXPECT_EQ(finishes, 0);
    coalescer->finish(Pending::publish);
    EXPECT_EQ(yielded, (Numbers{1, 2}));
    EXPECT_EQ(finishes, 1);
    EXPECT_TRUE(tasks.at(0).stop.stop_requested());
    tasks[0].call();
    EXPECT_EQ(yielded, (Numbers{1, 2}));
}

TEST_F(ScanProgressCoalescerTest, FinishDropsWhatWaitsIfItIsToldTo)
{
    coalescer->submit(update(1));
    now += 10ms;
    coalescer->submit(update(2));
    coalescer->finish(Pending::drop);
    tasks.at(0).call();
    EXPECT_EQ(yielded, Numbers{1});
    EXPECT_EQ(finishes, 1);
}

TEST_F(ScanProgressCoalescerTest, ASecondFinishDoesNothing)
{
    coalescer->submit(update(1));
    now += 10ms;
    coalescer->submit(update(2));
    coalescer->finish(Pending::drop);
    coalescer->finish(Pending::publish);
    EXPECT_EQ(yielded, Numbers{1});
    EXPECT_EQ(finishes, 1);
}

TEST_F(ScanProgressCoalescerTest, AWakeAfterItsEndDoesNothing)
{
    coalescer->submit(update(1));
    now += 10ms;
    coalescer->submit(update(2));
    coalescer.reset();
    EXPECT_TRUE(tasks.at(0).stop.stop_requested());
    tasks[0].call();
    EXPECT_EQ(yielded, Numbers{1});
}

TEST(ScanProgressCoalescerOnThreads, KeepsTheOrderAndTheIntervalAndEndsWithTheLast)
{
    std::mutex lock;
    std::vector<std::int64_t> yielded;
    std::atomic<bool> hasEnded = false;
    constexpr auto runTime = 400ms;
    std::int64_t last = 0;
    {
        JobThreads threads(4);
        ScanProgressCoalescer coalescer({.yield =
                                                [&](const StorageScanProgress& progress) {
                                                    EXPECT_FALSE(hasEnded);
                                                    const std::scoped_lock guard(lock);
                                                    yielded.push_back(progress.completedItems);
                                                },
                                            .finish = [&] { hasEnded = true; }},
            ScanProgressTiming::system(threads));
        const auto end = std::chrono::steady_clock::now() + runTime;
        while (std::chrono::steady_clock::now() < end) {
            coalescer.submit(update(++last));
            // Pauses as long as the interval let the delayed publish take its turn, too.
            if (last % 1000 == 0) {
                std::this_thread::sleep_for(90ms);
            }
        }
        coalescer.submit(update(++last, 1.0));
        coalescer.finish(Pending::publish);
    }
    EXPECT_TRUE(std::ranges::is_sorted(yielded));
    ASSERT_FALSE(yielded.empty());
    EXPECT_EQ(yielded.back(), last);
    // The first, the final one, and one for each interval begun.
    EXPECT_LE(std::ssize(yielded), 2 + 1 + runTime / 80ms + 2);
    EXPECT_TRUE(hasEnded);
}

TEST(ScanProgressCoalescerOnThreads, CanBeFinishedFromAnotherThreadAtAnyMoment)
{
    JobThreads threads(4);
    for (int round = 0; round < 50; ++round) {
        std::atomic<bool> hasEnded = false;
        ScanProgressCoalescer coalescer(
            {.yield = [&](const StorageScanProgress&) { EXPECT_FALSE(hasEnded); }, .finish = [&] { hasEnded = true; }},
            {.now = [time = std::make_shared<std::atomic<std::uint64_t>>(0)] { return *time += 1'000'000; },
                .callAfter = ScanProgressTiming::system(threads).callAfter});
        std::jthread scan([&](const std::stop_token& stop) {
            for (std::int64_t number = 1; !stop.stop_requested(); ++number) {
                coalescer.submit(update(number));
            }
        });
        std::this_thread::sleep_for(std::chrono::microseconds(round * 10));
        coalescer.finish(Pending::drop);
        EXPECT_TRUE(hasEnded);
    }
}

} // namespace KarvelloUI
