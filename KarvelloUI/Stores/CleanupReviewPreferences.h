#pragma once

#include "KarvelloUI/Copy/Vocabulary/CleanupReviewProfileID.h"
#include "KarvelloUI/Stores/CleanupReviewCadence.h"
#include "Platform/Services/UserDefaults.h"

#include <optional>
#include <string_view>

namespace KarvelloUI {

/// What is stored of the reviews, and in which form.
struct CleanupReviewPreferences {
    static constexpr std::string_view cadenceDefaultsKey = "karvello.cleanupReviewLoop.cadence";
    static constexpr std::string_view selectedProfileIDDefaultsKey = "karvello.cleanupReviewLoop.selectedProfileID";
    /// A number: seconds since 1970-01-01T00:00:00Z.
    static constexpr std::string_view lastReviewedAtDefaultsKey = "karvello.cleanupReviewLoop.lastReviewedAt";

    CleanupReviewCadence cadence = CleanupReviewCadence::off;
    CleanupReviewProfileID selectedProfileID = CleanupReviewProfileID::balanced;
    std::optional<Platform::Date> lastReviewedAt = {};

    /// What is missing or makes no sense counts as never chosen, and as never reviewed.
    static CleanupReviewPreferences read(const Platform::UserDefaults& defaults);

    friend bool operator==(const CleanupReviewPreferences&, const CleanupReviewPreferences&) = default;
};

} // namespace KarvelloUI
