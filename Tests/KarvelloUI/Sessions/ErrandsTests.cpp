#include "KarvelloUI/Sessions/Errands.h"

#include "KarvelloUI/Sessions/JobThreads.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/ManualExecutor.h"

#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <vector>

namespace KarvelloUI {

namespace {

class ErrandsTest : public testing::Test {
protected:
    TestSupport::EventLoop loop;
    TestSupport::ManualExecutor executor;
    std::unique_ptr<Errands> errands = std::make_unique<Errands>(executor);
    std::vector<int> results;
};

} // namespace

TEST_F(ErrandsTest, AllComeToTheirEndAndBack)
{
    for (int number = 1; number <= 3; ++number) {
        errands->run([number] { return number; }, [this](JobOutcome<int> outcome) { results.push_back(*outcome); });
    }
    EXPECT_TRUE(errands->areUnderWay());
    executor.runAll();
    EXPECT_TRUE(results.empty());
    loop.handleEvents();
    EXPECT_EQ(results, (std::vector{1, 2, 3}));
    EXPECT_FALSE(errands->areUnderWay());
}

TEST_F(ErrandsTest, AreDoneThoughNobodyWaitsAnyMore)
{
    int done = 0;
    auto held = std::make_shared<int>(1);
    errands->run([&done] { ++done; }, [held](const JobOutcome<void>&) { FAIL(); });
    errands->run([&done] { ++done; }, [held](const JobOutcome<void>&) { FAIL(); });
    executor.runOne();
    errands.reset();
    EXPECT_EQ(held.use_count(), 1);
    executor.runAll();
    loop.handleEvents();
    EXPECT_EQ(done, 2);
}

TEST_F(ErrandsTest, MayBeDestroyedByTheirResult)
{
    errands->run([] { return 1; },
        [this](JobOutcome<int> outcome) {
            errands.reset();
            results.push_back(*outcome);
        });
    executor.runAll();
    loop.handleEvents();
    EXPECT_EQ(results, std::vector{1});
}

TEST_F(ErrandsTest, TellOfAnException)
{
    std::string reason;
    errands->run([]() -> int { throw std::runtime_error("lost"); },
        [&](const JobOutcome<int>& outcome) { reason = outcome.error().reason; });
    executor.runAll();
    loop.handleEvents();
    EXPECT_EQ(reason, "lost");
}

TEST_F(ErrandsTest, RunOnThreads)
{
    std::atomic<int> done = 0;
    int back = 0;
    JobThreads threads(3);
    Errands many(threads);
    for (int number = 0; number < 100; ++number) {
        many.run([&done] { ++done; }, [&back](const JobOutcome<void>&) { ++back; });
    }
    ASSERT_TRUE(loop.runUntil([&] { return !many.areUnderWay(); }));
    EXPECT_EQ(done, 100);
    EXPECT_EQ(back, 100);
}

} // namespace KarvelloUI
