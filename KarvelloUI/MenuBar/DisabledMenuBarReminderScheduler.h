#pragma once

#include "KarvelloUI/MenuBar/KarvelloMenuBarReminderScheduling.h"
#include "KarvelloUI/Sessions/QueuedCalls.h"

namespace KarvelloUI {

/// For a process that cannot notify: it is never authorized, and what it delivers goes nowhere, which is no failure.
class DisabledMenuBarReminderScheduler final : public KarvelloMenuBarReminderScheduling {
public:
    void hasAuthorization(Answered answered) override;
    void requestAuthorization(Answered answered) override;
    void deliver(std::string title, std::string body, std::string identifier, Delivered delivered) override;

private:
    QueuedCalls m_calls;
};

} // namespace KarvelloUI
