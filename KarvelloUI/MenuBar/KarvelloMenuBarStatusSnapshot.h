#pragma once

#include "CleanerCore/Insights/SystemResourceSnapshot.h"
#include "KarvelloUI/Advisors/DiskCapacitySnapshot.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/FileURL.h"

#include <cstdint>

namespace KarvelloUI {

/// What the menu bar shows of the machine: its disk, memory, processors and heat at one moment.
struct KarvelloMenuBarStatusSnapshot {
    Platform::Date capturedAt = {};
    /// In bytes; 0 for a volume that cannot be read.
    std::int64_t diskTotalBytes = 0;
    /// In bytes; in a snapshot that was taken neither negative nor more than there is.
    std::int64_t diskFreeBytes = 0;
    CleanerCore::SystemResourceSnapshot systemSnapshot = {};

    /// This machine now, and the volume that holds `folder`. May wait for a volume behind a network.
    static KarvelloMenuBarStatusSnapshot current(const Platform::FileURL& folder);
    static KarvelloMenuBarStatusSnapshot of(
        Platform::Date capturedAt, const DiskCapacitySnapshot& disk, CleanerCore::SystemResourceSnapshot system);

    /// Not below 0.
    [[nodiscard]] std::int64_t diskUsedBytes() const;
    /// From 0 to 1; 0 without a capacity.
    [[nodiscard]] double diskUsedFraction() const;
    [[nodiscard]] double diskFreeFraction() const;
    /// As the system tells it, whatever that is.
    [[nodiscard]] double cpuLoadFraction() const { return systemSnapshot.normalizedCPULoad; }
    /// From 0 to 1; 0 if the memory is not known.
    [[nodiscard]] double memoryUsedFraction() const;

    friend bool operator==(const KarvelloMenuBarStatusSnapshot&, const KarvelloMenuBarStatusSnapshot&) = default;
};

} // namespace KarvelloUI
