#include "KarvelloUI/Sessions/CandidateListTextProvider.h"

#include "KarvelloUI/Copy/KarvelloCopy.h"

namespace KarvelloUI {

CandidateListTextProvider candidateListTextProvider(const KarvelloCopy& copy)
{
    return {
        .categoryName = [copy](CleanerCore::CleanupCategory category) { return copy.categoryName(category); },
        .safetyName = [copy](CleanerCore::CleanupSafety safety) { return copy.safetyName(safety); },
        .reasonText =
            [copy](CleanerCore::CleanupRecommendationReason reason) { return copy.recommendationReason(reason); },
        .actionText = [copy](
                          CleanerCore::CleanupCategory category) { return copy.categoryRecommendedAction(category); },
        .appCacheContextText =
            [copy](const std::optional<CleanerCore::AppCacheContext>& context) {
                return context ? std::optional(copy.appCacheContextSummary(*context)) : std::nullopt;
            },
    };
}

} // namespace KarvelloUI
