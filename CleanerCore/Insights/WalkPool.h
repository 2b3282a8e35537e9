#pragma once

#include "CleanerCore/Insights/InsightWalk.h"
#include "CleanerCore/Insights/WalkTask.h"

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

namespace CleanerCore {

/// Threads that walk ahead of the one that reads the walk of a root in the order of the tree. They take the earliest
/// folders first, and give folders away while others have nothing to do. What they have visited beyond the reader is
/// bounded by what the reader may still read, so a small budget costs little more than it would without threads. The
/// destructor stops the threads and waits for them.
class WalkPool {
public:
    explicit WalkPool(unsigned threads);
    ~WalkPool();
    WalkPool(const WalkPool&) = delete;
    WalkPool& operator=(const WalkPool&) = delete;

    /// Begins with another root and gives its own task, which is the reader's. `rules` must live until `discard`.
    [[nodiscard]] std::shared_ptr<WalkTask> begin(const WalkRules& rules, std::stop_token stop);
    /// What the reader may still read: from `begin` on 0 until it is told.
    void setBudget(std::int64_t visits, std::int64_t packageVisits);
    void submit(const std::shared_ptr<WalkTask>& task);
    /// True if no thread has begun with the task: it is the reader's own then, and no thread will.
    [[nodiscard]] bool claim(WalkTask& task);
    /// The next segment of a task that a thread walks; waits for it.
    [[nodiscard]] WalkTask::Produced take(WalkTask& task);
    /// Forgets what no thread has begun and waits for what was begun; the stop must have been requested by then.
    void discard();

    [[nodiscard]] bool hasIdleThreads() const { return m_spareThreads.load(std::memory_order_relaxed) > 0; }
    /// Has threads that wait look again whether there is a stop.
    void wake();

private:
    void work(const std::stop_token& end);
    void walk(WalkTask& task, std::unique_lock<std::mutex>& guard);
    [[nodiscard]] bool mayGoOn(const WalkTask& task) const;
    void countSpareThreads();

    const WalkRules* m_rules = nullptr;
    std::stop_token m_stop;

    std::mutex m_lock;
    std::condition_variable_any m_workAvailable;
    std::condition_variable m_mayGoOn;
    std::condition_variable m_producedSomething;
    std::map<WalkTask::Place, std::shared_ptr<WalkTask>> m_waiting;
    std::size_t m_walking = 0;
    std::size_t m_idle = 0;
    /// Visits that no reader has read yet.
    std::int64_t m_ahead = 0;
    std::int64_t m_visitBudget = 0;
    std::int64_t m_packageVisitBudget = 0;
    /// What the reader waits for.
    const WalkTask* m_wanted = nullptr;
    std::atomic<std::int64_t> m_spareThreads = 0;

    std::vector<std::jthread> m_threads;
};

} // namespace CleanerCore
