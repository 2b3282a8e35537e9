#pragma once

#include "CleanerCore/Scan/CleanupCategory.h"
#include "CleanerCore/Scan/CleanupScanMode.h"
#include "KarvelloUI/Copy/Vocabulary/CleanupReviewProfileID.h"
#include "Platform/Base/JSONCoding.h"
#include "Platform/Base/RawValue.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace KarvelloUI {

enum class CleanupReviewProfileScope : std::uint8_t { standardSafeRoots, downloadsInsights, developerCacheReview };

/// What a review looks at. A profile proposes; it neither scans nor selects.
struct CleanupReviewProfile {
    CleanupReviewProfileID id = CleanupReviewProfileID::balanced;
    CleanupReviewProfileScope scope = CleanupReviewProfileScope::standardSafeRoots;
    CleanerCore::CleanupScanMode scanMode = CleanerCore::CleanupScanMode::standard;
    std::vector<CleanerCore::CleanupCategory> categories;
    bool includesCustomFolders = false;
    bool respectsIgnoreAndSnoozeRules = true;

    /// One for each id, in the order in which they are offered.
    static std::span<const CleanupReviewProfile> builtIn();
    static const CleanupReviewProfile& profile(CleanupReviewProfileID id);

    friend bool operator==(const CleanupReviewProfile&, const CleanupReviewProfile&) = default;
};

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::CleanupReviewProfileScope> {
    static constexpr std::array<std::string_view, 3> names{
        "standardSafeRoots", "downloadsInsights", "developerCacheReview"};
};

template <>
struct Platform::JSONFields<KarvelloUI::CleanupReviewProfile> {
    static void code(auto& coder, auto& profile)
    {
        coder.field("id", profile.id);
        coder.field("scope", profile.scope);
        coder.field("scanMode", profile.scanMode);
        coder.field("categories", profile.categories);
        coder.field("includesCustomFolders", profile.includesCustomFolders);
        coder.field("respectsIgnoreAndSnoozeRules", profile.respectsIgnoreAndSnoozeRules);
    }
};
