#pragma once

#include "KarvelloUI/Sessions/JobExecutor.h"

#include <cstddef>
#include <deque>
#include <utility>

namespace TestSupport {

/// Work waits until the test runs it, on the test's own thread.
class ManualExecutor final : public KarvelloUI::JobExecutor {
public:
    void execute(Work work) override { m_waiting.push_back(std::move(work)); }

    [[nodiscard]] std::size_t waitingCount() const { return m_waiting.size(); }

    /// Runs the work that waits longest.
    void runOne()
    {
        auto work = std::move(m_waiting.front());
        m_waiting.pop_front();
        work();
    }

    /// Runs all that waits, and what that adds.
    void runAll()
    {
        while (!m_waiting.empty()) {
            runOne();
        }
    }

private:
    std::deque<Work> m_waiting;
};

} // namespace TestSupport
