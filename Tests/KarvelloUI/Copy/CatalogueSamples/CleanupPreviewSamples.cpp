#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"
#include "Tests/KarvelloUI/Copy/CatalogueSamples/SampleCandidate.h"

#include <array>

namespace KarvelloUI {
namespace {

using CleanerCore::CleanupSafety;

CleanerCore::CleanupSelectionPreview preview()
{
    const std::array candidates{sampleCandidate(), sampleCandidate(CleanupSafety::caution),
        sampleCandidate(CleanupSafety::manualReview, CleanerCore::CleanupCategory::xcodeDeviceSupport)};
    return CleanerCore::CleanupSelectionPreview(candidates);
}

const CatalogueTheme kCleanupPreview("CleanupPreview",
    {
        {"cleanupPreviewSummary none", [](const KarvelloCopy& copy) { return copy.cleanupPreviewSummary({}); }},
        {"cleanupPreviewSummary some", [](const KarvelloCopy& copy) { return copy.cleanupPreviewSummary(preview()); },
            SampleCoverage::own},
        {"cleanupPreviewItemCount 1", [](const KarvelloCopy& copy) { return copy.cleanupPreviewItemCount(1); }},
        {"cleanupPreviewItemCount 3", [](const KarvelloCopy& copy) { return copy.cleanupPreviewItemCount(3); }},
        {"cleanupPreviewCategoryLine",
            [](const KarvelloCopy& copy) {
                return copy.cleanupPreviewCategoryLine(preview().categorySummaries.front());
            },
            SampleCoverage::assembled},
        {"cleanupPreviewMoreCategories 1",
            [](const KarvelloCopy& copy) { return copy.cleanupPreviewMoreCategories(1); }},
        {"cleanupPreviewMoreCategories 3",
            [](const KarvelloCopy& copy) { return copy.cleanupPreviewMoreCategories(3); }},
        {"cleanupPreviewConfidenceSummary none",
            [](const KarvelloCopy& copy) { return copy.cleanupPreviewConfidenceSummary({}); }},
        {"cleanupPreviewConfidenceSummary some",
            [](const KarvelloCopy& copy) { return copy.cleanupPreviewConfidenceSummary(preview().safetyBreakdown); },
            SampleCoverage::assembled},
        {"confidenceCountText safe",
            [](const KarvelloCopy& copy) { return copy.confidenceCountText(CleanupSafety::safe, 3); },
            SampleCoverage::assembled},
        {"confidenceCountText caution",
            [](const KarvelloCopy& copy) { return copy.confidenceCountText(CleanupSafety::caution, 2); },
            SampleCoverage::assembled},
        {"confidenceCountText manualReview",
            [](const KarvelloCopy& copy) { return copy.confidenceCountText(CleanupSafety::manualReview, 1); },
            SampleCoverage::assembled},
        {"cleanupPreviewConfirmationSuffix",
            [](const KarvelloCopy& copy) { return copy.cleanupPreviewConfirmationSuffix(preview()); }},
        {"selectedTitle", &KarvelloCopy::selectedTitle},
        {"selectedSubtitle", [](const KarvelloCopy& copy) { return copy.selectedSubtitle(3); }},
        {"selectedSummary 0", [](const KarvelloCopy& copy) { return copy.selectedSummary(3, 1536, 0); }},
        {"selectedSummary 1", [](const KarvelloCopy& copy) { return copy.selectedSummary(3, 1536, 1); }},
        {"selectedSummary 2", [](const KarvelloCopy& copy) { return copy.selectedSummary(3, 1536, 2); }},
        {"hiddenSelectionConfirmationWarning 1",
            [](const KarvelloCopy& copy) { return copy.hiddenSelectionConfirmationWarning(1); }},
        {"hiddenSelectionConfirmationWarning 2",
            [](const KarvelloCopy& copy) { return copy.hiddenSelectionConfirmationWarning(2); }},
        {"confirmMoveTitle", &KarvelloCopy::confirmMoveTitle},
        {"confirmMoveMessage", [](const KarvelloCopy& copy) { return copy.confirmMoveMessage(3, 1536); }},
        {"confirmMovePreviewMessage",
            [](const KarvelloCopy& copy) { return copy.confirmMovePreviewMessage(preview(), 0); },
            SampleCoverage::assembled},
        {"confirmMovePreviewMessage hidden",
            [](const KarvelloCopy& copy) { return copy.confirmMovePreviewMessage(preview(), 2); },
            SampleCoverage::assembled},
        {"confirmDuplicateExtrasMoveMessage",
            [](const KarvelloCopy& copy) { return copy.confirmDuplicateExtrasMoveMessage(3, 1536); }},
        {"confirmDeleteTitle", &KarvelloCopy::confirmDeleteTitle},
        {"confirmDeleteMessage", [](const KarvelloCopy& copy) { return copy.confirmDeleteMessage(3, 1536); }},
        {"deleteSelectedAppCache", &KarvelloCopy::deleteSelectedAppCache},
    });

} // namespace
} // namespace KarvelloUI
