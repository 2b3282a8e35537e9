#include "KarvelloUI/MenuBar/UserNotificationMenuBarReminderScheduler.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/ManualExecutor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using KarvelloUI::UserNotificationMenuBarReminderScheduler;
using testing::ElementsAre;
using testing::IsEmpty;

/// A desktop that notes what it is asked.
class NotedCenter final : public Platform::UserNotificationCenter {
public:
    bool isAuthorized() override
    {
        if (throws) {
            throw std::runtime_error("no memory");
        }
        return authorized;
    }
    bool requestAuthorization() override { return granted; }
    std::expected<void, std::string> deliver(const Platform::UserNotification& notification) override
    {
        if (throws) {
            throw std::runtime_error("no memory");
        }
        shown.push_back(notification.title + "|" + notification.body + "|" + notification.identifier);
        return result;
    }

    bool throws = false;
    bool authorized = false;
    bool granted = false;
    std::expected<void, std::string> result;
    std::vector<std::string> shown;
};

class UserNotificationMenuBarReminderSchedulerTest : public testing::Test {
protected:
    /// The answer of a call, which does not come before its work and a turn of the event loop.
    template <typename Call>
    std::vector<std::string> answersOf(Call call)
    {
        std::vector<std::string> answers;
        call(answers);
        m_loop.handleEvents();
        EXPECT_THAT(answers, IsEmpty());
        m_executor.runAll();
        EXPECT_THAT(answers, IsEmpty());
        m_loop.handleEvents();
        return answers;
    }
    static auto note(std::vector<std::string>& answers)
    {
        return [&answers](bool isAuthorized) { answers.emplace_back(isAuthorized ? "yes" : "no"); };
    }
    std::vector<std::string> hasAuthorization()
    {
        return answersOf([this](auto& answers) { m_scheduler->hasAuthorization(note(answers)); });
    }
    std::vector<std::string> requestAuthorization()
    {
        return answersOf([this](auto& answers) { m_scheduler->requestAuthorization(note(answers)); });
    }
    std::vector<std::string> deliver()
    {
        return answersOf([this](auto& answers) {
            m_scheduler->deliver("a", "b", "c", [&answers](const std::expected<void, std::string>& result) {
                answers.push_back(result ? "delivered" : result.error());
            });
        });
    }

    TestSupport::EventLoop m_loop;
    TestSupport::ManualExecutor m_executor;
    NotedCenter m_center;
    std::unique_ptr<UserNotificationMenuBarReminderScheduler> m_scheduler =
        std::make_unique<UserNotificationMenuBarReminderScheduler>(m_executor, m_center);
};

TEST_F(UserNotificationMenuBarReminderSchedulerTest, AsksTheDesktopOffTheMainThread)
{
    EXPECT_THAT(hasAuthorization(), ElementsAre("no"));
    EXPECT_THAT(requestAuthorization(), ElementsAre("no"));
    m_center.authorized = true;
    EXPECT_THAT(hasAuthorization(), ElementsAre("yes"));
    EXPECT_THAT(requestAuthorization(), ElementsAre("no"));
    m_center.granted = true;
    EXPECT_THAT(requestAuthorization(), ElementsAre("yes"));
}

TEST_F(UserNotificationMenuBarReminderSchedulerTest, PassesTheNotificationOn)
{
    EXPECT_THAT(deliver(), ElementsAre("delivered"));
    EXPECT_THAT(m_center.shown, ElementsAre("a|b|c"));
}

TEST_F(UserNotificationMenuBarReminderSchedulerTest, TellsWhyADeliveryFailed)
{
    m_center.result = std::unexpected("No.");
    EXPECT_THAT(deliver(), ElementsAre("No."));
    m_center.throws = true;
    EXPECT_THAT(deliver(), ElementsAre("no memory"));
    EXPECT_THAT(hasAuthorization(), ElementsAre("no"));
}

TEST_F(UserNotificationMenuBarReminderSchedulerTest, AnswersNobodyAfterItsEnd)
{
    std::vector<std::string> answers;
    m_scheduler->hasAuthorization(note(answers));
    m_scheduler.reset();
    m_executor.runAll();
    m_loop.handleEvents();
    EXPECT_THAT(answers, IsEmpty());
}

} // namespace
