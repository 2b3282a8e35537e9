#include "CleanerCore/Scan/ChildPipeline.h"

#include <utility>

namespace CleanerCore {

namespace {

constexpr std::size_t kBatchesPerThread = 8;

} // namespace

/// Puts what a walk reports where the owner of the pipeline finds it.
class ChildPipeline::Batch::EventSink final : public InventoryEvents {
public:
    EventSink(ChildPipeline& pipeline, Batch& batch)
        : m_pipeline(pipeline)
        , m_batch(batch)
    {
    }

    [[nodiscard]] bool wantsProgress() const override { return m_batch.m_wantsProgress; }
    void walkingAt(std::int64_t itemNumber, Platform::FileURL url) override
    {
        add({.kind = Event::Kind::walking, .itemNumber = itemNumber, .url = std::move(url), .reason = {}});
    }
    void failed(InventoryFailure failure, std::int64_t itemNumber, SkippedItem item) override
    {
        const auto kind = failure == InventoryFailure::item ? Event::Kind::itemFailed : Event::Kind::enumerationFailed;
        add({.kind = kind, .itemNumber = itemNumber, .url = std::move(item.url), .reason = std::move(item.reason)});
    }

private:
    void add(Event event)
    {
        {
            const std::scoped_lock guard(m_pipeline.m_lock);
            m_batch.m_events.push_back(std::move(event));
        }
        m_pipeline.m_somethingHappened.notify_one();
    }

    ChildPipeline& m_pipeline;
    Batch& m_batch;
};

ChildPipeline::ChildPipeline(unsigned threads)
    : m_capacity(threads * kBatchesPerThread)
{
    m_threads.reserve(threads);
    for (unsigned index = 0; index < threads; ++index) {
        m_threads.emplace_back([this](const std::stop_token& stop) { work(stop); });
    }
}

ChildPipeline::~ChildPipeline()
{
    discard();
}

void ChildPipeline::submit(std::unique_ptr<Batch> batch)
{
    const auto shared = std::shared_ptr<Batch>(std::move(batch));
    m_ordered.push_back(shared);
    {
        const std::scoped_lock guard(m_lock);
        m_waiting.push_back(shared);
    }
    m_workAvailable.notify_one();
}

std::deque<ChildPipeline::Event> ChildPipeline::nextEvents()
{
    auto& batch = *m_ordered.front();
    std::unique_lock guard(m_lock);
    m_somethingHappened.wait(guard, [&] { return !batch.m_events.empty() || batch.m_isDecided; });
    return std::exchange(batch.m_events, {});
}

std::vector<ChildOutcome> ChildPipeline::takeOutcomes()
{
    auto outcomes = std::move(m_ordered.front()->m_outcomes);
    m_ordered.pop_front();
    return outcomes;
}

void ChildPipeline::discard()
{
    std::unique_lock guard(m_lock);
    m_waiting.clear();
    m_somethingHappened.wait(guard, [this] { return m_begun == 0; });
    m_ordered.clear();
}

void ChildPipeline::work(const std::stop_token& stop)
{
    std::unique_lock guard(m_lock);
    while (m_workAvailable.wait(guard, stop, [this] { return !m_waiting.empty(); })) {
        const auto batch = std::move(m_waiting.front());
        m_waiting.pop_front();
        ++m_begun;
        guard.unlock();

        Batch::EventSink events(*this, *batch);
        std::vector<ChildOutcome> outcomes;
        outcomes.reserve(batch->m_children.size());
        for (const auto& child : batch->m_children) {
            outcomes.push_back(batch->m_decision->decide(child, events));
        }

        guard.lock();
        batch->m_outcomes = std::move(outcomes);
        batch->m_isDecided = true;
        --m_begun;
        m_somethingHappened.notify_one();
    }
}

} // namespace CleanerCore
