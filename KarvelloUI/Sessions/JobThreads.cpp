#include "KarvelloUI/Sessions/JobThreads.h"

#include <algorithm>
#include <utility>

namespace KarvelloUI {

JobThreads::JobThreads(std::size_t limit)
    : m_limit(std::max<std::size_t>(limit, 1))
{
}

JobThreads::~JobThreads()
{
    // Work may hand over more work until the last thread has gone, but no thread is added any more.
    std::vector<std::jthread> threads;
    {
        const std::scoped_lock guard(m_lock);
        m_isEnding = true;
        threads.swap(m_threads);
    }
    m_changed.notify_all();
}

void JobThreads::execute(Work work)
{
    {
        const std::scoped_lock guard(m_lock);
        m_waiting.push_back(std::move(work));
        if (!m_isEnding && m_waiting.size() > m_idleThreads && m_threads.size() < m_limit) {
            m_threads.emplace_back([this] { runWork(); });
            return;
        }
    }
    m_changed.notify_one();
}

void JobThreads::runWork()
{
    std::unique_lock guard(m_lock);
    for (;;) {
        ++m_idleThreads;
        m_changed.wait(guard, [this] { return m_isEnding || !m_waiting.empty(); });
        --m_idleThreads;
        if (m_waiting.empty()) {
            return;
        }
        auto work = std::move(m_waiting.front());
        m_waiting.pop_front();
        guard.unlock();
        work();
        // What the work holds goes before the next look at the queue, and not under the lock.
        work = nullptr;
        guard.lock();
    }
}

} // namespace KarvelloUI
