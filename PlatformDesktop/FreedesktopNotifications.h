#pragma once

#include "Platform/Services/Environment.h"
#include "Platform/Services/UserNotificationCenter.h"

#include <QtCore/QString>
#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace PlatformDesktop {

class SessionBus;

/// Notifications by the Desktop Notifications Specification. Who offers a service shows them: the desktop has no question
/// to ask its user. A call that waits for a service gives up after some seconds; calls wait for each other.
class FreedesktopNotifications final : public Platform::UserNotificationCenter {
public:
    struct Settings {
        bool hasSessionBus = false;
        /// As the user knows it.
        std::string applicationName = {};
        /// The name of the application's desktop file without its extension.
        std::string desktopEntry = {};
        /// How long one answer is waited for. Showing a notification takes two.
        std::chrono::milliseconds patience = std::chrono::seconds(3);

        /// Those of the session that this process runs in.
        static Settings current(const Platform::Environment& environment);
    };

    explicit FreedesktopNotifications(Settings settings);
    ~FreedesktopNotifications() override;

    [[nodiscard]] bool isAuthorized() override;
    [[nodiscard]] bool requestAuthorization() override;
    [[nodiscard]] std::expected<void, std::string> deliver(const Platform::UserNotification& notification) override;

private:
    /// The service that answered.
    struct Service {
        QString connection;
        bool readsMarkup = false;
        bool hasSound = false;
    };
    struct Shown {
        /// Numbers mean something only to the service that gave them.
        QString connection;
        std::uint32_t number = 0;
    };

    [[nodiscard]] std::optional<Service> service();

    const Settings m_settings;
    std::mutex m_lock;
    /// It stays connected: some shells take away what they show when the program that asked leaves the bus.
    std::unique_ptr<SessionBus> m_bus;
    std::map<std::string, Shown, std::less<>> m_shown;
};

} // namespace PlatformDesktop
