#pragma once

#include <expected>
#include <functional>
#include <string>

namespace KarvelloUI {

/// How reminders reach the user outside of the application. Main thread only, on which the answers come too: once for each
/// call, never within it, and none after this object has gone.
class KarvelloMenuBarReminderScheduling {
public:
    using Answered = std::function<void(bool isAuthorized)>;
    /// The error is a sentence for the user.
    using Delivered = std::function<void(std::expected<void, std::string> result)>;

    KarvelloMenuBarReminderScheduling() = default;
    KarvelloMenuBarReminderScheduling(const KarvelloMenuBarReminderScheduling&) = delete;
    KarvelloMenuBarReminderScheduling& operator=(const KarvelloMenuBarReminderScheduling&) = delete;
    virtual ~KarvelloMenuBarReminderScheduling() = default;

    virtual void hasAuthorization(Answered answered) = 0;
    /// May ask the user.
    virtual void requestAuthorization(Answered answered) = 0;
    /// At once; takes the place of a notification with the same identifier.
    virtual void deliver(std::string title, std::string body, std::string identifier, Delivered delivered) = 0;
};

} // namespace KarvelloUI
