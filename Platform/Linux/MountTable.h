#pragma once

#include <cstdint>
#include <expected>
#include <string>
#include <string_view>
#include <vector>

namespace Platform {

/// The mounts that this process sees, as they were when the table was read.
class MountTable {
public:
    struct Mount {
        /// As in `ItemStatus::mountNumber`.
        std::uint64_t number = 0;
        /// Where the mount stands. It holds no symbolic link.
        std::string path;
        /// Which folder of its file system it shows; "/" for the whole.
        std::string root;
        std::string fileSystemType;
        /// Those of the system, and behind them those that the table of file systems has for the same place.
        std::string options;

        [[nodiscard]] bool hasOption(std::string_view name) const;
    };

    static constexpr const char* kOfThisProcess = "/proc/self/mountinfo";
    static constexpr const char* kOfFileSystems = "/etc/fstab";

    /// The error is the system's number. A table without a mount is one that could not be read.
    [[nodiscard]] static std::expected<MountTable, int> read(
        const char* mountInfoPath = kOfThisProcess, const char* fileSystemsPath = kOfFileSystems);

    [[nodiscard]] const Mount* find(std::uint64_t number) const;
    /// Whether something is mounted on `path` or below it; a path without symbolic links.
    [[nodiscard]] bool hasMountAtOrBelow(std::string_view path) const;

private:
    std::vector<Mount> m_mounts;
};

} // namespace Platform
