#pragma once

#include "KarvelloUI/Stores/DelayedCall.h"
#include "KarvelloUI/Stores/SystemMetricHistorySaveSchedule.h"
#include "KarvelloUI/Stores/SystemMetricHistoryStore.h"

#include <QObject>
#include <QThreadPool>
#include <cstdint>
#include <functional>
#include <memory>

namespace KarvelloUI {

/// Saves the history of a machine that is sampled all the time, as `SystemMetricHistorySaveSchedule` tells. The main
/// thread never waits for the disk: what is to be saved is written by one thread of its own, in order. The end of this
/// object waits for what was handed to that thread, and drops a save that waits for its debounce; who wants that one
/// calls `flush` before.
class SystemMetricHistoryPersistenceScheduler final : public QObject {
    Q_OBJECT

public:
    struct Intervals {
        std::uint64_t debounceNanoseconds = 0;
        std::uint64_t maximumDeferredSaveNanoseconds = 0;
    };
    /// The time that tests put in place of the machine's.
    struct Time {
        /// In nanoseconds.
        std::function<std::uint64_t()> uptime;
        std::unique_ptr<DelayedCall> delayedCall;

        [[nodiscard]] static Time ofMachine();
    };

    SystemMetricHistoryPersistenceScheduler(
        SystemMetricHistoryStore store, Intervals intervals, Time time = Time::ofMachine(), QObject* parent = nullptr);
    ~SystemMetricHistoryPersistenceScheduler() override;

    /// A `sequence` that is not above those before comes too late and is ignored.
    void scheduleSave(const SystemMetricHistory& history, std::int64_t sequence);
    /// Saves at once, instead of what waits.
    void flush(const SystemMetricHistory& history, std::int64_t sequence);
    /// Returns when all that is to be saved by now is stored.
    void waitForSaves();

private:
    void save(const SystemMetricHistory& history);

    SystemMetricHistoryStore m_store;
    Intervals m_intervals;
    Time m_time;
    SystemMetricHistorySaveSchedule m_schedule;
    QThreadPool m_writer;
};

} // namespace KarvelloUI
