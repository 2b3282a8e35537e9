#include "PlatformDesktop/SessionBus.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QVariant>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusError>
#include <QtDBus/QDBusSignature>
#include <algorithm>
#include <atomic>
#include <sys/stat.h>
#include <utility>

namespace PlatformDesktop {

using namespace std::chrono_literals;

namespace {

constexpr auto kPatienceWithTheBus = 1000ms;
constexpr auto kPatienceWithAnApplication = 2000ms;

QString newConnectionName()
{
    static std::atomic<unsigned> count = 0;
    return QStringLiteral("karvello-session-bus-%1").arg(++count);
}

/// GIO's "D-Bus API for exporting action groups".
QDBusMessage callOfActions(const SessionBus::Owner& application, const std::string& identifier, const char* method)
{
    return QDBusMessage::createMethodCall(application.connection, SessionBus::objectPathOf(identifier),
        QStringLiteral("org.gtk.Actions"), QLatin1String(method));
}

/// What libdbus takes for the name of a program: it ends the process for any other, and Qt lets some pass.
bool canBeCalled(const QString& name)
{
    static const QRegularExpression names(
        QStringLiteral("\\A(?::[\\w-]+(?:\\.[\\w-]+)+|[A-Za-z_-][\\w-]*(?:\\.[A-Za-z_-][\\w-]*)+)\\z"));
    constexpr int kLongestName = 255;
    return name.size() <= kLongestName && names.match(name).hasMatch();
}

QDBusError noSuchName()
{
    return {QDBusError::InvalidArgs, QStringLiteral("No program can have this name.")};
}

} // namespace

// By its kind, not by its address: after a refusal of the bus, Qt does not close what it has opened by an address, which
// libdbus answers with the end of the program.
SessionBus::SessionBus()
    : m_connection(QDBusConnection::connectToBus(QDBusConnection::SessionBus, newConnectionName()))
{
}

SessionBus::~SessionBus()
{
    QDBusConnection::disconnectFromBus(m_connection.name());
}

bool SessionBus::isOffered(const Platform::Environment& environment)
{
    const auto address = addressIn(environment);
    return address && *address != kNoBus;
}

std::optional<std::string> SessionBus::addressIn(const Platform::Environment& environment)
{
    if (auto address = environment.value(kAddressVariable)) {
        return address;
    }
    struct stat socket{};
    const auto runtime = environment.value("XDG_RUNTIME_DIR");
    const auto place = runtime.value_or("") + "/bus";
    return runtime && stat(place.c_str(), &socket) == 0 ? std::optional("unix:path=" + place) : std::nullopt;
}

// Desktop Entry Specification, "D-Bus Activation".
QString SessionBus::objectPathOf(const std::string& identifier)
{
    auto path = "/" + identifier;
    std::ranges::replace(path, '.', '/');
    std::ranges::replace(path, '-', '_');
    return QString::fromStdString(path);
}

QDBusMessage SessionBus::callOfTheBus(const char* method, const QVariantList& arguments)
{
    auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"), QLatin1String(method));
    message.setArguments(arguments);
    return message;
}

bool SessionBus::isLate(const QDBusMessage& reply)
{
    const auto error = QDBusError(reply).type();
    return error == QDBusError::NoReply || error == QDBusError::TimedOut || error == QDBusError::Timeout;
}

QDBusMessage SessionBus::call(QDBusMessage message, std::chrono::milliseconds patience, AbsentService absent) const
{
    if (!canBeCalled(message.service())) {
        return QDBusMessage::createError(noSuchName());
    }
    message.setAutoStartService(absent == AbsentService::isStarted);
    return m_connection.call(message, QDBus::Block, static_cast<int>(patience.count()));
}

QDBusPendingCall SessionBus::callLater(
    QDBusMessage message, std::chrono::milliseconds patience, AbsentService absent) const
{
    if (!canBeCalled(message.service())) {
        return QDBusPendingCall::fromError(noSuchName());
    }
    message.setAutoStartService(absent == AbsentService::isStarted);
    return m_connection.asyncCall(message, static_cast<int>(patience.count()));
}

std::optional<SessionBus::Owner> SessionBus::ownerOf(const std::string& name) const
{
    const auto owner = call(callOfTheBus("GetNameOwner", {QString::fromStdString(name)}), kPatienceWithTheBus);
    if (owner.type() != QDBusMessage::ReplyMessage || owner.signature() != QLatin1String("s")) {
        return std::nullopt;
    }
    const auto connection = owner.arguments().constFirst().toString();
    const auto process = call(callOfTheBus("GetConnectionUnixProcessID", {connection}), kPatienceWithTheBus);
    if (process.type() != QDBusMessage::ReplyMessage || process.signature() != QLatin1String("u")) {
        return std::nullopt;
    }
    const auto number = process.arguments().constFirst().toUInt();
    if (!std::in_range<std::int32_t>(number)) {
        return std::nullopt;
    }
    return Owner{.connection = connection, .process = static_cast<std::int32_t>(number)};
}

bool SessionBus::offersQuit(const Owner& application, const std::string& identifier) const
{
    auto message = callOfActions(application, identifier, "Describe");
    message.setArguments({QStringLiteral("quit")});
    const auto reply = call(message, kPatienceWithAnApplication);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != QLatin1String("(bgav)")) {
        return false;
    }
    bool isEnabled = false;
    QDBusSignature parameter;
    const auto description = reply.arguments().constFirst().value<QDBusArgument>();
    description.beginStructure();
    description >> isEnabled >> parameter;
    return isEnabled && parameter.signature().isEmpty();
}

bool SessionBus::activateQuit(const Owner& application, const std::string& identifier) const
{
    auto message = callOfActions(application, identifier, "Activate");
    message.setArguments({QStringLiteral("quit"), QVariantList(), QVariantMap()});
    const auto reply = call(message, kPatienceWithAnApplication);
    // A late one asks its user, or has quit without another word.
    return reply.type() == QDBusMessage::ReplyMessage || isLate(reply);
}

} // namespace PlatformDesktop
