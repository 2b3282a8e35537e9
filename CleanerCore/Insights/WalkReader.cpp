#include "CleanerCore/Insights/WalkReader.h"

#include <algorithm>
#include <utility>

namespace CleanerCore {

WalkReader::WalkReader(const WalkRules& rules, WalkPool* pool, const std::stop_token& stop)
    : m_rules(rules)
    , m_pool(pool)
    , m_wakeOnStop(m_stopSource.get_token(), Wake{pool})
    , m_stopWithCaller(stop, RequestStop{m_stopSource})
{
    const auto start = InsightWalk::Start::root;
    const auto token = m_stopSource.get_token();
    auto root = pool != nullptr ? pool->begin(rules, token) : std::make_shared<WalkTask>(rules.plan.root(), start);
    root->walk = std::make_unique<InsightWalk>(rules, root->folder, start, root->delegate.get(), token);
    m_tasks.push_back(std::move(root));
}

WalkReader::~WalkReader()
{
    m_stopSource.request_stop();
    if (m_pool != nullptr) {
        m_pool->discard();
    }
}

std::optional<WalkSegment> WalkReader::next(std::int64_t visitBudget, std::int64_t packageVisitBudget)
{
    if (m_tasks.empty()) {
        return std::nullopt;
    }
    if (m_pool != nullptr) {
        m_pool->setBudget(visitBudget, packageVisitBudget);
    }
    const auto task = m_tasks.back();
    auto produced = produce(*task, visitBudget, packageVisitBudget);
    if (produced.isLast) {
        m_tasks.pop_back();
    }
    auto& subwalks = produced.segment.subwalks;
    m_tasks.insert(m_tasks.end(), std::make_move_iterator(subwalks.rbegin()), std::make_move_iterator(subwalks.rend()));
    subwalks.clear();
    return std::move(produced.segment);
}

WalkTask::Produced WalkReader::produce(WalkTask& task, std::int64_t visitBudget, std::int64_t packageVisitBudget)
{
    if (m_pool != nullptr && !m_pool->claim(task)) {
        return m_pool->take(task);
    }
    if (!task.walk) {
        task.walk = std::make_unique<InsightWalk>(
            m_rules, task.folder, task.start, task.delegate.get(), m_stopSource.get_token());
    }
    // One visit beyond the budget tells that there is more.
    const auto visits = std::clamp<std::int64_t>(visitBudget, 1, WalkSegment::kMaximumVisits);
    WalkTask::Produced produced;
    produced.isLast = !task.walk->advance(
        produced.segment, static_cast<std::size_t>(visits), std::max<std::int64_t>(packageVisitBudget, 0));
    return produced;
}

} // namespace CleanerCore
