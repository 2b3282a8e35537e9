#include "KarvelloUI/Dashboard/ConfidencePills.h"

#include "KarvelloUI/Design/KarvelloPill.h"

#include <tuple>

namespace KarvelloUI {

using CleanerCore::CleanupSafety;

QVariantList confidencePills(
    const DashboardWords& words, const CleanerCore::CleanupSafetyBreakdown& counts, PillsOfNone ofNone)
{
    QVariantList pills;
    for (const auto& [safety, count, kind] : {std::tuple(CleanupSafety::safe, counts.safeCount, KarvelloPillKind::safe),
             std::tuple(CleanupSafety::caution, counts.cautionCount, KarvelloPillKind::caution),
             std::tuple(CleanupSafety::manualReview, counts.manualReviewCount, KarvelloPillKind::review)}) {
        if (count > 0 || ofNone == PillsOfNone::shown) {
            pills.append(QVariant::fromValue(ConfidencePill{.text = shown(words.confidenceCountText(safety, count)),
                .kind = static_cast<int>(count > 0 ? kind : KarvelloPillKind::neutral)}));
        }
    }
    return pills;
}

} // namespace KarvelloUI
