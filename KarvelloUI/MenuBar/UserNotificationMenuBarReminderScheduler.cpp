#include "KarvelloUI/MenuBar/UserNotificationMenuBarReminderScheduler.h"

#include <utility>

namespace KarvelloUI {

UserNotificationMenuBarReminderScheduler::UserNotificationMenuBarReminderScheduler(
    JobExecutor& executor, Platform::UserNotificationCenter& center)
    : m_center(center)
    , m_errands(executor)
{
}

void UserNotificationMenuBarReminderScheduler::hasAuthorization(Answered answered)
{
    m_errands.run([&center = m_center] { return center.isAuthorized(); },
        [answered = std::move(answered)](
            const JobOutcome<bool>& isAuthorized) { answered(isAuthorized.value_or(false)); });
}

void UserNotificationMenuBarReminderScheduler::requestAuthorization(Answered answered)
{
    m_errands.run([&center = m_center] { return center.requestAuthorization(); },
        [answered = std::move(answered)](const JobOutcome<bool>& isGranted) { answered(isGranted.value_or(false)); });
}

void UserNotificationMenuBarReminderScheduler::deliver(
    std::string title, std::string body, std::string identifier, Delivered delivered)
{
    using Result = std::expected<void, std::string>;
    m_errands.run(
        [&center = m_center, title = std::move(title), body = std::move(body), identifier = std::move(identifier)] {
            return center.deliver({.title = title, .body = body, .identifier = identifier});
        },
        [delivered = std::move(delivered)](const JobOutcome<Result>& result) {
            delivered(result ? *result : Result(std::unexpect, result.error().reason));
        });
}

} // namespace KarvelloUI
