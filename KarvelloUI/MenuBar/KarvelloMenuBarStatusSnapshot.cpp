#include "KarvelloUI/MenuBar/KarvelloMenuBarStatusSnapshot.h"

#include <algorithm>
#include <utility>

namespace KarvelloUI {

namespace {

double fraction(std::int64_t part, std::int64_t whole)
{
    return whole < 1 ? 0.0 : std::clamp(static_cast<double>(part) / static_cast<double>(whole), 0.0, 1.0);
}

} // namespace

KarvelloMenuBarStatusSnapshot KarvelloMenuBarStatusSnapshot::current(const Platform::FileURL& folder)
{
    const auto disk = DiskCapacitySnapshot::current(folder);
    return of(Platform::Date::now(), disk, CleanerCore::SystemResourceSnapshot::current());
}

KarvelloMenuBarStatusSnapshot KarvelloMenuBarStatusSnapshot::of(
    Platform::Date capturedAt, const DiskCapacitySnapshot& disk, CleanerCore::SystemResourceSnapshot system)
{
    const auto total = std::max<std::int64_t>(disk.totalBytes, 0);
    return {
        .capturedAt = capturedAt,
        .diskTotalBytes = total,
        .diskFreeBytes = std::clamp<std::int64_t>(disk.freeBytes, 0, total),
        .systemSnapshot = std::move(system),
    };
}

std::int64_t KarvelloMenuBarStatusSnapshot::diskUsedBytes() const
{
    return diskFreeBytes < diskTotalBytes ? diskTotalBytes - diskFreeBytes : 0;
}

double KarvelloMenuBarStatusSnapshot::diskUsedFraction() const
{
    return fraction(diskUsedBytes(), diskTotalBytes);
}

double KarvelloMenuBarStatusSnapshot::diskFreeFraction() const
{
    return fraction(diskFreeBytes, diskTotalBytes);
}

double KarvelloMenuBarStatusSnapshot::memoryUsedFraction() const
{
    const auto physical = systemSnapshot.physicalMemoryBytes;
    if (physical == 0) {
        return 0;
    }
    return static_cast<double>(std::min(systemSnapshot.usedMemoryBytes, physical)) / static_cast<double>(physical);
}

} // namespace KarvelloUI
