#pragma once

#include "CleanerCore/Scan/ChildDecision.h"
#include "CleanerCore/Scan/InventoryEvents.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/ItemReference.h"

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

namespace CleanerCore {

/// Decides children on several threads and hands back what happened in the order of the children, as if one thread had
/// decided them one after another. Everything but the deciding happens on the thread that owns the pipeline. The
/// destructor stops the threads and waits for them.
class ChildPipeline {
public:
    /// Something that happened during the walk of a child.
    struct Event {
        enum class Kind : std::uint8_t { walking, itemFailed, enumerationFailed };
        Kind kind = Kind::walking;
        std::int64_t itemNumber = 0;
        Platform::FileURL url;
        std::string reason;
    };

    /// A few children that one thread decides together. A folder stands alone in its batch.
    class Batch {
    public:
        Batch(std::shared_ptr<const ChildDecision> decision, bool wantsProgress)
            : m_decision(std::move(decision))
            , m_wantsProgress(wantsProgress)
        {
        }

        void add(Platform::ItemReference child) { m_children.push_back(std::move(child)); }
        [[nodiscard]] bool isFull() const { return m_children.size() >= kMaximumChildren; }
        [[nodiscard]] const std::vector<Platform::ItemReference>& children() const { return m_children; }

    private:
        friend class ChildPipeline;
        class EventSink;

        static constexpr std::size_t kMaximumChildren = 64;

        std::shared_ptr<const ChildDecision> m_decision;
        bool m_wantsProgress = false;
        std::vector<Platform::ItemReference> m_children;
        std::vector<ChildOutcome> m_outcomes;
        // Guarded by the pipeline's lock until the batch is decided.
        std::deque<Event> m_events;
        bool m_isDecided = false;
    };

    explicit ChildPipeline(unsigned threads);
    ~ChildPipeline();
    ChildPipeline(const ChildPipeline&) = delete;
    ChildPipeline& operator=(const ChildPipeline&) = delete;

    [[nodiscard]] bool isEmpty() const { return m_ordered.empty(); }
    /// Whether another batch may be submitted. The limit keeps what is waiting small whatever the size of the root.
    [[nodiscard]] bool hasRoom() const { return m_ordered.size() < m_capacity; }
    void submit(std::unique_ptr<Batch> batch);

    /// The oldest batch; the pipeline must not be empty.
    [[nodiscard]] std::shared_ptr<const Batch> front() const { return m_ordered.front(); }
    /// What has happened in the oldest batch since the last call: waits until there is something, and gives an empty
    /// list once the batch is decided and all its events were handed out.
    [[nodiscard]] std::deque<Event> nextEvents();
    /// The outcomes of the oldest batch, one for each child; the batch leaves the pipeline. Only after `nextEvents` gave
    /// an empty list.
    [[nodiscard]] std::vector<ChildOutcome> takeOutcomes();

    /// Forgets every batch that no thread has begun and waits for those that were begun. Their stop token must have
    /// been set by then, or they are decided to their end.
    void discard();

private:
    void work(const std::stop_token& stop);

    std::size_t m_capacity;
    std::deque<std::shared_ptr<Batch>> m_ordered;
    std::mutex m_lock;
    std::condition_variable_any m_workAvailable;
    std::condition_variable m_somethingHappened;
    std::deque<std::shared_ptr<Batch>> m_waiting;
    std::size_t m_begun = 0;
    std::vector<std::jthread> m_threads;
};

} // namespace CleanerCore
