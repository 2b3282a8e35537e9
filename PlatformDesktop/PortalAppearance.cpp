#include "PlatformDesktop/PortalAppearance.h"

#include <QtCore/QMap>
#include <QtCore/QStringList>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusVariant>
#include <utility>

namespace PlatformDesktop {

namespace {

constexpr auto kService = QLatin1String("org.freedesktop.portal.Desktop");
constexpr auto kPath = QLatin1String("/org/freedesktop/portal/desktop");
constexpr auto kInterface = QLatin1String("org.freedesktop.portal.Settings");
constexpr auto kAppearance = QLatin1String("org.freedesktop.appearance");
/// Portals of desktops that do not know the preference by its common name tell this one.
constexpr auto kGnomeInterface = QLatin1String("org.gnome.desktop.interface");

} // namespace

bool PortalAppearance::Values::preferDark() const
{
    constexpr std::uint32_t kDark = 1;
    return colorScheme == kDark;
}

bool PortalAppearance::Values::preferReducedMotion() const
{
    return isMotionReduced.value_or(!hasAnimations.value_or(true));
}

void PortalAppearance::Values::take(const QString& space, const QString& key, const QVariant& value)
{
    const bool isNumber = value.metaType() == QMetaType::fromType<uint>();
    if (space == kAppearance && isNumber && key == QLatin1String("color-scheme")) {
        colorScheme = value.toUInt();
    } else if (space == kAppearance && isNumber && key == QLatin1String("reduced-motion")) {
        isMotionReduced = value.toUInt() == 1;
    } else if (space == kGnomeInterface && value.metaType() == QMetaType::fromType<bool>()
        && key == QLatin1String("enable-animations")) {
        hasAnimations = value.toBool();
    }
}

PortalAppearance::PortalAppearance(std::shared_ptr<DesktopBus> bus, Settings settings)
    : m_bus(std::move(bus))
    , m_settings(settings)
{
    m_bus->whenOpen(&m_context, [this](const std::shared_ptr<const SessionBus>& opened) {
        if (opened) {
            watch(*opened);
            m_bus->find(&m_context, kService, m_settings.patience, SessionBus::AbsentService::isStarted,
                [this](const std::optional<DesktopBus::Service>& portal) { follow(portal); });
        }
    });
}

void PortalAppearance::watch(const SessionBus& bus)
{
    m_watcher = std::make_unique<QDBusServiceWatcher>(
        kService, bus.connection(), QDBusServiceWatcher::WatchForOwnerChange, nullptr);
    QObject::connect(m_watcher.get(), &QDBusServiceWatcher::serviceOwnerChanged, &m_context, [this] {
        m_bus->find(&m_context, kService, m_settings.patience, SessionBus::AbsentService::isNotThere,
            [this](const std::optional<DesktopBus::Service>& portal) { follow(portal); });
    });
}

void PortalAppearance::follow(const std::optional<DesktopBus::Service>& portal)
{
    if (!portal || std::exchange(m_portal, portal->connection) == portal->connection) {
        return;
    }
    // It listens before it asks: a change in between is not lost.
    m_changes = std::make_unique<BusSignal>(*portal->bus,
        BusSignal::Source{
            .connection = m_portal, .path = kPath, .interface = kInterface, .name = QStringLiteral("SettingChanged")},
        [this](const QDBusMessage& signal) { takeChange(signal); });
    auto message = QDBusMessage::createMethodCall(m_portal, kPath, kInterface, QStringLiteral("ReadAll"));
    message.setArguments({QStringList{kAppearance, kGnomeInterface}});
    m_bus->call(&m_context, message, m_settings.patience, SessionBus::AbsentService::isNotThere,
        [this](const QDBusMessage& reply) { takeAll(reply); });
}

void PortalAppearance::takeAll(const QDBusMessage& reply)
{
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != QLatin1String("a{sa{sv}}")) {
        return;
    }
    auto values = m_values;
    const auto spaces = qdbus_cast<QMap<QString, QVariantMap>>(reply.arguments().constFirst());
    for (auto space = spaces.begin(); space != spaces.end(); ++space) {
        for (auto setting = space->begin(); setting != space->end(); ++setting) {
            values.take(space.key(), setting.key(), setting.value());
        }
    }
    change(values);
}

void PortalAppearance::takeChange(const QDBusMessage& signal)
{
    if (signal.signature() == QLatin1String("ssv")) {
        const auto arguments = signal.arguments();
        auto values = m_values;
        values.take(
            arguments.at(0).toString(), arguments.at(1).toString(), arguments.at(2).value<QDBusVariant>().variant());
        change(values);
    }
}

void PortalAppearance::change(const Values& values)
{
    const auto former = std::exchange(m_values, values);
    const bool isOther =
        former.preferDark() != values.preferDark() || former.preferReducedMotion() != values.preferReducedMotion();
    if (const auto observer = m_observer; observer && isOther) {
        observer();
    }
}

bool PortalAppearance::prefersDark() const
{
    return m_values.preferDark();
}

bool PortalAppearance::prefersReducedMotion() const
{
    return m_values.preferReducedMotion();
}

void PortalAppearance::setObserver(Observer observer)
{
    m_observer = std::move(observer);
}

} // namespace PlatformDesktop
