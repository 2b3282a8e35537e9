#pragma once

#include "KarvelloUI/MenuBar/KarvelloMenuBarReminderScheduling.h"
#include "KarvelloUI/Sessions/Errands.h"
#include "KarvelloUI/Sessions/JobExecutor.h"
#include "Platform/Services/UserNotificationCenter.h"

namespace KarvelloUI {

/// Reminders as notifications of the desktop, which is asked off the main thread.
class UserNotificationMenuBarReminderScheduler final : public KarvelloMenuBarReminderScheduling {
public:
    /// `center` must outlive the executor, and that this object.
    UserNotificationMenuBarReminderScheduler(JobExecutor& executor, Platform::UserNotificationCenter& center);

    void hasAuthorization(Answered answered) override;
    void requestAuthorization(Answered answered) override;
    void deliver(std::string title, std::string body, std::string identifier, Delivered delivered) override;

private:
    Platform::UserNotificationCenter& m_center;
    Errands m_errands;
};

} // namespace KarvelloUI
