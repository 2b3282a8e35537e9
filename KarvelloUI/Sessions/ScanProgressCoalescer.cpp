#include "KarvelloUI/Sessions/ScanProgressCoalescer.h"

#include "KarvelloUI/Sessions/JobExecutor.h"

#include <condition_variable>
#include <mutex>
#include <optional>
#include <utility>

namespace KarvelloUI {

using CleanerCore::StorageScanProgress;

namespace {

/// False if the sleep was cut short.
bool sleepFor(std::chrono::nanoseconds duration, const std::stop_token& stop)
{
    std::mutex lock;
    std::condition_variable_any stopped;
    std::unique_lock guard(lock);
    stopped.wait_for(guard, stop, duration, [] { return false; });
    return !stop.stop_requested();
}

} // namespace

ScanProgressTiming ScanProgressTiming::system(JobExecutor& executor)
{
    return {
        .now = [] { return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()); },
        .callAfter =
            [&executor](std::chrono::nanoseconds delay, std::stop_token stop, std::function<void()> call) {
                executor.execute([delay, stop = std::move(stop), call = std::move(call)] {
                    if (sleepFor(delay, stop)) {
                        call();
                    }
                });
            },
    };
}

class ScanProgressCoalescer::State : public std::enable_shared_from_this<State> {
public:
    State(ScanProgressContinuation continuation, ScanProgressTiming timing)
        : m_continuation(std::move(continuation))
        , m_timing(std::move(timing))
    {
    }

    void submit(StorageScanProgress progress) { send(progressToPublishOrSchedule(std::move(progress))); }

    void finish(Pending pending)
    {
        std::optional<Update> last;
        {
            const std::scoped_lock guard(m_lock);
            if (m_isFinished) {
                return;
            }
            m_isFinished = true;
            if (pending == Pending::publish && m_latestDelayedProgress) {
                last = numbered(std::move(*m_latestDelayedProgress));
            }
            m_latestDelayedProgress.reset();
            cancelScheduledTask();
        }
        send(std::move(last));
        const std::scoped_lock guard(m_sendingLock);
        m_hasEnded = true;
        m_continuation.finish();
    }

    /// Nobody sleeps for it any longer.
    void abandon()
    {
        const std::scoped_lock guard(m_lock);
        m_isFinished = true;
        cancelScheduledTask();
    }

private:
    /// In the order in which they were let through.
    struct Update {
        std::uint64_t number;
        StorageScanProgress progress;
    };

    std::optional<Update> progressToPublishOrSchedule(StorageScanProgress progress)
    {
        const std::scoped_lock guard(m_lock);
        if (m_isFinished) {
            return std::nullopt;
        }
        const auto now = m_timing.now();
        // A clock that stands still or goes back holds nothing up.
        const bool isEarly = progress.fractionCompleted < 1 && m_lastPublishedAt && now > *m_lastPublishedAt
            && now - *m_lastPublishedAt < kMinimumIntervalNanoseconds;
        if (isEarly) {
            m_latestDelayedProgress = std::move(progress);
            if (!m_scheduledTask) {
                schedule(kMinimumIntervalNanoseconds - (now - *m_lastPublishedAt));
            }
            return std::nullopt;
        }
        m_latestDelayedProgress.reset();
        cancelScheduledTask();
        m_lastPublishedAt = now;
        return numbered(std::move(progress));
    }

    void schedule(std::uint64_t nanoseconds)
    {
        m_scheduledTask.emplace();
        m_timing.callAfter(std::chrono::nanoseconds(nanoseconds), m_scheduledTask->get_token(),
            [known = weak_from_this(), stop = m_scheduledTask->get_token()] {
                if (const auto state = known.lock()) {
                    state->publishLatestDelayedProgress(stop);
                }
            });
    }

    void publishLatestDelayedProgress(const std::stop_token& stop)
    {
        std::optional<Update> update;
        {
            const std::scoped_lock guard(m_lock);
            // Its sleep may have been over when a newer update passed it by; what waits now belongs to the next sleep.
            if (m_isFinished || stop.stop_requested()) {
                return;
            }
            m_scheduledTask.reset();
            if (m_latestDelayedProgress) {
                m_lastPublishedAt = m_timing.now();
                update = numbered(std::move(*m_latestDelayedProgress));
                m_latestDelayedProgress.reset();
            }
        }
        send(std::move(update));
    }

    void cancelScheduledTask()
    {
        if (m_scheduledTask) {
            m_scheduledTask->request_stop();
            m_scheduledTask.reset();
        }
    }

    Update numbered(StorageScanProgress progress)
    {
        return {.number = ++m_lastNumber, .progress = std::move(progress)};
    }

    /// Between a decision and this call another thread may have sent what was decided later: the older one is dropped.
    void send(std::optional<Update> update)
    {
        if (!update) {
            return;
        }
        const std::scoped_lock guard(m_sendingLock);
        if (!m_hasEnded && update->number > m_lastSentNumber) {
            m_lastSentNumber = update->number;
            m_continuation.yield(std::move(update->progress));
        }
    }

    const ScanProgressContinuation m_continuation;
    const ScanProgressTiming m_timing;

    std::mutex m_lock;
    std::optional<StorageScanProgress> m_latestDelayedProgress;
    std::optional<std::uint64_t> m_lastPublishedAt;
    std::optional<std::stop_source> m_scheduledTask;
    bool m_isFinished = false;
    std::uint64_t m_lastNumber = 0;

    /// Never taken under `m_lock`, nor the other way round.
    std::mutex m_sendingLock;
    std::uint64_t m_lastSentNumber = 0;
    bool m_hasEnded = false;
};

ScanProgressCoalescer::ScanProgressCoalescer(ScanProgressContinuation continuation, ScanProgressTiming timing)
    : m_state(std::make_shared<State>(std::move(continuation), std::move(timing)))
{
}

ScanProgressCoalescer::~ScanProgressCoalescer()
{
    m_state->abandon();
}

void ScanProgressCoalescer::submit(StorageScanProgress progress)
{
    m_state->submit(std::move(progress));
}

void ScanProgressCoalescer::finish(Pending pending)
{
    m_state->finish(pending);
}

} // namespace KarvelloUI
