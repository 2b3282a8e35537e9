#pragma once

#include "CleanerCore/Insights/InsightWalk.h"
#include "CleanerCore/Insights/WalkPool.h"
#include "CleanerCore/Insights/WalkSegment.h"
#include "CleanerCore/Insights/WalkTask.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

namespace CleanerCore {

/// Reads the walk of one root in the order of the tree, as if one thread had walked it: whatever the pool's threads have
/// not begun the reader walks itself. The destructor ends the walk.
class WalkReader {
public:
    /// All arguments outlive the reader. Without a pool it walks alone. After a stop nothing new is read.
    WalkReader(const WalkRules& rules, WalkPool* pool, const std::stop_token& stop);
    ~WalkReader();
    WalkReader(const WalkReader&) = delete;
    WalkReader& operator=(const WalkReader&) = delete;

    [[nodiscard]] bool couldEnumerate() const { return m_tasks.front()->walk->couldEnumerate(); }

    /// The next segment, or nothing at the end. It may hold more visits than the budgets allow; what comes behind it is
    /// not walked then.
    [[nodiscard]] std::optional<WalkSegment> next(std::int64_t visitBudget, std::int64_t packageVisitBudget);

private:
    struct Wake {
        WalkPool* pool;
        void operator()() const
        {
            if (pool != nullptr) {
                pool->wake();
            }
        }
    };
    struct RequestStop {
        std::stop_source& source;
        void operator()() const { source.request_stop(); }
    };

    [[nodiscard]] WalkTask::Produced produce(WalkTask& task, std::int64_t visitBudget, std::int64_t packageVisitBudget);

    const WalkRules& m_rules;
    WalkPool* m_pool;
    std::stop_source m_stopSource;
    std::stop_callback<Wake> m_wakeOnStop;
    std::stop_callback<RequestStop> m_stopWithCaller;
    /// What is still to be read, the next one last.
    std::vector<std::shared_ptr<WalkTask>> m_tasks;
};

} // namespace CleanerCore
