#pragma once

#include <cstdint>
#include <optional>
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
        /// Where the mount stands.
        std::string path;
        /// Which folder of its file system it shows; "/" for the whole.
        std::string root;
        std::string fileSystemType;
        std::string options;

        [[nodiscard]] bool hasOption(std::string_view name) const;
        /// Shows only a part of its file system, which the part's place in it does not explain.
        [[nodiscard]] bool isBindMount() const;
    };

    /// Empty if the system does not tell.
    static MountTable read();

    [[nodiscard]] const Mount* find(std::uint64_t number) const;
    /// Whether something is mounted on `path` or below it.
    [[nodiscard]] bool hasMountAtOrBelow(std::string_view path) const;

private:
    std::vector<Mount> m_mounts;
};

} // namespace Platform
