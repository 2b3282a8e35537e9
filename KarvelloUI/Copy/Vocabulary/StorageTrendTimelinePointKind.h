#pragma once

#include "Platform/Base/RawValue.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace KarvelloUI {

/// What a point of the storage timeline tells of.
enum class StorageTrendTimelinePointKind : std::uint8_t {
    currentStorage,
    lowDiskReminder,
    cleanupScanEstimate,
    insightReviewOpportunity,
    movedToTrashPending,
    recoveredSpace,
};

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::StorageTrendTimelinePointKind> {
    static constexpr std::array<std::string_view, 6> names{"currentStorage", "lowDiskReminder", "cleanupScanEstimate",
        "insightReviewOpportunity", "movedToTrashPending", "recoveredSpace"};
};
