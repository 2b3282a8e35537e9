#pragma once

#include "Platform/Services/DesktopAppearance.h"
#include "PlatformDesktop/BusSignal.h"
#include "PlatformDesktop/DesktopBus.h"

#include <QtDBus/QDBusServiceWatcher>
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>

namespace PlatformDesktop {

/// What the desktop's portal tells of its settings (org.freedesktop.portal.Settings). Nobody waits for it: until it has
/// told them, and where it does not, nothing is preferred. What it said last holds when it goes; a new one is asked anew.
class PortalAppearance final : public Platform::DesktopAppearance {
public:
    struct Settings {
        /// How long the portal is waited for: it may have to be started.
        std::chrono::milliseconds patience = std::chrono::seconds(10);
    };

    PortalAppearance(std::shared_ptr<DesktopBus> bus, Settings settings);

    [[nodiscard]] bool prefersDark() const override;
    [[nodiscard]] bool prefersReducedMotion() const override;
    void setObserver(Observer observer) override;

private:
    struct Values {
        std::uint32_t colorScheme = 0;
        /// The desktop need not know these.
        std::optional<bool> isMotionReduced = {};
        std::optional<bool> hasAnimations = {};

        [[nodiscard]] bool preferDark() const;
        [[nodiscard]] bool preferReducedMotion() const;
        /// A value of another type changes nothing.
        void take(const QString& space, const QString& key, const QVariant& value);
    };

    void watch(const SessionBus& bus);
    void follow(const std::optional<DesktopBus::Service>& portal);
    void takeAll(const QDBusMessage& reply);
    void takeChange(const QDBusMessage& signal);
    void change(const Values& values);

    const std::shared_ptr<DesktopBus> m_bus;
    const Settings m_settings;
    Values m_values;
    Observer m_observer;
    QString m_portal;
    std::unique_ptr<QDBusServiceWatcher> m_watcher;
    std::unique_ptr<BusSignal> m_changes;
    QObject m_context;
};

} // namespace PlatformDesktop
