#pragma once

#include <expected>
#include <string>

namespace Platform {

struct UserNotification {
    /// One line.
    std::string title;
    /// Plain text: nothing in it is markup.
    std::string body;
    /// A notification takes the place of the last one with the same identifier.
    std::string identifier;
};

/// The desktop's notifications. Every call may be made from any thread but the main one, for each may take some seconds.
class UserNotificationCenter {
public:
    UserNotificationCenter() = default;
    UserNotificationCenter(const UserNotificationCenter&) = delete;
    UserNotificationCenter& operator=(const UserNotificationCenter&) = delete;
    virtual ~UserNotificationCenter() = default;

    /// Whether a notification would reach the user.
    [[nodiscard]] virtual bool isAuthorized() = 0;
    /// Asks the user, where the system lets one ask. The answer is whether notifications are allowed now.
    [[nodiscard]] virtual bool requestAuthorization() = 0;
    /// Shows it at once, with the sound that the system has for notifications. The error is a sentence for the user.
    [[nodiscard]] virtual std::expected<void, std::string> deliver(const UserNotification& notification) = 0;
};

} // namespace Platform
