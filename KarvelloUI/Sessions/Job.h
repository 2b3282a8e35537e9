#pragma once

#include "KarvelloUI/Sessions/JobExecutor.h"
#include "KarvelloUI/Sessions/JobOutcome.h"
#include "KarvelloUI/Sessions/JobProgress.h"
#include "KarvelloUI/Sessions/QueuedCalls.h"

#include <functional>
#include <memory>
#include <stop_token>
#include <type_traits>
#include <utility>

namespace KarvelloUI {

/// The one long operation of a session: values go to a background thread, values come back. A member of its owner, used on
/// the owner's thread, which has an event loop.
///
/// A run is current until its result is there, until `cancel`, until the next `start`, or until the job is destroyed. Only
/// the current run calls back, by queued calls; what comes from any other is dropped, however far it was on its way. None
/// of the calls here waits for running work, and work that was dropped before it began never begins.
///
/// What runs is given a stop token and looks at it; it holds values only. What is called back may do anything with the
/// job: start it again, cancel it, destroy it together with the owner.
class Job {
public:
    explicit Job(JobExecutor& executor);
    ~Job();
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    /// `work(std::stop_token) -> Result`, once, on a thread of the executor; then `finished(JobOutcome<Result>)` here.
    template <typename Work, typename Finished>
    void start(Work work, Finished finished)
    {
        using Result = std::invoke_result_t<Work&, const std::stop_token&>;
        auto run = begin(Run<Result>{.finished = std::move(finished)});
        execute<Result>(run, std::move(work));
    }

    /// `work(std::stop_token, JobProgress<Progress>) -> Result`: each `progressed(Progress)` comes here before the result.
    template <typename Progress, typename Work, typename Progressed, typename Finished>
    void start(Work work, Progressed progressed, Finished finished)
    {
        using Result = std::invoke_result_t<Work&, const std::stop_token&, JobProgress<Progress>>;
        auto run = begin(
            ReportingRun<Result, Progress>{{.finished = std::move(finished)}, /* progressed */ std::move(progressed)});
        JobProgress<Progress> progress(m_calls.entrance(), [this, known = std::weak_ptr(run)](Progress report) {
            if (const auto current = known.lock(); isCurrent(current)) {
                current->progressed(std::move(report));
            }
        });
        execute<Result>(
            run, [work = std::move(work), progress = std::move(progress)](const std::stop_token& stop) mutable {
                return work(stop, progress);
            });
    }

    /// Asks the current run to stop. It stays current, and its result comes: what it did until then is not lost. Work that
    /// has not begun begins, with a token that says stop.
    void requestStop();
    /// Asks the current run to stop and drops it: nothing of it comes any more.
    void cancel();
    /// Whether a result is to come.
    [[nodiscard]] bool isRunning() const { return m_run != nullptr; }

private:
    template <typename Result>
    struct Run {
        std::move_only_function<void(JobOutcome<Result>)> finished;
    };
    template <typename Result, typename Progress>
    struct ReportingRun : Run<Result> {
        std::move_only_function<void(Progress)> progressed;
    };

    /// The only owner of what a run calls back is `m_run`; threads know it weakly. So an ended run has nothing to call.
    template <typename AnyRun>
    std::shared_ptr<AnyRun> begin(AnyRun callbacks)
    {
        cancel();
        auto run = std::make_shared<AnyRun>(std::move(callbacks));
        m_stop = std::stop_source();
        m_run = run;
        return run;
    }

    template <typename Result, typename Work>
    void execute(const std::shared_ptr<Run<Result>>& run, Work work)
    {
        m_executor.execute([this, known = std::weak_ptr(run), owner = m_calls.entrance(), stop = m_stop.get_token(),
                               work = std::move(work)]() mutable {
            if (known.expired()) {
                return;
            }
            auto outcome = outcomeOf(work, stop);
            // What nobody waits for may be large: it goes here, not on the owner's thread.
            if (known.expired()) {
                return;
            }
            // `this` is touched by the queued call alone: it is not made when the job has gone.
            owner.post([this, known, outcome = std::move(outcome)]() mutable {
                if (const auto ended = known.lock(); isCurrent(ended)) {
                    m_run.reset();
                    ended->finished(std::move(outcome));
                }
            });
        });
    }

    /// Not the same as being alive: a run whose callback is at work stays alive, whatever the callback does to the job.
    [[nodiscard]] bool isCurrent(const std::shared_ptr<void>& run) const { return run != nullptr && run == m_run; }

    JobExecutor& m_executor;
    std::stop_source m_stop{std::nostopstate};
    std::shared_ptr<void> m_run;
    QueuedCalls m_calls;
};

} // namespace KarvelloUI
