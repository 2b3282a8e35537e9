#pragma once

#include <functional>

namespace Platform {

/// How the user wants all applications to look.
class DesktopAppearance {
public:
    using Observer = std::function<void()>;

    DesktopAppearance() = default;
    DesktopAppearance(const DesktopAppearance&) = delete;
    DesktopAppearance& operator=(const DesktopAppearance&) = delete;
    virtual ~DesktopAppearance() = default;

    /// False while the desktop has not said so, too.
    [[nodiscard]] virtual bool prefersDark() const = 0;
    [[nodiscard]] virtual bool prefersReducedMotion() const = 0;
    /// Called on the main thread after either of them changed. There is one observer; an empty one ends the observation.
    virtual void setObserver(Observer observer) = 0;
};

} // namespace Platform
