#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <span>
#include <stop_token>
#include <thread>
#include <vector>

namespace CleanerCore {

/// Threads that do what one owner hands them, each with a buffer of its own. The destructor forgets what has not been
/// begun and waits for the rest.
class WorkerPool {
public:
    using Task = std::function<void(std::span<std::byte> buffer)>;
    enum class Urgency : std::uint8_t { later, next };

    WorkerPool(unsigned threads, std::size_t bufferBytes);
    ~WorkerPool() = default;
    WorkerPool(const WorkerPool&) = delete;
    WorkerPool& operator=(const WorkerPool&) = delete;

    /// What is to be done next is taken before all that is for later; apart from that the order stays.
    void submit(Urgency urgency, Task task);

    /// For a task: the owner has something to look at. It is not woken for that while the threads still have enough to
    /// do: many small tasks would keep it from letting them work.
    void announceIfShortOfWork();
    /// For the owner: returns at the first announcement since the last call, or when the time is over.
    void awaitAnnouncement(std::chrono::milliseconds limit);

private:
    void work(const std::stop_token& stop, std::size_t bufferBytes);

    std::mutex m_lock;
    std::condition_variable_any m_taskWaits;
    std::condition_variable m_announced;
    std::deque<Task> m_next;
    std::deque<Task> m_later;
    bool m_hasAnnouncement = false;
    std::vector<std::jthread> m_threads;
};

} // namespace CleanerCore
