#pragma once

#include "Platform/Services/Environment.h"
#include "PlatformDesktop/DesktopBus.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace PlatformDesktop {

/// One instance of the application in a session: who has its name on the bus. The others, and the desktop, talk to it by
/// org.freedesktop.Application (Desktop Entry Specification, "D-Bus Activation"). Without a bus each runs alone.
///
/// It gives the name back when it is destroyed.
class SingleInstance {
public:
    enum class Role : std::uint8_t { owner, otherRunning, noBus };
    /// What another process asks of this one.
    struct Activation {
        /// One of `kActions`; nothing: the application as it is.
        std::optional<std::string> action = {};
        /// What lets a window come to the front (XDG_ACTIVATION_TOKEN); may be empty. Printable ASCII.
        std::string token = {};
    };
    using Activated = std::function<void(const Activation&)>;

    struct Settings {
        std::string identifier = "io.github.karvello.Karvello";
        /// How long one answer is waited for.
        std::chrono::milliseconds patience = std::chrono::seconds(5);
        /// Passed on to the instance that runs.
        std::string token = {};

        /// With the token that this process was started with.
        static Settings current(const Platform::Environment& environment);
    };
    static constexpr auto kActions =
        std::to_array<std::string_view>({"open-dashboard", "open-cleanup", "open-memory", "open-system"});

    /// `activated` is called by the event loop of this thread, for the owner.
    SingleInstance(std::shared_ptr<DesktopBus> bus, Settings settings, Activated activated);
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    ~SingleInstance();

    /// Waits for the bus, and not for long.
    [[nodiscard]] Role acquire();
    /// Lets the instance that runs come to the front, at what an action opens. Waits for its answer, and not for long;
    /// false: there is none any more, or it does not answer.
    [[nodiscard]] bool activateOther(const std::optional<std::string>& action);
    /// Gives the name back, if it has it: the next one that starts is another instance.
    void release();

private:
    [[nodiscard]] QString path() const { return SessionBus::objectPathOf(m_settings.identifier); }
    void receive(const std::optional<QString>& action, const QVariantMap& platformData);

    const std::shared_ptr<DesktopBus> m_bus;
    const Settings m_settings;
    const Activated m_activated;
    /// The one on which it has the name.
    std::shared_ptr<const SessionBus> m_owned;
    QObject m_object;
};

} // namespace PlatformDesktop
