#pragma once

#include "KarvelloUI/Sessions/JobExecutor.h"

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

namespace KarvelloUI {

/// Threads for background work. They are started as they are needed, up to a limit, and stay.
///
/// The destructor waits until all work has run. Jobs that ended ask theirs to stop, so that this is soon; what nobody
/// stops (an entry on its way into the audit log) comes to its end.
class JobThreads final : public JobExecutor {
public:
    /// More than what sessions run side by side: superseded work keeps its thread until it notices.
    static constexpr std::size_t kDefaultLimit = 16;

    /// `limit` is at least 1.
    explicit JobThreads(std::size_t limit = kDefaultLimit);
    ~JobThreads() override;
    JobThreads(const JobThreads&) = delete;
    JobThreads& operator=(const JobThreads&) = delete;

    void execute(Work work) override;

private:
    void runWork();

    const std::size_t m_limit;
    std::mutex m_lock;
    std::condition_variable m_changed;
    std::deque<Work> m_waiting;
    std::size_t m_idleThreads = 0;
    bool m_isEnding = false;
    std::vector<std::jthread> m_threads;
};

} // namespace KarvelloUI
