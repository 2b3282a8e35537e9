#include "KarvelloUI/Advisors/DiskCapacitySnapshot.h"

#include "Platform/Services/VolumeCapacity.h"

#include <algorithm>

namespace KarvelloUI {

DiskCapacitySnapshot DiskCapacitySnapshot::current(const Platform::FileURL& folder)
{
    const auto capacity = Platform::VolumeCapacity::of(folder);
    return capacity ? DiskCapacitySnapshot{.totalBytes = capacity->total, .freeBytes = capacity->available}
                    : DiskCapacitySnapshot{};
}

std::int64_t DiskCapacitySnapshot::usedBytes() const
{
    const auto total = std::max<std::int64_t>(totalBytes, 0);
    return total - std::clamp<std::int64_t>(freeBytes, 0, total);
}

double DiskCapacitySnapshot::freeFraction() const
{
    return totalBytes < 1 ? 0.0
                          : std::clamp(static_cast<double>(freeBytes) / static_cast<double>(totalBytes), 0.0, 1.0);
}

} // namespace KarvelloUI
