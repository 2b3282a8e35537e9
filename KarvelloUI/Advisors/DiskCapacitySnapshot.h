#pragma once

#include "Platform/Base/FileURL.h"

#include <cstdint>

namespace KarvelloUI {

/// The room on a disk at one moment, in bytes. Without a reading both are 0.
struct DiskCapacitySnapshot {
    /// At this fraction of free space and below, the dashboard speaks of a low disk.
    static constexpr double kLowFreeFraction = 0.12;

    std::int64_t totalBytes = 0;
    /// What the user may still fill.
    std::int64_t freeBytes = 0;

    /// Of the volume that holds `folder`. May wait for a volume behind a network.
    static DiskCapacitySnapshot current(const Platform::FileURL& folder);

    /// Not below 0.
    [[nodiscard]] std::int64_t usedBytes() const;
    /// 0 to 1; 0 without a reading.
    [[nodiscard]] double freeFraction() const;
    /// Never without a reading.
    [[nodiscard]] bool isLow() const { return totalBytes > 0 && freeFraction() <= kLowFreeFraction; }

    friend bool operator==(const DiskCapacitySnapshot&, const DiskCapacitySnapshot&) = default;
};

} // namespace KarvelloUI
