#include "KarvelloUI/Stores/SystemMetricHistoryPersistenceScheduler.h"

#include "Tests/KarvelloUI/Stores/PreferencesFixture.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/TestTime.h"

#include <chrono>
#include <gmock/gmock.h>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace KarvelloUI {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using TestSupport::kSecond;
using TestSupport::TestCall;
using TestSupport::TestTime;

/// Tells of each save, and lets none through while it is shut.
class WatchedUserDefaults final : public Platform::UserDefaults {
public:
    explicit WatchedUserDefaults(Platform::UserDefaults& inner)
        : m_inner(inner)
    {
    }
    [[nodiscard]] std::optional<Platform::DefaultsValue> value(std::string_view key) const override
    {
        return m_inner.value(key);
    }
    [[nodiscard]] std::expected<void, Platform::FileError> apply(
        std::span<const Platform::DefaultsChange> changes) override
    {
        const std::lock_guard guard(gate);
        auto applied = m_inner.apply(changes);
        saves.push_back(SystemMetricHistoryStore(m_inner).load().cpuLoad().back());
        threads.push_back(std::this_thread::get_id());
        return applied;
    }
    [[nodiscard]] Observation observe(Observer observer) override { return m_inner.observe(std::move(observer)); }

    std::mutex gate;
    /// The newest load of each history, in the order of the saves.
    std::vector<double> saves;
    std::vector<std::thread::id> threads;

private:
    Platform::UserDefaults& m_inner;
};

class SystemMetricHistoryPersistenceSchedulerTest : public StoresTests::PreferencesTest {
protected:
    [[nodiscard]] std::unique_ptr<SystemMetricHistoryPersistenceScheduler> make(
        std::uint64_t debounce = 30, std::uint64_t maximum = 120)
    {
        return std::make_unique<SystemMetricHistoryPersistenceScheduler>(SystemMetricHistoryStore(m_watched),
            SystemMetricHistoryPersistenceScheduler::Intervals{debounce * kSecond, maximum * kSecond},
            SystemMetricHistoryPersistenceScheduler::Time{
                .uptime = [this] { return m_time.now; }, .delayedCall = std::make_unique<TestCall>(m_time)});
    }

    [[nodiscard]] const std::vector<double>& saves()
    {
        m_scheduler->waitForSaves();
        return m_watched.saves;
    }

    [[nodiscard]] static SystemMetricHistory history(double load) { return {{load}, {}, {}}; }

    TestSupport::EventLoop m_loop;
    TestTime m_time;
    WatchedUserDefaults m_watched{m_file};
    std::unique_ptr<SystemMetricHistoryPersistenceScheduler> m_scheduler = make();
};

} // namespace

TEST_F(SystemMetricHistoryPersistenceSchedulerTest, SavesWhenTheSamplesPause)
{
    m_scheduler->scheduleSave(history(0.1), 1);
    m_time.goOn(29);
    EXPECT_THAT(saves(), IsEmpty());
    m_scheduler->scheduleSave(history(0.2), 2);
    m_time.goOn(29);
    EXPECT_THAT(saves(), IsEmpty());
    m_time.goOn(1);
    EXPECT_THAT(saves(), ElementsAre(0.2));
    m_time.goOn(1000);
    EXPECT_THAT(saves(), ElementsAre(0.2));
}

TEST_F(SystemMetricHistoryPersistenceSchedulerTest, IgnoresACallWithTheSequenceOfTheLastOne)
{
    m_scheduler->scheduleSave(history(0.2), 2);
    m_time.goOn(10);
    m_scheduler->scheduleSave(history(0.9), 2);
    m_scheduler->scheduleSave(history(0.1), 1);
    m_time.goOn(20);
    EXPECT_THAT(saves(), ElementsAre(0.2));
}

TEST_F(SystemMetricHistoryPersistenceSchedulerTest, SavesSamplesOfEveryTenSecondsOnceAtTheFirstPastTheMark)
{
    std::vector<std::size_t> savedBy;
    for (int sample = 0; sample <= 25; ++sample) {
        m_scheduler->scheduleSave(history(sample / 100.0), sample + 1);
        savedBy.push_back(saves().size());
        m_time.goOn(10);
    }
    // Samples 0 to 11 wait; the one after 120 seconds is saved, and the next wait begins with the one behind it.
    EXPECT_EQ(savedBy[11], 0);
    EXPECT_EQ(savedBy[12], 1);
    EXPECT_EQ(savedBy[24], 1);
    EXPECT_EQ(savedBy[25], 2);
    EXPECT_THAT(m_watched.saves, ElementsAre(0.12, 0.25));
}

TEST_F(SystemMetricHistoryPersistenceSchedulerTest, WritesOnceForAFlushWhileASaveWaits)
{
    m_scheduler->scheduleSave(history(0.1), 1);
    m_time.goOn(10);
    m_scheduler->flush(history(0.2), 2);
    EXPECT_THAT(saves(), ElementsAre(0.2));
    m_time.goOn(1000);
    EXPECT_THAT(saves(), ElementsAre(0.2));
    m_scheduler->scheduleSave(history(0.1), 2);
    m_time.goOn(1000);
    EXPECT_THAT(saves(), ElementsAre(0.2));
}

TEST_F(SystemMetricHistoryPersistenceSchedulerTest, SavesAtItsNextTurnForADebounceOfZero)
{
    m_scheduler = std::make_unique<SystemMetricHistoryPersistenceScheduler>(
        SystemMetricHistoryStore(m_watched), SystemMetricHistoryPersistenceScheduler::Intervals{0, 120 * kSecond});
    m_scheduler->scheduleSave(history(0.1), 1);
    EXPECT_THAT(saves(), IsEmpty());
    m_scheduler->scheduleSave(history(0.2), 2);
    EXPECT_TRUE(m_loop.runUntil([&] { return !saves().empty(); }));
    EXPECT_THAT(saves(), ElementsAre(0.2));
}

TEST_F(SystemMetricHistoryPersistenceSchedulerTest, SavesByTheTimeOfTheMachineToo)
{
    m_scheduler = std::make_unique<SystemMetricHistoryPersistenceScheduler>(
        SystemMetricHistoryStore(m_watched), SystemMetricHistoryPersistenceScheduler::Intervals{20'000'000, 0});
    const auto start = std::chrono::steady_clock::now();
    m_scheduler->scheduleSave(history(0.1), 1);
    EXPECT_TRUE(m_loop.runUntil([&] { return !saves().empty(); }));
    EXPECT_GE(std::chrono::steady_clock::now() - start, 20ms);
}

TEST_F(SystemMetricHistoryPersistenceSchedulerTest, NeverWaitsForTheDiskAndWritesInOrder)
{
    {
        const std::lock_guard shut(m_watched.gate);
        for (int step = 1; step <= 5; ++step) {
            m_scheduler->flush(history(step / 10.0), step);
        }
        m_scheduler->scheduleSave(history(0.6), 6);
        m_time.goOn(30);
    }
    EXPECT_THAT(saves(), ElementsAre(0.1, 0.2, 0.3, 0.4, 0.5, 0.6));
    for (const auto thread : m_watched.threads) {
        EXPECT_NE(thread, std::this_thread::get_id());
    }
    EXPECT_EQ(SystemMetricHistoryStore(m_file).load(), history(0.6));
}

TEST_F(SystemMetricHistoryPersistenceSchedulerTest, FinishesAtItsEndWhatWasHandedOverAndDropsWhatWaits)
{
    {
        const std::lock_guard shut(m_watched.gate);
        m_scheduler->flush(history(0.1), 1);
        m_scheduler->flush(history(0.2), 2);
        m_scheduler->scheduleSave(history(0.3), 3);
    }
    m_scheduler.reset();
    EXPECT_THAT(m_watched.saves, ElementsAre(0.1, 0.2));
    EXPECT_EQ(SystemMetricHistoryStore(m_file).load(), history(0.2));
    m_time.goOn(1000);
    EXPECT_EQ(m_watched.saves.size(), 2);
}

TEST_F(SystemMetricHistoryPersistenceSchedulerTest, GoesOnAfterASaveThatFailed)
{
    m_scheduler = std::make_unique<SystemMetricHistoryPersistenceScheduler>(SystemMetricHistoryStore(m_defaults),
        SystemMetricHistoryPersistenceScheduler::Intervals{},
        SystemMetricHistoryPersistenceScheduler::Time{
            .uptime = [this] { return m_time.now; }, .delayedCall = std::make_unique<TestCall>(m_time)});
    m_defaults.failSave(1);
    m_scheduler->flush(history(0.1), 1);
    m_scheduler->waitForSaves();
    EXPECT_EQ(m_defaults.failureCount(), 1);
    m_scheduler->flush(history(0.2), 2);
    m_scheduler->waitForSaves();
    EXPECT_EQ(SystemMetricHistoryStore(m_file).load(), history(0.2));
}

} // namespace KarvelloUI
