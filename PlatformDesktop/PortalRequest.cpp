#include "PlatformDesktop/PortalRequest.h"

#include "PlatformDesktop/BusSignal.h"

#include <QtCore/QRandomGenerator>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusServiceWatcher>
#include <utility>

namespace PlatformDesktop {

namespace {

QString newToken()
{
    return QStringLiteral("karvello_%1").arg(QRandomGenerator::global()->generate64(), 0, 16);
}

/// The rule by which a portal makes it, so that one can listen before the first word is said.
QString handleFor(QString ownConnection, const QString& token)
{
    ownConnection.remove(0, 1).replace(QLatin1Char('.'), QLatin1Char('_'));
    return QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(ownConnection, token);
}

} // namespace

void PortalRequest::send(QObject& parent, DesktopBus& bus, Call call, std::chrono::milliseconds patience, Answer answer)
{
    auto* const request = new PortalRequest(parent, std::move(answer));
    bus.find(request, QStringLiteral("org.freedesktop.portal.Desktop"), patience, SessionBus::AbsentService::isStarted,
        [request, &bus, call = std::move(call), patience](const std::optional<DesktopBus::Service>& portal) {
            if (portal) {
                request->begin(bus, *portal, call, patience);
            } else {
                request->finish(Outcome::refused);
            }
        });
}

PortalRequest::PortalRequest(QObject& parent, Answer answer)
    : QObject(&parent)
    , m_answer(std::move(answer))
{
}

PortalRequest::~PortalRequest()
{
    close();
}

void PortalRequest::begin(
    DesktopBus& bus, const DesktopBus::Service& portal, Call call, std::chrono::milliseconds patience)
{
    m_portal = portal;
    const auto token = newToken();
    listenAt(handleFor(portal.bus->connection().baseService(), token));
    auto* const watcher = new QDBusServiceWatcher(
        portal.connection, portal.bus->connection(), QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        m_isAtWork = false;
        finish(Outcome::failed);
    });
    call.options.insert(QStringLiteral("handle_token"), token);
    auto message = QDBusMessage::createMethodCall(
        portal.connection, QStringLiteral("/org/freedesktop/portal/desktop"), call.interface, call.method);
    message.setArguments(call.arguments << call.options);
    m_isAtWork = true;
    bus.call(this, message, patience, SessionBus::AbsentService::isNotThere,
        [this](const QDBusMessage& reply) { takeHandle(reply); });
}

void PortalRequest::listenAt(const QString& handle)
{
    m_handle = handle;
    m_response = std::make_unique<BusSignal>(*m_portal.bus,
        BusSignal::Source{.connection = m_portal.connection,
            .path = handle,
            .interface = QStringLiteral("org.freedesktop.portal.Request"),
            .name = QStringLiteral("Response")},
        [this](const QDBusMessage& response) { takeResponse(response); });
}

void PortalRequest::takeHandle(const QDBusMessage& reply)
{
    if (reply.type() != QDBusMessage::ReplyMessage) {
        m_isAtWork = SessionBus::isLate(reply);
        finish(m_isAtWork ? Outcome::late : Outcome::refused);
    } else if (reply.signature() != QLatin1String("o")) {
        finish(Outcome::refused);
    } else if (const auto handle = reply.arguments().constFirst().value<QDBusObjectPath>().path(); handle != m_handle) {
        // Portals before version 0.9 choose another one.
        listenAt(handle);
    }
}

void PortalRequest::takeResponse(const QDBusMessage& response)
{
    m_isAtWork = false;
    if (response.signature() != QLatin1String("ua{sv}")) {
        finish(Outcome::failed);
        return;
    }
    const auto arguments = response.arguments();
    switch (arguments.at(0).toUInt()) {
    case 0:
        finish(Outcome::granted, qdbus_cast<QVariantMap>(arguments.at(1)));
        break;
    case 1:
        finish(Outcome::cancelled);
        break;
    default:
        finish(Outcome::failed);
    }
}

void PortalRequest::close()
{
    if (std::exchange(m_isAtWork, false)) {
        m_portal.bus->connection().send(QDBusMessage::createMethodCall(
            m_portal.connection, m_handle, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Close")));
    }
}

void PortalRequest::finish(Outcome outcome, const QVariantMap& results)
{
    if (const auto answer = std::exchange(m_answer, nullptr)) {
        close();
        deleteLater();
        answer(outcome, results);
    }
}

} // namespace PlatformDesktop
