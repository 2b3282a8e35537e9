#include "PlatformDesktop/ApplicationInterface.h"

#include <utility>

namespace PlatformDesktop {

ApplicationInterface::ApplicationInterface(QObject* object, Received received)
    : QDBusAbstractAdaptor(object)
    , m_received(std::move(received))
{
}

void ApplicationInterface::Activate(const QVariantMap& platformData)
{
    m_received(std::nullopt, platformData);
}

void ApplicationInterface::Open(const QStringList& /*uris*/, const QVariantMap& platformData)
{
    m_received(std::nullopt, platformData);
}

void ApplicationInterface::ActivateAction(
    const QString& action, const QVariantList& /*parameter*/, const QVariantMap& platformData)
{
    m_received(action, platformData);
}

} // namespace PlatformDesktop
