#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {
namespace {

const CatalogueTheme kCandidateList("CandidateList",
    {
        {"cleanupCandidatesTitle", &KarvelloCopy::cleanupCandidatesTitle},
        {"candidateListSearchPrompt", &KarvelloCopy::candidateListSearchPrompt, SampleCoverage::own},
        {"candidateListCategoryFilterTitle", &KarvelloCopy::candidateListCategoryFilterTitle, SampleCoverage::own},
        {"candidateListAllCategoriesFilter", &KarvelloCopy::candidateListAllCategoriesFilter, SampleCoverage::own},
        {"candidateListSafetyFilterTitle", &KarvelloCopy::candidateListSafetyFilterTitle},
        {"candidateListAllSafetyFilter", &KarvelloCopy::candidateListAllSafetyFilter, SampleCoverage::own},
        {"candidateListGroupingTitle", &KarvelloCopy::candidateListGroupingTitle, SampleCoverage::own},
        {"candidateListGroupingModeName flat",
            [](const KarvelloCopy& copy) {
                return copy.candidateListGroupingModeName(CandidateListGroupingMode::flat);
            },
            SampleCoverage::own},
        {"candidateListGroupingModeName category",
            [](const KarvelloCopy& copy) {
                return copy.candidateListGroupingModeName(CandidateListGroupingMode::category);
            },
            SampleCoverage::own},
        {"candidateListGroupingModeName safety",
            [](const KarvelloCopy& copy) {
                return copy.candidateListGroupingModeName(CandidateListGroupingMode::safety);
            }},
        {"noCleanupCandidatesTitle", &KarvelloCopy::noCleanupCandidatesTitle},
        {"noCleanupCandidatesDescription", &KarvelloCopy::noCleanupCandidatesDescription},
        {"noFilteredCleanupCandidatesTitle", &KarvelloCopy::noFilteredCleanupCandidatesTitle},
        {"noFilteredCleanupCandidatesDescription", &KarvelloCopy::noFilteredCleanupCandidatesDescription,
            SampleCoverage::own},
        {"visibleCleanupCandidatesSummary all",
            [](const KarvelloCopy& copy) { return copy.visibleCleanupCandidatesSummary(40, 40); }},
        {"visibleCleanupCandidatesSummary some",
            [](const KarvelloCopy& copy) { return copy.visibleCleanupCandidatesSummary(12, 40); }},
        {"selectAll", &KarvelloCopy::selectAll},
        {"clearSelection", &KarvelloCopy::clearSelection},
        {"selectVisibleCandidates", &KarvelloCopy::selectVisibleCandidates, SampleCoverage::own},
        {"clearVisibleSelection", &KarvelloCopy::clearVisibleSelection, SampleCoverage::own},
        {"partialSelectionCaption", &KarvelloCopy::partialSelectionCaption},
        {"bulkSelectionAccessibilityValue none",
            [](const KarvelloCopy& copy) { return copy.bulkSelectionAccessibilityValue(0, 12); }},
        {"bulkSelectionAccessibilityValue some",
            [](const KarvelloCopy& copy) { return copy.bulkSelectionAccessibilityValue(3, 12); }},
        {"bulkSelectionAccessibilityValue all",
            [](const KarvelloCopy& copy) { return copy.bulkSelectionAccessibilityValue(12, 12); }},
        {"visibleBulkSelectionAccessibilityValue",
            [](const KarvelloCopy& copy) { return copy.visibleBulkSelectionAccessibilityValue(3, 12); },
            SampleCoverage::assembled},
        {"selectionState selected", [](const KarvelloCopy& copy) { return copy.selectionState(true); }},
        {"selectionState not selected", [](const KarvelloCopy& copy) { return copy.selectionState(false); }},
        {"openInFinder", &KarvelloCopy::openInFinder},
        {"moveSelectedToTrash", &KarvelloCopy::moveSelectedToTrash},
    });

} // namespace
} // namespace KarvelloUI
