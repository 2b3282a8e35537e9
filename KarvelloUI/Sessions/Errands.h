#pragma once

#include "KarvelloUI/Sessions/JobExecutor.h"
#include "KarvelloUI/Sessions/JobOutcome.h"
#include "KarvelloUI/Sessions/QueuedCalls.h"

#include <functional>
#include <memory>
#include <type_traits>
#include <unordered_set>
#include <utility>

namespace KarvelloUI {

/// Background work that is done to its end whoever waits for it, such as what is written into a log. Any number runs side
/// by side. A member of its owner, used on the owner's thread, which has an event loop. When it is destroyed, what runs
/// goes on, and nobody is called back.
class Errands {
public:
    explicit Errands(JobExecutor& executor)
        : m_executor(executor)
    {
    }
    Errands(const Errands&) = delete;
    Errands& operator=(const Errands&) = delete;
    ~Errands() = default;

    /// `work() -> Result`, once, on a thread of the executor; then `finished(JobOutcome<Result>)` here.
    template <typename Work, typename Finished>
    void run(Work work, Finished finished)
    {
        using Result = std::invoke_result_t<Work&>;
        const auto errand = std::make_shared<std::move_only_function<void(JobOutcome<Result>)>>(std::move(finished));
        m_underWay.insert(errand);
        m_executor.execute(
            [this, known = std::weak_ptr(errand), owner = m_calls.entrance(), work = std::move(work)]() mutable {
                // `this` is touched by the queued call alone: it is not made when the errands have gone.
                owner.post([this, known, outcome = outcomeOf(work)]() mutable {
                    const auto ended = known.lock();
                    m_underWay.erase(ended);
                    (*ended)(std::move(outcome));
                });
            });
    }

    /// Whether some are under way.
    [[nodiscard]] bool areUnderWay() const { return !m_underWay.empty(); }

private:
    JobExecutor& m_executor;
    std::unordered_set<std::shared_ptr<void>> m_underWay;
    QueuedCalls m_calls;
};

} // namespace KarvelloUI
