#pragma once

#include "PlatformDesktop/SessionBus.h"

#include <QtCore/QObject>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace PlatformDesktop {

/// The session bus for the services of one thread that must not wait: answers come later, on that thread's event loop. The
/// connection is shared by them all, opened when it is first needed, on a thread of its own, for a bus that is there and
/// answers nothing holds up whoever connects to it. A connection that was lost is opened anew with the next request.
///
/// Each request names a `context`, which does not outlive the bus: once it has gone, nothing is called for it.
class DesktopBus {
public:
    struct Settings {
        bool hasSessionBus = false;
        /// How long one request waits for a connection.
        std::chrono::milliseconds patience = std::chrono::seconds(3);
        /// Called on a thread of its own.
        std::function<std::shared_ptr<const SessionBus>()> open = [] { return std::make_shared<const SessionBus>(); };
    };
    /// A program that has a name on the bus.
    struct Service {
        std::shared_ptr<const SessionBus> bus;
        /// Never given to another program.
        QString connection;
    };

    explicit DesktopBus(Settings settings);
    DesktopBus(const DesktopBus&) = delete;
    DesktopBus& operator=(const DesktopBus&) = delete;
    ~DesktopBus();

    /// Null: there is no bus.
    using Use = std::function<void(const std::shared_ptr<const SessionBus>&)>;
    void whenOpen(QObject* context, Use use);
    /// An error if there is no bus, or no answer in time.
    using Answer = std::function<void(const QDBusMessage&)>;
    void call(QObject* context, const QDBusMessage& message, std::chrono::milliseconds patience,
        SessionBus::AbsentService absent, Answer answer);
    /// Who has the name.
    using Found = std::function<void(const std::optional<Service>&)>;
    void find(QObject* context, const QString& name, std::chrono::milliseconds patience,
        SessionBus::AbsentService absent, Found found);

    /// Waits for the connection, and not for long. Null: there is none.
    [[nodiscard]] std::shared_ptr<const SessionBus> waitUntilOpen();

private:
    class Opening;

    [[nodiscard]] bool isOpen() const { return m_bus && m_bus->isConnected(); }
    void beginOpening();
    void takeOver();

    const Settings m_settings;
    std::shared_ptr<const SessionBus> m_bus;
    std::shared_ptr<Opening> m_opening;
    /// They wait for the connection.
    std::vector<std::function<void()>> m_waiting;
    /// What the thread that opens calls back.
    QObject m_receiver;
};

} // namespace PlatformDesktop
