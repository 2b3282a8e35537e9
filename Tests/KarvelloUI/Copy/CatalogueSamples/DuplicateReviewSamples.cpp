#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {
namespace {

using CleanerCore::DuplicateKeeperRecommendation;
using Reason = CleanerCore::DuplicateKeeperRecommendationReason;

DuplicateKeeperRecommendation recommendation(std::vector<Reason> reasons)
{
    DuplicateKeeperRecommendation recommendation;
    recommendation.reasons = std::move(reasons);
    return recommendation;
}

const CatalogueTheme kDuplicateReview("DuplicateReview",
    {
        {"duplicateReviewCenterSubtitle",
            [](const KarvelloCopy& copy) { return copy.duplicateReviewCenterSubtitle(3, 8); }},
        {"duplicateGroupTitle", [](const KarvelloCopy& copy) { return copy.duplicateGroupTitle(2, 3); }},
        {"duplicateGroupByteSummary",
            [](const KarvelloCopy& copy) { return copy.duplicateGroupByteSummary(4096, 1536); }},
        {"duplicateGroupSelectionSummary unavailable",
            [](const KarvelloCopy& copy) { return copy.duplicateGroupSelectionSummary(0, 0, 3); }},
        {"duplicateGroupSelectionSummary none",
            [](const KarvelloCopy& copy) { return copy.duplicateGroupSelectionSummary(0, 2, 3); }},
        {"duplicateGroupSelectionSummary partial",
            [](const KarvelloCopy& copy) { return copy.duplicateGroupSelectionSummary(1, 2, 3); }},
        {"duplicateGroupSelectionSummary all",
            [](const KarvelloCopy& copy) { return copy.duplicateGroupSelectionSummary(2, 2, 3); }},
        {"duplicateSelectedExtrasSubtitle 1",
            [](const KarvelloCopy& copy) { return copy.duplicateSelectedExtrasSubtitle(1); }},
        {"duplicateSelectedExtrasSubtitle 3",
            [](const KarvelloCopy& copy) { return copy.duplicateSelectedExtrasSubtitle(3); }},
    });
const CatalogueTheme kKeeperReasons("DuplicateReview",
    samplesOfEachCase<Reason>("duplicateKeeperReasonName", &KarvelloCopy::duplicateKeeperReasonName));
const CatalogueTheme kRecommendations("DuplicateReview",
    {
        {"duplicateKeeperRecommendationSummary 1",
            [](const KarvelloCopy& copy) {
                return copy.duplicateKeeperRecommendationSummary(recommendation({Reason::olderModificationDate}));
            }},
        {"duplicateKeeperRecommendationSummary 2",
            [](const KarvelloCopy& copy) {
                return copy.duplicateKeeperRecommendationSummary(
                    recommendation({Reason::preferredLocation, Reason::olderModificationDate}));
            }},
    });

} // namespace
} // namespace KarvelloUI
