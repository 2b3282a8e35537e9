#pragma once

#include "KarvelloUI/Copy/Vocabulary/CleanupReviewCadenceStatusKind.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/RawValue.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace KarvelloUI {

/// How often the user wants to be reminded of a review.
enum class CleanupReviewCadence : std::uint8_t { off, weekly, monthly };

struct CleanupReviewCadenceStatus {
    CleanupReviewCadenceStatusKind kind = CleanupReviewCadenceStatusKind::disabled;
    std::optional<Platform::Date> nextReviewAt = {};
    /// At least 1 while the review is to come, 0 once it is due.
    std::optional<std::int64_t> daysUntilNextReview = {};

    friend bool operator==(const CleanupReviewCadenceStatus&, const CleanupReviewCadenceStatus&) = default;
};

/// 7 or 30 days later; nothing for `off`.
[[nodiscard]] std::optional<Platform::Date> nextReviewDate(CleanupReviewCadence cadence, Platform::Date lastReview);
/// A review whose date is `now` is due.
[[nodiscard]] CleanupReviewCadenceStatus reviewStatus(
    CleanupReviewCadence cadence, std::optional<Platform::Date> lastReviewedAt, Platform::Date now);

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::CleanupReviewCadence> {
    static constexpr std::array<std::string_view, 3> names{"off", "weekly", "monthly"};
};
