#include "Platform/Services/DefaultsObservers.h"

#include <algorithm>
#include <condition_variable>
#include <thread>
#include <utility>

namespace Platform {

class DefaultsObservers::Subscription {
public:
    explicit Subscription(UserDefaults::Observer observer)
        : m_observer(std::move(observer))
    {
    }

    void call(std::span<const std::string> keys)
    {
        const auto self = std::this_thread::get_id();
        {
            const std::lock_guard guard(m_lock);
            if (m_isOver) {
                return;
            }
            m_callers.push_back(self);
        }
        m_observer(keys);
        {
            const std::lock_guard guard(m_lock);
            m_callers.erase(std::ranges::find(m_callers, self));
        }
        m_callEnded.notify_all();
    }

    void end()
    {
        std::unique_lock guard(m_lock);
        m_isOver = true;
        // An observer that ends its own observation is in a call, and waits for none of its own thread.
        const auto isOwn = [self = std::this_thread::get_id()](std::thread::id caller) { return caller == self; };
        m_callEnded.wait(guard, [&] { return std::ranges::all_of(m_callers, isOwn); });
    }

private:
    UserDefaults::Observer m_observer;
    std::mutex m_lock;
    std::condition_variable m_callEnded;
    /// The threads that are in a call of the observer.
    std::vector<std::thread::id> m_callers;
    bool m_isOver = false;
};

class DefaultsObservers::Token {
public:
    explicit Token(std::shared_ptr<Subscription> subscription)
        : m_subscription(std::move(subscription))
    {
    }
    ~Token() { m_subscription->end(); }
    Token(const Token&) = delete;
    Token& operator=(const Token&) = delete;

private:
    std::shared_ptr<Subscription> m_subscription;
};

void DefaultsObservers::notify(std::span<const std::string> keys) const
{
    if (keys.empty()) {
        return;
    }
    std::vector<std::weak_ptr<Subscription>> subscriptions;
    {
        const std::lock_guard guard(m_lock);
        subscriptions = m_subscriptions;
    }
    for (const auto& each : subscriptions) {
        if (const auto subscription = each.lock()) {
            subscription->call(keys);
        }
    }
}

UserDefaults::Observation DefaultsObservers::add(UserDefaults::Observer observer)
{
    auto subscription = std::make_shared<Subscription>(std::move(observer));
    const std::lock_guard guard(m_lock);
    std::erase_if(m_subscriptions, [](const auto& each) { return each.expired(); });
    m_subscriptions.push_back(subscription);
    return std::make_shared<Token>(std::move(subscription));
}

} // namespace Platform
