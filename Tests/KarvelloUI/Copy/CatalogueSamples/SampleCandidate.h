#pragma once

#include "CleanerCore/Scan/CleanupCandidate.h"

namespace KarvelloUI {

/// A candidate whose name and category are the same in every language.
[[nodiscard]] inline CleanerCore::CleanupCandidate sampleCandidate(
    CleanerCore::CleanupSafety safety = CleanerCore::CleanupSafety::safe,
    CleanerCore::CleanupCategory category = CleanerCore::CleanupCategory::xcodeDerivedData)
{
    return CleanerCore::CleanupCandidate(
        {.url = Platform::FileURL("/Karvello"), .category = category, .sizeBytes = 1536, .safety = safety});
}

} // namespace KarvelloUI
