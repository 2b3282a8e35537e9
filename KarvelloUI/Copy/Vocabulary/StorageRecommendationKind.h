#pragma once

#include "Platform/Base/RawValue.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace KarvelloUI {

/// What a recommendation of the dashboard's home suggests to look at.
enum class StorageRecommendationKind : std::uint8_t {
    lowDiskReview,
    duplicateReview,
    permissionGuide,
    cleanupReview,
    largeFileReview,
    downloadsReview,
    /// There is nothing to suggest yet but a scan.
    scanPrimer,
};

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::StorageRecommendationKind> {
    static constexpr std::array<std::string_view, 7> names{"lowDiskReview", "duplicateReview", "permissionGuide",
        "cleanupReview", "largeFileReview", "downloadsReview", "scanPrimer"};
};
