#pragma once

#include "Tests/DesktopSupport/OwnedProgram.h"
#include "Tests/Support/TemporaryTree.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace DesktopTestSupport {

/// An X display of a test's own that nobody sees, and its window manager.
class PrivateDisplay {
public:
    enum class Manager : std::uint8_t { none, openbox };

    explicit PrivateDisplay(Manager manager, const std::vector<std::string>& serverOptions = {});

    /// What DISPLAY says; empty if it could not be started.
    [[nodiscard]] const std::string& name() const { return m_name; }

private:
    TestSupport::TemporaryTree m_home{"home/\n"};
    OwnedProgram m_server;
    std::string m_name;
    std::optional<OwnedProgram> m_manager;
};

} // namespace DesktopTestSupport
