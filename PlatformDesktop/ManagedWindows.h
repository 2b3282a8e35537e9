#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace PlatformDesktop {

/// The windows of an X display as their manager lists them (Extended Window Manager Hints 1.5), whose they are, and the
/// request to close them. A connection of its own; for one thread at a time.
class ManagedWindows {
public:
    struct Window {
        std::uint32_t identifier = 0;
        std::int32_t process = 0;
    };

    /// Nothing: there is no such display, or nobody who manages its windows and closes them on request. `hostName` is
    /// what programs on this machine call it.
    [[nodiscard]] static std::optional<ManagedWindows> open(const std::string& display, const std::string& hostName);

    ManagedWindows(ManagedWindows&& other) noexcept;
    ManagedWindows& operator=(ManagedWindows&& other) noexcept;
    ~ManagedWindows();

    /// Those that a program on this machine made and that can be asked to close. The server itself tells whose a window
    /// is (X-Resource 1.2); where it does not, the window's own word counts. One that understands no request is left
    /// out: managers end the program of such a window.
    [[nodiscard]] std::vector<Window> closableWindows() const;
    /// Whose window has the focus.
    [[nodiscard]] std::optional<std::int32_t> activeProcess() const;
    /// Asks the manager to close it, as a button in its frame would. False: the display is gone.
    [[nodiscard]] bool requestClose(const Window& window) const;

private:
    class Connection;

    explicit ManagedWindows(std::unique_ptr<Connection> connection);

    std::unique_ptr<Connection> m_connection;
};

} // namespace PlatformDesktop
