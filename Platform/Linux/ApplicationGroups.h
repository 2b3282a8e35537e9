#pragma once

#include "Platform/Linux/ApplicationUnit.h"
#include "Platform/Linux/DesktopEntries.h"
#include "Platform/Linux/ProcessFolder.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Platform {

/// The processes of one application.
struct ApplicationGroup {
    /// Null: it has no desktop file.
    const DesktopEntry* entry = nullptr;
    /// The one that stands for it.
    ProcessState leader;
    /// What it is called where there is no desktop file.
    std::string programName;
    std::vector<ProcessState> members;
};

/// Puts the processes of a user together to applications, those of one desktop file being one. What tells of the
/// application of a process, the strongest first: the unit in which the desktop started it, the note that Flatpak puts
/// into its root folder, variables that launchers set, the program that it runs, and the process that started it. A
/// process of which nothing tells is none of an application, and neither is a part of the desktop.
///
/// This program's own process is an application of its own, and never part of the terminal that it was started in.
class ApplicationGroups {
public:
    /// `entries` must outlive the groups.
    ApplicationGroups(DesktopEntries& entries, std::int32_t ownProcess)
        : m_entries(entries)
        , m_ownProcess(ownProcess)
    {
    }

    /// Adds a process while it is there to be read.
    void add(const ProcessFolder& folder, ProcessState state);
    /// In no order.
    [[nodiscard]] std::vector<ApplicationGroup> groups();

private:
    struct Process {
        ProcessState state;
        std::optional<ApplicationUnit> unit;
        /// What it is by itself, whatever its unit says.
        const DesktopEntry* entry = nullptr;
        std::string program;
    };

    [[nodiscard]] const DesktopEntry* entryOfUnit(const ApplicationUnit& unit);
    [[nodiscard]] const DesktopEntry* entryOfTraces(
        const ProcessFolder& folder, const ProcessState& state, std::string_view program);
    [[nodiscard]] const DesktopEntry* entryNamed(std::string_view path);
    [[nodiscard]] std::optional<std::string> keyOf(const Process& process) const;
    [[nodiscard]] std::optional<std::string> inheritedKey(const Process& process) const;
    void nameUnitsAfterTheirFirstProcess();

    DesktopEntries& m_entries;
    std::int32_t m_ownProcess;
    std::vector<Process> m_processes;
    std::map<std::int32_t, std::size_t> m_indexes;
    std::map<std::string, const DesktopEntry*> m_entryOfUnit;
};

} // namespace Platform
