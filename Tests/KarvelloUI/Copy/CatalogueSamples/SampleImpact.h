#pragma once

#include "CleanerCore/Cleaning/CleanupStorageImpactReport.h"

#include <cstdint>
#include <optional>

namespace KarvelloUI {

/// A clean of which one item failed.
[[nodiscard]] inline CleanerCore::CleanupStorageImpactReport sampleImpact(
    std::optional<CleanerCore::CleaningMode> mode, std::int64_t expectedBytes, bool wasCancelled)
{
    return CleanerCore::CleanupStorageImpactReport({.mode = mode,
        .requestedItemCount = 6,
        .succeededItemCount = 5,
        .failedItemCount = 1,
        .expectedBytes = expectedBytes,
        .affectedBytes = 1536,
        .wasCancelled = wasCancelled});
}

} // namespace KarvelloUI
