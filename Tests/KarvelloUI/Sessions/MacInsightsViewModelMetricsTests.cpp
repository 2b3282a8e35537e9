#include "Tests/KarvelloUI/Sessions/MacInsightsViewModelFixture.h"

#include <stdexcept>

namespace MacInsightsViewModelTests {

namespace {

using testing::ElementsAre;
using testing::SizeIs;

using MacInsightsViewModelMetricsTest = MacInsightsViewModelTest;

} // namespace

TEST_F(MacInsightsViewModelMetricsTest, TakesASampleInTheBackground)
{
    machine.normalizedCPULoad = 0.75;
    session->refreshSystemSnapshot();
    EXPECT_EQ(session->currentSystemSnapshot().uptime, 1);
    settle();
    EXPECT_EQ(session->currentSystemSnapshot().uptime, 2);
    EXPECT_THAT(session->systemMetricHistory().cpuLoad(), ElementsAre(0.75));
    EXPECT_THAT(session->systemMetricHistory().memoryUsage(), ElementsAre(0.25));
    EXPECT_THAT(session->systemMetricHistory().thermalPressure(), ElementsAre(0.48));
    EXPECT_EQ(session->phase(), Phase::idle);
}

TEST_F(MacInsightsViewModelMetricsTest, TakesOneSampleForTwoCallsInARow)
{
    session->refreshSystemSnapshot();
    session->refreshSystemSnapshot();
    EXPECT_EQ(executor.waitingCount(), 1U);
    executor.runAll();
    // Its result is not here yet.
    session->refreshSystemSnapshot();
    settle();
    EXPECT_EQ(samples, 2);
    session->refreshSystemSnapshot();
    settle();
    EXPECT_EQ(samples, 3);
}

TEST_F(MacInsightsViewModelMetricsTest, SamplesBesideAScan)
{
    session->scan(std::nullopt);
    session->refreshSystemSnapshot();
    settle();
    EXPECT_EQ(session->phase(), Phase::ready);
    // One of the scan, one that was asked for.
    EXPECT_THAT(session->systemMetricHistory().cpuLoad(), SizeIs(2));
    session->cancelCurrentOperation();
    session->refreshSystemSnapshot();
    session->clearScanResults();
    settle();
    EXPECT_THAT(session->systemMetricHistory().cpuLoad(), SizeIs(3));
}

TEST_F(MacInsightsViewModelMetricsTest, ShowsTheSampleOfAReport)
{
    scan();
    EXPECT_EQ(session->currentSystemSnapshot(), session->report().systemSnapshot);
    EXPECT_EQ(session->currentSystemSnapshot().uptime, 2);
}

TEST_F(MacInsightsViewModelMetricsTest, KeepsTheLastSamples)
{
    for (int sample = 0; sample < 30; ++sample) {
        machine.normalizedCPULoad = sample / 100.0;
        session->refreshSystemSnapshot();
        settle();
    }
    EXPECT_THAT(session->systemMetricHistory().cpuLoad(), SizeIs(24));
    EXPECT_EQ(session->systemMetricHistory().cpuLoad().front(), 0.06);
}

TEST_F(MacInsightsViewModelMetricsTest, SavesTheHistoryWhenItIsFlushed)
{
    session->refreshSystemSnapshot();
    settle();
    // The end of a session waits for the writes that it began.
    session.reset();
    EXPECT_EQ(historyStore.load(), SystemMetricHistory());
    restart();
    session->refreshSystemSnapshot();
    settle();
    const auto history = session->systemMetricHistory();
    session->flushSystemMetricHistory();
    session.reset();
    EXPECT_EQ(historyStore.load(), history);
    restart();
    EXPECT_EQ(session->systemMetricHistory(), history);
}

TEST_F(MacInsightsViewModelMetricsTest, GoesOnWithoutASampleThatCannotBeTaken)
{
    bool fails = false;
    MacInsightsViewModel other(services,
        {.homeDirectory = tree.url("home/"),
            .systemSnapshotProvider =
                [this, &fails] {
                    if (fails) {
                        throw std::runtime_error("no memory");
                    }
                    return machine;
                }},
        auditStore, historyStore);
    fails = true;
    other.refreshSystemSnapshot();
    settle();
    EXPECT_EQ(other.systemMetricHistory(), SystemMetricHistory());
    EXPECT_EQ(other.errorMessage(), std::nullopt);
    fails = false;
    other.refreshSystemSnapshot();
    settle();
    EXPECT_THAT(other.systemMetricHistory().cpuLoad(), SizeIs(1));
}

TEST_F(MacInsightsViewModelMetricsTest, MayBeDestroyedWhileASampleIsTaken)
{
    for (int moment = 0; moment < 3; ++moment) {
        restart();
        session->refreshSystemSnapshot();
        if (moment == 1) {
            executor.runOne();
        } else if (moment == 2) {
            QObject::connect(
                session.get(), &MacInsightsViewModel::systemMetricsChanged, qApp, [&] { session.reset(); });
            settle();
            EXPECT_EQ(session, nullptr);
        }
        session.reset();
        settle();
    }
}

} // namespace MacInsightsViewModelTests
