#include "Tests/KarvelloUI/MenuBar/MenuBarModelFixture.h"

#include <limits>

namespace {

using namespace MenuBarTests;
using testing::ElementsAre;
using testing::IsEmpty;

class KarvelloMenuBarPollingTest : public MenuBarModelTest {
protected:
    void makePolling()
    {
        m_settings.startsPolling = true;
        make();
    }
    /// What the machine was asked since the last call.
    int looks()
    {
        finishRefresh();
        return std::exchange(m_snapshotCount, 0);
    }
    /// In steps of a second, each look finished at once.
    int looksIn(int seconds)
    {
        int count = 0;
        for (int second = 0; second < seconds; ++second) {
            m_time.goOn(1);
            count += looks();
        }
        return count;
    }
};

TEST_F(KarvelloMenuBarPollingTest, TheIntervalsAreAMinuteAndFiveSeconds)
{
    const KarvelloUI::KarvelloMenuBarStatusSettings settings;
    EXPECT_EQ(settings.backgroundRefreshIntervalNanoseconds, 60 * kSecond);
    EXPECT_EQ(settings.refreshIntervalNanoseconds, 5 * kSecond);
    EXPECT_EQ(settings.visibleRefreshIntervalNanoseconds, std::nullopt);
}

TEST_F(KarvelloMenuBarPollingTest, TheRemindersAreThereBeforeTheFirstLook)
{
    m_first = strained();
    make();
    EXPECT_THAT(m_model->activeReminders(), ElementsAre(kLowDisk, kHighMemory, kSeriousHeat));
    EXPECT_EQ(m_model->activeReminderCount(), 3);
    EXPECT_EQ(m_model->snapshot(), strained());
    EXPECT_EQ(looks(), 0);
}

TEST_F(KarvelloMenuBarPollingTest, InTheBackgroundTheMachineIsLookedAtOnceAMinute)
{
    makePolling();
    EXPECT_EQ(looksIn(59), 0);
    EXPECT_EQ(looksIn(1), 1);
    EXPECT_EQ(looksIn(120), 2);
}

TEST_F(KarvelloMenuBarPollingTest, WithoutPollingNothingIsLookedAt)
{
    make();
    EXPECT_EQ(looksIn(300), 0);
    EXPECT_EQ(m_model->activePollingIntervalNanoseconds(), std::nullopt);
    EXPECT_EQ(m_model->pollingTaskGeneration(), 0);
}

TEST_F(KarvelloMenuBarPollingTest, ALookIsPublished)
{
    make();
    m_machine = strained("Critical");
    int reminderSignals = 0;
    QObject::connect(
        m_model.get(), &KarvelloMenuBarStatusModel::activeRemindersChanged, [&reminderSignals] { ++reminderSignals; });
    refreshNow();
    EXPECT_EQ(m_model->snapshot(), strained("Critical"));
    EXPECT_EQ(m_snapshotSignals, 1);
    EXPECT_EQ(reminderSignals, 1);
    EXPECT_THAT(m_model->activeReminders(), ElementsAre(kLowDisk, kHighMemory, kCriticalHeat));
    m_machine = calm();
    refreshNow();
    EXPECT_THAT(m_model->activeReminders(), IsEmpty());
}

TEST_F(KarvelloMenuBarPollingTest, PropertiesTellTheSnapshot)
{
    m_first = strained("Critical");
    make();
    EXPECT_EQ(m_model->property("diskTotalBytes"), 1000);
    EXPECT_EQ(m_model->property("diskFreeBytes"), 50);
    EXPECT_EQ(m_model->property("diskUsedFraction"), 0.95);
    EXPECT_EQ(m_model->property("diskFreeFraction"), 0.05);
    EXPECT_EQ(m_model->property("cpuLoadFraction"), 0.25);
    EXPECT_EQ(m_model->property("memoryUsedFraction"), 0.25);
    EXPECT_EQ(m_model->property("thermalState").toString().toStdString(), "Critical");
    EXPECT_EQ(m_model->property("capturedAt").toDateTime().toSecsSinceEpoch(), 800'000'000 + 978'307'200);
    EXPECT_FALSE(m_model->property("lastReminderDeliveredAt").toDateTime().isValid());
    EXPECT_EQ(m_model->property("lastReminderError").toString().toStdString(), "");
}

TEST_F(KarvelloMenuBarPollingTest, OnlyOneLookRunsAtATime)
{
    make();
    m_model->refresh();
    EXPECT_TRUE(m_model->isRefreshing());
    m_model->refresh();
    EXPECT_EQ(m_executor.waitingCount(), 1);
    m_executor.runAll();
    // The machine was looked at, but the main thread does not know it yet.
    m_model->refresh();
    EXPECT_EQ(m_executor.waitingCount(), 0);
    EXPECT_EQ(looks(), 1);
    EXPECT_FALSE(m_model->isRefreshing());
    m_model->refresh();
    EXPECT_EQ(looks(), 1);
}

TEST_F(KarvelloMenuBarPollingTest, AnObserverOfTheSnapshotStartsNoLookWithinALook)
{
    make();
    QObject::connect(m_model.get(), &KarvelloMenuBarStatusModel::snapshotChanged, [this] { m_model->refresh(); });
    refreshNow();
    EXPECT_EQ(m_executor.waitingCount(), 0);
    EXPECT_FALSE(m_model->isRefreshing());
}

TEST_F(KarvelloMenuBarPollingTest, ATickDuringALookIsSkippedAndNotMadeUpFor)
{
    makePolling();
    m_time.goOn(60);
    m_executor.runAll();
    m_time.goOn(120);
    EXPECT_EQ(looks(), 1);
    m_time.goOn(59);
    EXPECT_EQ(looks(), 0);
    m_time.goOn(1);
    EXPECT_EQ(looks(), 1);
}

TEST_F(KarvelloMenuBarPollingTest, ALookThatFailsLeavesTheOldSnapshotAndIsTriedAgain)
{
    makePolling();
    m_snapshotFails = true;
    m_machine = lowDisk();
    EXPECT_EQ(looksIn(60), 1);
    EXPECT_EQ(m_model->snapshot(), calm());
    EXPECT_FALSE(m_model->isRefreshing());
    m_snapshotFails = false;
    EXPECT_EQ(looksIn(60), 1);
    EXPECT_EQ(m_model->snapshot(), lowDisk());
}

TEST_F(KarvelloMenuBarPollingTest, AZeroIntervalIsStoredAs1Nanosecond)
{
    m_settings.backgroundRefreshIntervalNanoseconds = 0;
    m_settings.visibleRefreshIntervalNanoseconds = 0;
    makePolling();
    EXPECT_EQ(m_model->activePollingIntervalNanoseconds(), 1);
    m_model->beginVisiblePolling();
    EXPECT_EQ(m_model->activePollingIntervalNanoseconds(), 1);
    EXPECT_EQ(m_model->pollingTaskGeneration(), 2);
}

TEST_F(KarvelloMenuBarPollingTest, AnIntervalBeyondAnyClockIsNotWaitedFor)
{
    m_settings.backgroundRefreshIntervalNanoseconds = std::numeric_limits<std::uint64_t>::max();
    makePolling();
    EXPECT_EQ(m_model->activePollingIntervalNanoseconds(), std::numeric_limits<std::uint64_t>::max());
    EXPECT_GT(m_time.dueAt, m_time.now);
    EXPECT_EQ(looksIn(60), 0);
}

TEST_F(KarvelloMenuBarPollingTest, TheVisibleIntervalIsTheGivenOneOrElseTheGeneralOne)
{
    m_settings.refreshIntervalNanoseconds = 7 * kSecond;
    make();
    m_model->beginVisiblePolling();
    EXPECT_EQ(m_model->activePollingIntervalNanoseconds(), 7 * kSecond);
    m_settings.visibleRefreshIntervalNanoseconds = 3 * kSecond;
    make();
    m_model->beginVisiblePolling();
    EXPECT_EQ(m_model->activePollingIntervalNanoseconds(), 3 * kSecond);
}

TEST_F(KarvelloMenuBarPollingTest, APopoverOpensOnFreshNumbersAndKeepsThemFresh)
{
    makePolling();
    m_time.goOn(30);
    m_model->beginVisiblePolling();
    EXPECT_EQ(looks(), 1);
    EXPECT_EQ(looksIn(20), 4);
    m_model->endVisiblePolling();
    EXPECT_EQ(m_model->activePollingIntervalNanoseconds(), 60 * kSecond);
    EXPECT_EQ(looksIn(59), 0);
    EXPECT_EQ(looksIn(1), 1);
}

TEST_F(KarvelloMenuBarPollingTest, OpeningAgainWithinAVisibleIntervalDoesNotLookAgain)
{
    makePolling();
    m_model->beginVisiblePolling();
    EXPECT_EQ(looks(), 1);
    m_model->endVisiblePolling();
    m_time.goOn(4);
    m_model->beginVisiblePolling();
    EXPECT_EQ(looks(), 0);
    m_model->endVisiblePolling();
    m_time.goOn(1);
    m_model->beginVisiblePolling();
    EXPECT_EQ(looks(), 1);
}

TEST_F(KarvelloMenuBarPollingTest, ALookThatBeganInTheFutureIsNotFresh)
{
    m_settings.visibleRefreshIntervalNanoseconds = std::numeric_limits<std::uint64_t>::max();
    make();
    refreshNow();
    m_snapshotCount = 0;
    m_time.now -= 10;
    m_model->beginVisiblePolling();
    EXPECT_EQ(looks(), 1);
}

TEST_F(KarvelloMenuBarPollingTest, OpeningDuringALookStartsNoOther)
{
    make();
    m_model->refresh();
    m_time.goOn(30);
    m_model->beginVisiblePolling();
    EXPECT_EQ(looks(), 1);
}

TEST_F(KarvelloMenuBarPollingTest, TwoViewsStayOnTheFastRateUntilBothHaveGone)
{
    makePolling();
    m_model->beginVisiblePolling();
    m_model->beginVisiblePolling();
    EXPECT_EQ(m_model->pollingTaskGeneration(), 2);
    EXPECT_EQ(looks(), 1);
    m_model->endVisiblePolling();
    EXPECT_EQ(m_model->activePollingIntervalNanoseconds(), 5 * kSecond);
    EXPECT_EQ(looksIn(10), 2);
    m_model->endVisiblePolling();
    EXPECT_EQ(m_model->activePollingIntervalNanoseconds(), 60 * kSecond);
}

TEST_F(KarvelloMenuBarPollingTest, EndingVisiblePollingWithoutAViewChangesNothing)
{
    makePolling();
    m_model->endVisiblePolling();
    m_model->endVisiblePolling();
    EXPECT_EQ(m_model->pollingTaskGeneration(), 1);
    m_model->beginVisiblePolling();
    EXPECT_EQ(m_model->activePollingIntervalNanoseconds(), 5 * kSecond);
    EXPECT_EQ(looks(), 1);
}

TEST_F(KarvelloMenuBarPollingTest, AModelThatDidNotPollDoesAfterItWasVisible)
{
    make();
    m_model->beginVisiblePolling();
    m_model->endVisiblePolling();
    EXPECT_EQ(m_model->activePollingIntervalNanoseconds(), 60 * kSecond);
    EXPECT_EQ(looks(), 1);
    EXPECT_EQ(looksIn(60), 1);
}

TEST_F(KarvelloMenuBarPollingTest, ALookThatEndsAfterTheModelHarmsNobody)
{
    makePolling();
    m_model->refresh();
    m_executor.runAll();
    m_model.reset();
    finishRefresh();
    EXPECT_EQ(m_snapshotSignals, 0);
    EXPECT_EQ(m_time.dueAt, std::nullopt);
}

TEST_F(KarvelloMenuBarPollingTest, AnObserverMayDestroyTheModel)
{
    make();
    QObject::connect(m_model.get(), &KarvelloMenuBarStatusModel::snapshotChanged, [this] { m_model.reset(); });
    m_machine = lowDisk();
    refreshNow();
    EXPECT_EQ(m_model, nullptr);
}

} // namespace
