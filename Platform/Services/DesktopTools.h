#pragma once

#include <functional>
#include <string>

namespace Platform {

/// What else a desktop offers to somebody who looks after a machine. The calls return at once; the answer comes later on the
/// calling thread, which runs an event loop, and never after the object is gone.
class DesktopTools {
public:
    /// Whether there is such a tool, and it was started.
    using Answer = std::function<void(bool)>;

    DesktopTools() = default;
    DesktopTools(const DesktopTools&) = delete;
    DesktopTools& operator=(const DesktopTools&) = delete;
    virtual ~DesktopTools() = default;

    virtual void openSystemMonitor(Answer answer) = 0;
    virtual void openPrivacySettings(Answer answer) = 0;
    /// Whether this desktop has such settings. May look for programs on the disk.
    [[nodiscard]] virtual bool hasPrivacySettings() const = 0;
    /// Puts a text on the clipboard.
    virtual void copyText(const std::string& text) = 0;
};

} // namespace Platform
