#pragma once

#include "KarvelloUI/MenuBar/KarvelloMenuBarReminderScheduling.h"

#include <deque>
#include <expected>
#include <string>
#include <utility>
#include <vector>

namespace MenuBarTests {

/// A desktop that answers when the test lets it.
class ManualReminderScheduler final : public KarvelloUI::KarvelloMenuBarReminderScheduling {
public:
    struct Notification {
        std::string title;
        std::string body;
        std::string identifier;
    };

    void hasAuthorization(Answered answered) override { m_checks.push_back(std::move(answered)); }
    void requestAuthorization(Answered answered) override { m_requests.push_back(std::move(answered)); }
    void deliver(std::string title, std::string body, std::string identifier, Delivered delivered) override
    {
        notifications.push_back({std::move(title), std::move(body), std::move(identifier)});
        m_deliveries.push_back(std::move(delivered));
    }

    [[nodiscard]] std::size_t waitingChecks() const { return m_checks.size(); }
    [[nodiscard]] std::size_t waitingRequests() const { return m_requests.size(); }
    [[nodiscard]] std::size_t waitingDeliveries() const { return m_deliveries.size(); }

    /// Each answers the oldest call of its kind, whichever came first of all.
    void answerCheck(bool isAuthorized) { take(m_checks)(isAuthorized); }
    void answerRequest(bool isGranted) { take(m_requests)(isGranted); }
    void answerDelivery(std::expected<void, std::string> result = {}) { take(m_deliveries)(std::move(result)); }

    /// All that were ever to be shown.
    std::vector<Notification> notifications;

private:
    template <typename Call>
    static Call take(std::deque<Call>& calls)
    {
        auto call = std::move(calls.at(0));
        calls.pop_front();
        return call;
    }

    std::deque<Answered> m_checks;
    std::deque<Answered> m_requests;
    std::deque<Delivered> m_deliveries;
};

} // namespace MenuBarTests
