#pragma once

#include "Platform/Services/Environment.h"

#include <QtCore/QString>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCall>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace PlatformDesktop {

/// A connection of its own to the bus on which the programs of this session talk. It starts no service unless that is
/// asked for: who does not run is not there. Calls wait for an answer, and not for long; one to a name that no program can
/// have is answered with an error. May be used from any thread.
class SessionBus {
public:
    /// What a call to a service that does not run does.
    enum class AbsentService : std::uint8_t { isNotThere, isStarted };

    /// A program that has a name on the bus.
    struct Owner {
        /// Never given to another program.
        QString connection;
        std::int32_t process = 0;
    };

    static constexpr const char* kAddressVariable = "DBUS_SESSION_BUS_ADDRESS";
    /// An address that no library connects to.
    static constexpr const char* kNoBus = "disabled:";

    SessionBus();
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;
    ~SessionBus();

    /// Without one, the library would look for a bus, and start one.
    [[nodiscard]] static bool isOffered(const Platform::Environment& environment);
    /// Where libraries look for it.
    [[nodiscard]] static std::optional<std::string> addressIn(const Platform::Environment& environment);

    /// Where an application whose name on the bus is `identifier` puts its objects.
    [[nodiscard]] static QString objectPathOf(const std::string& identifier);

    [[nodiscard]] bool isConnected() const { return m_connection.isConnected(); }
    [[nodiscard]] std::optional<Owner> ownerOf(const std::string& name) const;
    /// Whether the application whose name on the bus is `identifier` has an action "quit" that can be called as it is.
    [[nodiscard]] bool offersQuit(const Owner& application, const std::string& identifier) const;
    /// True once the call was sent, unless the application says that it has no such action. One that asks its user first
    /// may answer much later.
    [[nodiscard]] bool activateQuit(const Owner& application, const std::string& identifier) const;
    /// The answer, or an error if none comes in time.
    [[nodiscard]] QDBusMessage call(QDBusMessage message, std::chrono::milliseconds patience,
        AbsentService absent = AbsentService::isNotThere) const;
    /// The same without waiting.
    [[nodiscard]] QDBusPendingCall callLater(QDBusMessage message, std::chrono::milliseconds patience,
        AbsentService absent = AbsentService::isNotThere) const;
    /// For signals, and for objects of this process's own.
    [[nodiscard]] const QDBusConnection& connection() const { return m_connection; }

    /// A call of the bus itself.
    [[nodiscard]] static QDBusMessage callOfTheBus(const char* method, const QVariantList& arguments);
    /// Whether it stands for an answer that did not come in time: what was asked for may still happen.
    [[nodiscard]] static bool isLate(const QDBusMessage& reply);

private:
    QDBusConnection m_connection;
};

} // namespace PlatformDesktop
