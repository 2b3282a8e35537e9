#include "PlatformDesktop/SingleInstance.h"

#include "PlatformDesktop/ApplicationInterface.h"

#include <QtCore/QVariant>
#include <algorithm>
#include <utility>

namespace PlatformDesktop {

namespace {

/// Desktops read the newer key, and the older where there is none.
constexpr const char* kTokenKey = "activation-token";
constexpr const char* kStartupKey = "desktop-startup-id";

QString key(const char* name)
{
    return QString::fromLatin1(name);
}

/// It ends in an environment and in the protocols of displays: whatever is no such token is none.
std::string tokenIn(const QVariantMap& platformData)
{
    constexpr std::size_t kLongestToken = 1024;
    for (const auto* const name : {kTokenKey, kStartupKey}) {
        const auto value = platformData.value(key(name));
        if (value.metaType() != QMetaType::fromType<QString>()) {
            continue;
        }
        const auto token = value.toString().toStdString();
        const bool isPrintable = std::ranges::all_of(token, [](char each) { return each > ' ' && each <= '~'; });
        if (!token.empty() && token.size() <= kLongestToken && isPrintable) {
            return token;
        }
    }
    return {};
}

} // namespace

SingleInstance::Settings SingleInstance::Settings::current(const Platform::Environment& environment)
{
    const auto startup = environment.value("DESKTOP_STARTUP_ID").value_or("");
    return {.token = environment.value("XDG_ACTIVATION_TOKEN").value_or(startup)};
}

SingleInstance::SingleInstance(std::shared_ptr<DesktopBus> bus, Settings settings, Activated activated)
    : m_bus(std::move(bus))
    , m_settings(std::move(settings))
    , m_activated(std::move(activated))
{
    // It belongs to the object.
    new ApplicationInterface(
        &m_object, [this](const std::optional<QString>& action, const QVariantMap& data) { receive(action, data); });
}

SingleInstance::~SingleInstance()
{
    release();
}

void SingleInstance::release()
{
    if (const auto bus = std::exchange(m_owned, nullptr)) {
        auto connection = bus->connection();
        connection.unregisterObject(path());
        connection.send(SessionBus::callOfTheBus("ReleaseName", {QString::fromStdString(m_settings.identifier)}));
    }
}

SingleInstance::Role SingleInstance::acquire()
{
    if (m_owned && m_owned->isConnected()) {
        return Role::owner;
    }
    const auto bus = m_bus->waitUntilOpen();
    if (!bus) {
        return Role::noBus;
    }
    // The object first: who finds the name finds it, too.
    auto connection = bus->connection();
    connection.registerObject(path(), &m_object, QDBusConnection::ExportAdaptors);
    constexpr std::uint32_t kDoNotQueue = 4;
    const auto reply = bus->call(SessionBus::callOfTheBus("RequestName",
                                     {QString::fromStdString(m_settings.identifier), QVariant::fromValue(kDoNotQueue)}),
        m_settings.patience);
    const bool isAnswer = reply.type() == QDBusMessage::ReplyMessage && reply.signature() == QLatin1String("u");
    constexpr std::uint32_t kOwner = 1;
    constexpr std::uint32_t kOwnerAlready = 4;
    constexpr std::uint32_t kExists = 3;
    const auto answer = isAnswer ? reply.arguments().constFirst().toUInt() : 0;
    if (answer == kOwner || answer == kOwnerAlready) {
        m_owned = bus;
        return Role::owner;
    }
    connection.unregisterObject(path());
    return answer == kExists ? Role::otherRunning : Role::noBus;
}

bool SingleInstance::activateOther(const std::optional<std::string>& action)
{
    const auto bus = m_bus->waitUntilOpen();
    if (!bus) {
        return false;
    }
    QVariantMap platformData;
    if (!m_settings.token.empty()) {
        platformData.insert(key(kTokenKey), QString::fromStdString(m_settings.token));
        platformData.insert(key(kStartupKey), QString::fromStdString(m_settings.token));
    }
    auto message = QDBusMessage::createMethodCall(QString::fromStdString(m_settings.identifier), path(),
        QStringLiteral("org.freedesktop.Application"),
        action ? QStringLiteral("ActivateAction") : QStringLiteral("Activate"));
    if (action) {
        message.setArguments({QString::fromStdString(*action), QVariantList(), platformData});
    } else {
        message.setArguments({platformData});
    }
    return bus->call(message, m_settings.patience).type() == QDBusMessage::ReplyMessage;
}

void SingleInstance::receive(const std::optional<QString>& action, const QVariantMap& platformData)
{
    Activation activation{.token = tokenIn(platformData)};
    if (action) {
        activation.action = action->toStdString();
        if (std::ranges::find(kActions, *activation.action) == kActions.end()) {
            return;
        }
    }
    // Later: who asked waits for an answer until then, and it may be the end of this object.
    QMetaObject::invokeMethod(
        &m_object, [activated = m_activated, activation] { activated(activation); }, Qt::QueuedConnection);
}

} // namespace PlatformDesktop
