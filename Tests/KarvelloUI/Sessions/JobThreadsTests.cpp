#include "KarvelloUI/Sessions/JobThreads.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <latch>
#include <memory>
#include <mutex>
#include <set>
#include <thread>

namespace KarvelloUI {

TEST(JobThreads, RunAllThatIsHandedOverBeforeTheyEnd)
{
    std::atomic<int> done = 0;
    {
        JobThreads threads(3);
        for (int index = 0; index < 1000; ++index) {
            threads.execute([&done] { ++done; });
        }
    }
    EXPECT_EQ(done, 1000);
}

TEST(JobThreads, RunWhatWorkHandsOverWhileTheyEnd)
{
    std::atomic<int> done = 0;
    {
        JobThreads threads(2);
        for (int index = 0; index < 10; ++index) {
            threads.execute([&] {
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
                threads.execute([&done] { ++done; });
            });
        }
    }
    EXPECT_EQ(done, 10);
}

TEST(JobThreads, DoSeveralThingsAtOnce)
{
    // Each waits for the others: with fewer threads this would never end.
    std::latch allAreHere(3);
    JobThreads threads(3);
    for (int index = 0; index < 3; ++index) {
        threads.execute([&] { allAreHere.arrive_and_wait(); });
    }
    allAreHere.wait();
}

TEST(JobThreads, AreNoMoreThanTheLimit)
{
    std::mutex lock;
    std::set<std::thread::id> seen;
    std::atomic<int> running = 0;
    std::atomic<int> most = 0;
    {
        JobThreads threads(2);
        for (int index = 0; index < 50; ++index) {
            threads.execute([&] {
                const int now = ++running;
                // Long enough for the next one to ask for a thread.
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
                most = std::max(most.load(), now);
                {
                    const std::scoped_lock guard(lock);
                    seen.insert(std::this_thread::get_id());
                }
                --running;
            });
        }
    }
    EXPECT_LE(seen.size(), 2U);
    EXPECT_LE(most, 2);
}

TEST(JobThreads, LetGoOfWhatTheWorkHeldBeforeTheyWait)
{
    auto held = std::make_shared<int>(1);
    std::latch isNext(1);
    JobThreads threads(1);
    threads.execute([held] {});
    threads.execute([&isNext] { isNext.count_down(); });
    isNext.wait();
    EXPECT_EQ(held.use_count(), 1);
}

} // namespace KarvelloUI
