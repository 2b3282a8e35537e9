#include "Platform/Services/VolumeCapacity.h"

#include <cerrno>
#include <limits>
#include <sys/statvfs.h>

namespace Platform {

std::optional<VolumeCapacity> VolumeCapacity::of(const FileURL& folder)
{
    struct statvfs found{};
    int result = -1;
    do {
        result = statvfs(folder.path().c_str(), &found);
    } while (result != 0 && errno == EINTR);
    constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    // Some file systems without a disk behind them have no size at all.
    if (result != 0 || found.f_blocks == 0 || found.f_frsize == 0 || found.f_blocks > most / found.f_frsize
        || found.f_bavail > found.f_blocks) {
        return std::nullopt;
    }
    return VolumeCapacity{
        .total = static_cast<std::int64_t>(found.f_blocks * found.f_frsize),
        .available = static_cast<std::int64_t>(found.f_bavail * found.f_frsize),
    };
}

} // namespace Platform
