#pragma once

#include "PlatformDesktop/SessionBus.h"

#include <QtCore/QObject>
#include <functional>

namespace PlatformDesktop {

/// Hears one signal of one program, whatever its arguments, until it is destroyed; on the thread that made it. May be
/// destroyed by what it calls.
class BusSignal final : public QObject {
    Q_OBJECT

public:
    struct Source {
        /// A connection, not a name: Qt would wait for the bus to tell who has the name.
        QString connection;
        QString path;
        QString interface;
        QString name;
    };
    using Heard = std::function<void(const QDBusMessage&)>;

    BusSignal(const SessionBus& bus, Source source, Heard heard, QObject* parent = nullptr);
    ~BusSignal() override;

private Q_SLOTS:
    void hear(const QDBusMessage& message);

private:
    QDBusConnection m_connection;
    const Source m_source;
    const Heard m_heard;
};

} // namespace PlatformDesktop
