#include "KarvelloUI/Stores/SystemMetricHistoryPersistenceScheduler.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <utility>

namespace KarvelloUI {

namespace {

std::chrono::nanoseconds delayOf(std::uint64_t nanoseconds)
{
    constexpr auto longest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    return std::chrono::nanoseconds(static_cast<std::int64_t>(std::min(nanoseconds, longest)));
}

} // namespace

SystemMetricHistoryPersistenceScheduler::Time SystemMetricHistoryPersistenceScheduler::Time::ofMachine()
{
    return {
        .uptime =
            [] {
                const std::chrono::nanoseconds uptime = std::chrono::steady_clock::now().time_since_epoch();
                return static_cast<std::uint64_t>(uptime.count());
            },
        .delayedCall = std::make_unique<TimedCall>(),
    };
}

SystemMetricHistoryPersistenceScheduler::SystemMetricHistoryPersistenceScheduler(
    SystemMetricHistoryStore store, Intervals intervals, Time time, QObject* parent)
    : QObject(parent)
    , m_store(std::move(store))
    , m_intervals(intervals)
    , m_time(std::move(time))
    , m_schedule(intervals.maximumDeferredSaveNanoseconds)
{
    m_writer.setMaxThreadCount(1); // Which also keeps the order.
}

SystemMetricHistoryPersistenceScheduler::~SystemMetricHistoryPersistenceScheduler()
{
    m_time.delayedCall->cancel();
    waitForSaves();
}

void SystemMetricHistoryPersistenceScheduler::scheduleSave(const SystemMetricHistory& history, std::int64_t sequence)
{
    using enum SystemMetricHistorySaveSchedule::Decision;
    switch (m_schedule.accept(sequence, m_time.uptime())) {
    case ignore:
        break;
    case saveNow:
        m_time.delayedCall->cancel();
        save(history);
        break;
    case saveLater:
        m_time.delayedCall->start(delayOf(m_intervals.debounceNanoseconds), [this, history, sequence] {
            if (m_schedule.finishWaiting(sequence)) {
                save(history);
            }
        });
        break;
    }
}

void SystemMetricHistoryPersistenceScheduler::flush(const SystemMetricHistory& history, std::int64_t sequence)
{
    m_schedule.flush(sequence);
    m_time.delayedCall->cancel();
    save(history);
}

void SystemMetricHistoryPersistenceScheduler::waitForSaves()
{
    m_writer.waitForDone();
}

void SystemMetricHistoryPersistenceScheduler::save(const SystemMetricHistory& history)
{
    m_writer.start([store = m_store, history] { store.save(history); });
}

} // namespace KarvelloUI
