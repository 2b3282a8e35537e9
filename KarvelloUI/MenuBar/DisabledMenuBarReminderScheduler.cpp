#include "KarvelloUI/MenuBar/DisabledMenuBarReminderScheduler.h"

#include <utility>

namespace KarvelloUI {

void DisabledMenuBarReminderScheduler::hasAuthorization(Answered answered)
{
    m_calls.entrance().post([answered = std::move(answered)] { answered(false); });
}

void DisabledMenuBarReminderScheduler::requestAuthorization(Answered answered)
{
    hasAuthorization(std::move(answered));
}

void DisabledMenuBarReminderScheduler::deliver(
    std::string /*title*/, std::string /*body*/, std::string /*identifier*/, Delivered delivered)
{
    m_calls.entrance().post([delivered = std::move(delivered)] { delivered({}); });
}

} // namespace KarvelloUI
