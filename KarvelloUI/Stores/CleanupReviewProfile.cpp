#include "KarvelloUI/Stores/CleanupReviewProfile.h"

#include <algorithm>

namespace KarvelloUI {

std::span<const CleanupReviewProfile> CleanupReviewProfile::builtIn()
{
    using CleanerCore::CleanupCategory;
    using CleanerCore::CleanupScanMode;
    static const std::array<CleanupReviewProfile, 3> profiles{{
        {.id = CleanupReviewProfileID::balanced,
            .scope = CleanupReviewProfileScope::standardSafeRoots,
            .scanMode = CleanupScanMode::standard,
            .categories = {CleanupCategory::userCaches, CleanupCategory::userLogs, CleanupCategory::temporaryFiles}},
        {.id = CleanupReviewProfileID::downloads,
            .scope = CleanupReviewProfileScope::downloadsInsights,
            .scanMode = CleanupScanMode::standard,
            .categories = {CleanupCategory::temporaryFiles}},
        {.id = CleanupReviewProfileID::developerCaches,
            .scope = CleanupReviewProfileScope::developerCacheReview,
            .scanMode = CleanupScanMode::aggressive,
            .categories = {CleanupCategory::xcodeDerivedData, CleanupCategory::simulatorCaches,
                CleanupCategory::xcodeDeviceSupport}},
    }};
    return profiles;
}

const CleanupReviewProfile& CleanupReviewProfile::profile(CleanupReviewProfileID id)
{
    const auto profiles = builtIn();
    const auto found = std::ranges::find(profiles, id, &CleanupReviewProfile::id);
    return found == profiles.end() ? profiles.front() : *found;
}

} // namespace KarvelloUI
