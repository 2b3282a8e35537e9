#pragma once

#include "Tests/DesktopSupport/OwnedProgram.h"
#include "Tests/Support/TemporaryTree.h"

#include <string>

namespace DesktopTestSupport {

/// A session bus of the test program's own; it starts no service. This process takes it for its session's from the first
/// use on: the library remembers the first bus that it was told.
class PrivateBus {
public:
    static const PrivateBus& ofThisProcess();

    /// Empty if it could not be started.
    [[nodiscard]] const std::string& address() const { return m_address; }

private:
    PrivateBus();

    TestSupport::TemporaryTree m_folder{"bus/\n"};
    OwnedProgram m_daemon;
    std::string m_address;
};

} // namespace DesktopTestSupport
