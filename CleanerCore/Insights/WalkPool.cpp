#include "CleanerCore/Insights/WalkPool.h"

#include <algorithm>
#include <utility>

namespace CleanerCore {

namespace {

// A task deeper than this gives no folders away: each open folder that others wait for costs a descriptor.
constexpr std::size_t kMaximumSharedDepth = 64;

std::int64_t visitsOf(const WalkSegment& segment)
{
    const auto inside = segment.package ? segment.package->inside.visits() : 0;
    return static_cast<std::int64_t>(segment.log.visits() + inside);
}

class PoolDelegate final : public WalkDelegate {
public:
    PoolDelegate(WalkPool& pool, const WalkTask& task)
        : m_pool(pool)
        , m_task(task)
    {
    }

    [[nodiscard]] bool wantsSubfolders() override
    {
        return m_task.place.size() < kMaximumSharedDepth && m_pool.hasIdleThreads();
    }

    [[nodiscard]] std::shared_ptr<WalkTask> addSubfolder(Platform::ItemReference folder) override
    {
        auto place = m_task.place;
        place.push_back(m_nextPlace++);
        auto task = std::make_shared<WalkTask>(std::move(folder), InsightWalk::Start::subfolder, std::move(place));
        task->delegate = std::make_unique<PoolDelegate>(m_pool, *task);
        m_pool.submit(task);
        return task;
    }

private:
    WalkPool& m_pool;
    const WalkTask& m_task;
    std::uint32_t m_nextPlace = 0;
};

} // namespace

WalkPool::WalkPool(unsigned threads)
{
    m_threads.reserve(threads);
    for (unsigned index = 0; index < threads; ++index) {
        m_threads.emplace_back([this](const std::stop_token& end) { work(end); });
    }
}

WalkPool::~WalkPool() = default;

std::shared_ptr<WalkTask> WalkPool::begin(const WalkRules& rules, std::stop_token stop)
{
    {
        const std::scoped_lock guard(m_lock);
        m_rules = &rules;
        m_stop = std::move(stop);
    }
    auto task = std::make_shared<WalkTask>(rules.plan.root(), InsightWalk::Start::root, WalkTask::Place());
    task->delegate = std::make_unique<PoolDelegate>(*this, *task);
    task->state = WalkTask::State::walking;
    task->isReadersOwn = true;
    return task;
}

void WalkPool::setBudget(std::int64_t visits, std::int64_t packageVisits)
{
    const std::scoped_lock guard(m_lock);
    m_visitBudget = visits;
    m_packageVisitBudget = packageVisits;
    countSpareThreads();
}

void WalkPool::submit(const std::shared_ptr<WalkTask>& task)
{
    {
        const std::scoped_lock guard(m_lock);
        m_waiting.emplace(task->place, task);
        countSpareThreads();
    }
    m_workAvailable.notify_one();
}

bool WalkPool::claim(WalkTask& task)
{
    const std::scoped_lock guard(m_lock);
    if (task.state == WalkTask::State::waiting) {
        task.state = WalkTask::State::walking;
        task.isReadersOwn = true;
        m_waiting.erase(task.place);
        countSpareThreads();
    }
    return task.isReadersOwn;
}

WalkTask::Produced WalkPool::take(WalkTask& task)
{
    std::unique_lock guard(m_lock);
    if (std::exchange(m_wanted, &task) != &task) {
        m_mayGoOn.notify_all();
    }
    m_producedSomething.wait(guard, [&] { return !task.produced.empty(); });
    auto produced = std::move(task.produced.front());
    task.produced.pop_front();
    const bool wasFull = m_ahead >= m_visitBudget;
    m_ahead -= visitsOf(produced.segment);
    if (wasFull) {
        m_mayGoOn.notify_all();
        m_workAvailable.notify_all();
    }
    return produced;
}

void WalkPool::discard()
{
    wake();
    std::unique_lock guard(m_lock);
    // A thread that has not seen the stop yet may give folders away until it is done.
    m_producedSomething.wait(guard, [this] {
        m_waiting.clear();
        return m_walking == 0;
    });
    m_wanted = nullptr;
    m_ahead = 0;
    countSpareThreads();
}

void WalkPool::wake()
{
    // A thread between its look at the stop and its sleep holds the lock.
    {
        const std::scoped_lock guard(m_lock);
    }
    m_mayGoOn.notify_all();
}

void WalkPool::countSpareThreads()
{
    const auto spare = static_cast<std::int64_t>(m_idle) - static_cast<std::int64_t>(m_waiting.size());
    m_spareThreads.store(m_ahead < m_visitBudget ? spare : 0, std::memory_order_relaxed);
}

/// What the reader waits for always goes on, or nothing would.
bool WalkPool::mayGoOn(const WalkTask& task) const
{
    return m_ahead < m_visitBudget || &task == m_wanted || m_stop.stop_requested();
}

void WalkPool::work(const std::stop_token& end)
{
    std::unique_lock guard(m_lock);
    const auto hasWork = [this] { return !m_waiting.empty() && m_ahead < m_visitBudget; };
    while (true) {
        ++m_idle;
        countSpareThreads();
        const bool found = m_workAvailable.wait(guard, end, hasWork);
        --m_idle;
        if (!found) {
            return;
        }
        const auto task = m_waiting.begin()->second;
        m_waiting.erase(m_waiting.begin());
        countSpareThreads();
        task->state = WalkTask::State::walking;
        ++m_walking;
        walk(*task, guard);
        --m_walking;
        m_producedSomething.notify_one();
    }
}

void WalkPool::walk(WalkTask& task, std::unique_lock<std::mutex>& guard)
{
    const auto& rules = *m_rules;
    const auto stop = m_stop;
    bool isLast = false;
    while (!isLast) {
        const auto packageVisits = std::max<std::int64_t>(m_packageVisitBudget, 0);
        guard.unlock();
        WalkTask::Produced produced;
        if (!task.walk) {
            task.walk = std::make_unique<InsightWalk>(rules, task.folder, task.start, task.delegate.get(), stop);
        }
        isLast = !task.walk->advance(produced.segment, WalkSegment::kMaximumVisits, packageVisits);
        produced.isLast = isLast;
        if (isLast) {
            task.walk.reset();
        }
        guard.lock();
        m_ahead += visitsOf(produced.segment);
        task.produced.push_back(std::move(produced));
        m_producedSomething.notify_one();
        if (!isLast) {
            m_mayGoOn.wait(guard, [&] { return mayGoOn(task); });
        }
    }
}

} // namespace CleanerCore
