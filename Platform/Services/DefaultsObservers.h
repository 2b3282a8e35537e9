#pragma once

#include "Platform/Services/UserDefaults.h"

#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <vector>

namespace Platform {

/// Who wants to hear of changed preferences. Every call may be made from any thread, and by an observer that is being
/// called. An observation may outlive this object.
class DefaultsObservers {
public:
    /// Called in the order of their observation. One that is added during a call hears of the next change; one whose
    /// observation ended meanwhile is not called any more.
    void notify(std::span<const std::string> keys) const;
    [[nodiscard]] UserDefaults::Observation add(UserDefaults::Observer observer);

private:
    class Subscription;
    class Token;

    mutable std::mutex m_lock;
    std::vector<std::weak_ptr<Subscription>> m_subscriptions;
};

} // namespace Platform
