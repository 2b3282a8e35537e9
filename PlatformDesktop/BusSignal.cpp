#include "PlatformDesktop/BusSignal.h"

#include <utility>

namespace PlatformDesktop {

BusSignal::BusSignal(const SessionBus& bus, Source source, Heard heard, QObject* parent)
    : QObject(parent)
    , m_connection(bus.connection())
    , m_source(std::move(source))
    , m_heard(std::move(heard))
{
    m_connection.connect(
        m_source.connection, m_source.path, m_source.interface, m_source.name, this, SLOT(hear(QDBusMessage)));
}

BusSignal::~BusSignal()
{
    m_connection.disconnect(
        m_source.connection, m_source.path, m_source.interface, m_source.name, this, SLOT(hear(QDBusMessage)));
}

void BusSignal::hear(const QDBusMessage& message)
{
    // It may be the end of this object.
    const auto lasting = m_heard;
    lasting(message);
}

} // namespace PlatformDesktop
