#include "CleanerCore/Insights/WorkerPool.h"

#include <memory>
#include <utility>

namespace CleanerCore {

namespace {

constexpr std::size_t kTasksToGoOn = 8;

} // namespace

WorkerPool::WorkerPool(unsigned threads, std::size_t bufferBytes)
{
    m_threads.reserve(threads);
    for (unsigned index = 0; index < threads; ++index) {
        m_threads.emplace_back([this, bufferBytes](const std::stop_token& stop) { work(stop, bufferBytes); });
    }
}

void WorkerPool::submit(Urgency urgency, Task task)
{
    {
        const std::scoped_lock guard(m_lock);
        (urgency == Urgency::next ? m_next : m_later).push_back(std::move(task));
    }
    m_taskWaits.notify_one();
}

void WorkerPool::announceIfShortOfWork()
{
    {
        const std::scoped_lock guard(m_lock);
        if (m_next.size() + m_later.size() > kTasksToGoOn * m_threads.size()) {
            return;
        }
        m_hasAnnouncement = true;
    }
    m_announced.notify_one();
}

void WorkerPool::awaitAnnouncement(std::chrono::milliseconds limit)
{
    std::unique_lock guard(m_lock);
    m_announced.wait_for(guard, limit, [this] { return m_hasAnnouncement; });
    m_hasAnnouncement = false;
}

void WorkerPool::work(const std::stop_token& stop, std::size_t bufferBytes)
{
    // Not touched, and so no memory, until it is read into.
    const auto buffer = std::make_unique_for_overwrite<std::byte[]>(bufferBytes);
    std::unique_lock guard(m_lock);
    while (m_taskWaits.wait(guard, stop, [this] { return !m_next.empty() || !m_later.empty(); })
        && !stop.stop_requested()) {
        auto& tasks = m_next.empty() ? m_later : m_next;
        auto task = std::move(tasks.front());
        tasks.pop_front();
        guard.unlock();
        task({buffer.get(), bufferBytes});
        task = nullptr;
        guard.lock();
    }
}

} // namespace CleanerCore
