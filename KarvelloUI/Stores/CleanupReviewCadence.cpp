#include "KarvelloUI/Stores/CleanupReviewCadence.h"

#include <algorithm>
#include <cmath>

namespace KarvelloUI {

namespace {

constexpr double kSecondsPerDay = 86'400;

} // namespace

std::optional<Platform::Date> nextReviewDate(CleanupReviewCadence cadence, Platform::Date lastReview)
{
    switch (cadence) {
    case CleanupReviewCadence::off:
        return std::nullopt;
    case CleanupReviewCadence::weekly:
        return lastReview.addingSeconds(7 * kSecondsPerDay);
    case CleanupReviewCadence::monthly:
        return lastReview.addingSeconds(30 * kSecondsPerDay);
    }
    return std::nullopt;
}

CleanupReviewCadenceStatus reviewStatus(
    CleanupReviewCadence cadence, std::optional<Platform::Date> lastReviewedAt, Platform::Date now)
{
    const auto next = lastReviewedAt ? nextReviewDate(cadence, *lastReviewedAt) : std::nullopt;
    if (!next) {
        return {.kind = cadence == CleanupReviewCadence::off ? CleanupReviewCadenceStatusKind::disabled
                                                             : CleanupReviewCadenceStatusKind::notStarted};
    }
    const double seconds = next->secondsSince(now);
    if (seconds > 0) {
        // A stored date may lie any number of years ahead.
        const double days = std::min(std::ceil(seconds / kSecondsPerDay), 1e9);
        return {.kind = CleanupReviewCadenceStatusKind::upcoming,
            .nextReviewAt = next,
            .daysUntilNextReview = std::max<std::int64_t>(static_cast<std::int64_t>(days), 1)};
    }
    return {.kind = CleanupReviewCadenceStatusKind::due, .nextReviewAt = next, .daysUntilNextReview = 0};
}

} // namespace KarvelloUI
