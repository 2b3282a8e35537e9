#pragma once

#include <QtCore/QString>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace PlatformDesktop {

/// A connection of its own to the bus on which the programs of this session talk. It starts no service: who does not run
/// is not there. Calls wait for an answer, and not for long.
class SessionBus {
public:
    /// A program that has a name on the bus.
    struct Owner {
        /// Never given to another program.
        QString connection;
        std::int32_t process = 0;
    };

    SessionBus();
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;
    ~SessionBus();

    [[nodiscard]] bool isConnected() const { return m_connection.isConnected(); }
    [[nodiscard]] std::optional<Owner> ownerOf(const std::string& name) const;
    /// Whether the application whose name on the bus is `identifier` has an action "quit" that can be called as it is.
    [[nodiscard]] bool offersQuit(const Owner& application, const std::string& identifier) const;
    /// True once the call was sent, unless the application says that it has no such action. One that asks its user first
    /// may answer much later.
    [[nodiscard]] bool activateQuit(const Owner& application, const std::string& identifier) const;

private:
    [[nodiscard]] QDBusMessage call(QDBusMessage message, std::chrono::milliseconds patience) const;

    QDBusConnection m_connection;
};

} // namespace PlatformDesktop
