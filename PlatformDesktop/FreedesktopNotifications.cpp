#include "PlatformDesktop/FreedesktopNotifications.h"

#include "PlatformDesktop/NotificationText.h"
#include "PlatformDesktop/SessionBus.h"

#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <utility>

namespace PlatformDesktop {

namespace {

constexpr const char* kNobodyAnswers = "The desktop has no notification service that answers.";
constexpr const char* kNotShown = "The desktop’s notification service didn’t show the notification.";

QDBusMessage callOfTheService(const QString& destination, const char* method)
{
    return QDBusMessage::createMethodCall(destination, QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QLatin1String(method));
}

} // namespace

FreedesktopNotifications::Settings FreedesktopNotifications::Settings::current(const Platform::Environment& environment)
{
    return {
        .hasSessionBus = SessionBus::isOffered(environment),
        .applicationName = "Karvello",
        .desktopEntry = "io.github.karvello.Karvello",
    };
}

FreedesktopNotifications::FreedesktopNotifications(Settings settings)
    : m_settings(std::move(settings))
{
}

FreedesktopNotifications::~FreedesktopNotifications() = default;

bool FreedesktopNotifications::isAuthorized()
{
    const std::lock_guard guard(m_lock);
    return service().has_value();
}

bool FreedesktopNotifications::requestAuthorization()
{
    return isAuthorized();
}

std::optional<FreedesktopNotifications::Service> FreedesktopNotifications::service()
{
    if (!m_settings.hasSessionBus) {
        return std::nullopt;
    }
    if (!m_bus || !m_bus->isConnected()) {
        m_bus = std::make_unique<SessionBus>();
    }
    // Most desktops start the service when it is first needed.
    const auto reply = m_bus->call(callOfTheService(QStringLiteral("org.freedesktop.Notifications"), "GetCapabilities"),
        m_settings.patience, SessionBus::AbsentService::isStarted);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != QLatin1String("as")) {
        return std::nullopt;
    }
    const auto capabilities = reply.arguments().constFirst().toStringList();
    return Service{
        .connection = reply.service(),
        .readsMarkup = capabilities.contains(QStringLiteral("body-markup")),
        .hasSound = capabilities.contains(QStringLiteral("sound")),
    };
}

std::expected<void, std::string> FreedesktopNotifications::deliver(const Platform::UserNotification& notification)
{
    const std::lock_guard guard(m_lock);
    const auto service = this->service();
    if (!service) {
        return std::unexpected(kNobodyAnswers);
    }
    auto body = NotificationText::body(notification.body);
    body = service->readsMarkup ? NotificationText::escapedMarkup(body) : NotificationText::withoutTags(body);
    const auto known = m_shown.find(notification.identifier);
    const bool isReplaceable = known != m_shown.end() && known->second.connection == service->connection;
    constexpr uchar kNormalUrgency = 1;
    QVariantMap hints{{QStringLiteral("urgency"), QVariant::fromValue(kNormalUrgency)},
        {QStringLiteral("desktop-entry"), QString::fromStdString(m_settings.desktopEntry)}};
    if (service->hasSound) {
        hints.insert(QStringLiteral("sound-name"), QStringLiteral("message-new-instant"));
    }
    constexpr int kAsLongAsTheServiceLikes = -1;
    auto message = callOfTheService(service->connection, "Notify");
    message.setArguments({QString::fromStdString(m_settings.applicationName),
        QVariant::fromValue(isReplaceable ? known->second.number : std::uint32_t{0}),
        QString::fromStdString(m_settings.desktopEntry),
        QString::fromStdString(NotificationText::title(notification.title)), QString::fromStdString(body),
        QStringList(), hints, kAsLongAsTheServiceLikes});
    const auto reply = m_bus->call(message, m_settings.patience);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != QLatin1String("u")) {
        return std::unexpected(kNotShown);
    }
    const auto number = reply.arguments().constFirst().toUInt();
    if (number == 0) {
        return std::unexpected(kNotShown);
    }
    m_shown.insert_or_assign(notification.identifier, Shown{.connection = service->connection, .number = number});
    return {};
}

} // namespace PlatformDesktop
