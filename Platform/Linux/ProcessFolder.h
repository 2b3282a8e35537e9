#pragma once

#include "Platform/Files/FileDescriptor.h"

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <utility>
#include <vector>

namespace Platform {

/// What proc_pid_stat(5) tells of a process. The number and the start together name it for good.
struct ProcessState {
    std::int32_t processIdentifier = 0;
    std::int32_t parent = 0;
    /// It has ended, and only its parent has not taken note.
    bool isTerminated = false;
    /// Of all its threads.
    std::uint64_t cpuTicks = 0;
    /// In ticks since the start of the machine.
    std::uint64_t startTicks = 0;
    std::uint64_t residentPages = 0;
    /// At most 15 bytes.
    std::string name;

    static std::optional<ProcessState> parse(std::string_view stat);
};

/// One process below /proc, held by its folder: all that is read is of this very process, or nothing once it has ended.
class ProcessFolder {
public:
    [[nodiscard]] static std::optional<ProcessFolder> open(const std::string& procRoot, std::int32_t process);
    /// All that there are, in no order. The error is the system's number.
    [[nodiscard]] static std::expected<std::vector<std::int32_t>, int> processes(const std::string& procRoot);

    /// As whom it runs. Programs with special rights count as the system's.
    [[nodiscard]] uid_t owner() const { return m_owner; }
    [[nodiscard]] std::optional<ProcessState> state() const;
    /// A small text such as "cgroup"; nothing for one that may not be read.
    [[nodiscard]] std::optional<std::string> read(const char* name) const;
    /// The value of a variable that it was started with.
    [[nodiscard]] std::optional<std::string> environmentValue(std::string_view name) const;
    /// The last component of the path of the program that it runs.
    [[nodiscard]] std::optional<std::string> program() const;
    /// In bytes: its own memory, and of what it shares with others its share.
    [[nodiscard]] std::optional<std::uint64_t> proportionalMemory() const;

private:
    ProcessFolder(FileDescriptor folder, uid_t owner)
        : m_folder(std::move(folder))
        , m_owner(owner)
    {
    }

    FileDescriptor m_folder;
    uid_t m_owner;
};

} // namespace Platform
