#pragma once

#include "Platform/Linux/ProcessFolder.h"
#include "Platform/Services/RunningApplications.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace PlatformDesktop {

/// The processes of an application, held by their folders below /proc: a number that was given out again is not taken
/// for one of them.
class HeldProcesses {
public:
    /// Without those that have ended.
    HeldProcesses(const std::string& procRoot, std::span<const Platform::ProcessIdentity> identities);

    /// Whether the process is one of them and runs at this moment.
    [[nodiscard]] bool contains(std::int32_t process) const;
    [[nodiscard]] bool contains(const Platform::ProcessIdentity& identity) const;
    /// The numbers of those that run the same program, in the order in which the programs first appear.
    [[nodiscard]] std::vector<std::vector<std::int32_t>> byProgram() const;

private:
    struct Process {
        Platform::ProcessIdentity identity;
        Platform::ProcessFolder folder;

        [[nodiscard]] bool isRunning() const;
    };

    std::vector<Process> m_processes;
};

} // namespace PlatformDesktop
