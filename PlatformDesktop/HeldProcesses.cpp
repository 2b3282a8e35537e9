#include "PlatformDesktop/HeldProcesses.h"

#include <algorithm>
#include <utility>

namespace PlatformDesktop {

bool HeldProcesses::Process::isRunning() const
{
    const auto state = folder.state();
    return state && !state->isTerminated && state->startTicks == identity.startTicks;
}

HeldProcesses::HeldProcesses(const std::string& procRoot, std::span<const Platform::ProcessIdentity> identities)
{
    for (const auto& identity : identities) {
        if (auto folder = Platform::ProcessFolder::open(procRoot, identity.processIdentifier)) {
            Process process{.identity = identity, .folder = *std::move(folder)};
            if (process.isRunning()) {
                m_processes.push_back(std::move(process));
            }
        }
    }
}

bool HeldProcesses::contains(std::int32_t process) const
{
    return std::ranges::any_of(m_processes,
        [process](const Process& each) { return each.identity.processIdentifier == process && each.isRunning(); });
}

bool HeldProcesses::contains(const Platform::ProcessIdentity& identity) const
{
    return std::ranges::any_of(
        m_processes, [&identity](const Process& each) { return each.identity == identity && each.isRunning(); });
}

std::vector<std::vector<std::int32_t>> HeldProcesses::byProgram() const
{
    std::vector<std::pair<std::string, std::vector<std::int32_t>>> programs;
    for (const auto& process : m_processes) {
        auto name = process.folder.program().value_or("");
        auto program = std::ranges::find(programs, name, [](const auto& each) { return each.first; });
        if (program == programs.end()) {
            program = programs.emplace(programs.end(), std::move(name), std::vector<std::int32_t>());
        }
        program->second.push_back(process.identity.processIdentifier);
    }
    std::vector<std::vector<std::int32_t>> numbers;
    numbers.reserve(programs.size());
    for (auto& program : programs) {
        numbers.push_back(std::move(program.second));
    }
    return numbers;
}

} // namespace PlatformDesktop
