#pragma once

#include "KarvelloUI/Sessions/QueuedCalls.h"

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

namespace KarvelloUI {

/// What running work calls to tell how far it is: from any thread, at any rate, in copies. A report that its owner has not
/// seen yet is replaced by the next one, so that no backlog builds up; the newest is seen before the result is.
template <typename Progress>
class JobProgress {
public:
    void operator()(Progress progress) const
    {
        {
            const std::scoped_lock guard(m_unseen->lock);
            const bool isOnItsWay = m_unseen->newest.has_value();
            m_unseen->newest = std::move(progress);
            if (isOnItsWay) {
                return;
            }
        }
        m_owner.post([unseen = m_unseen, deliver = m_deliver] {
            std::optional<Progress> newest;
            {
                const std::scoped_lock guard(unseen->lock);
                newest.swap(unseen->newest);
            }
            deliver(std::move(*newest));
        });
    }

private:
    friend class Job;
    using Deliver = std::function<void(Progress)>;

    struct Unseen {
        std::mutex lock;
        std::optional<Progress> newest;
    };

    JobProgress(QueuedCalls::Entrance owner, Deliver deliver)
        : m_owner(std::move(owner))
        , m_deliver(std::move(deliver))
    {
    }

    QueuedCalls::Entrance m_owner;
    Deliver m_deliver;
    std::shared_ptr<Unseen> m_unseen = std::make_shared<Unseen>();
};

} // namespace KarvelloUI
