#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"
#include "Tests/KarvelloUI/Copy/CatalogueSamples/SampleImpact.h"

namespace KarvelloUI {
namespace {

using CleanerCore::CleaningMode;

const CatalogueTheme kCleanupImpact("CleanupImpact",
    {
        {"cleanupImpactTitle", &KarvelloCopy::cleanupImpactTitle},
        {"cleanupImpactExpectedLabel moveToTrash",
            [](const KarvelloCopy& copy) { return copy.cleanupImpactExpectedLabel(CleaningMode::moveToTrash); }},
        {"cleanupImpactExpectedLabel deletePermanently",
            [](const KarvelloCopy& copy) { return copy.cleanupImpactExpectedLabel(CleaningMode::deletePermanently); }},
        {"cleanupImpactExpectedLabel unknown",
            [](const KarvelloCopy& copy) { return copy.cleanupImpactExpectedLabel(std::nullopt); }},
        {"cleanupImpactActualLabel moveToTrash",
            [](const KarvelloCopy& copy) { return copy.cleanupImpactActualLabel(CleaningMode::moveToTrash); }},
        {"cleanupImpactActualLabel deletePermanently",
            [](const KarvelloCopy& copy) { return copy.cleanupImpactActualLabel(CleaningMode::deletePermanently); }},
        {"cleanupImpactActualLabel unknown",
            [](const KarvelloCopy& copy) { return copy.cleanupImpactActualLabel(std::nullopt); }},
        {"cleanupImpactUnreclaimedLabel moveToTrash",
            [](const KarvelloCopy& copy) { return copy.cleanupImpactUnreclaimedLabel(CleaningMode::moveToTrash); }},
        {"cleanupImpactUnreclaimedLabel deletePermanently",
            [](const KarvelloCopy& copy) {
                return copy.cleanupImpactUnreclaimedLabel(CleaningMode::deletePermanently);
            }},
        {"cleanupImpactUnreclaimedLabel unknown",
            [](const KarvelloCopy& copy) { return copy.cleanupImpactUnreclaimedLabel(std::nullopt); }},
        {"cleanupImpactUnavailablePercent", &KarvelloCopy::cleanupImpactUnavailablePercent},
        {"cleanupImpactSummary moveToTrash",
            [](const KarvelloCopy& copy) {
                return copy.cleanupImpactSummary(sampleImpact(CleaningMode::moveToTrash, 4096, false));
            }},
        {"cleanupImpactSummary deletePermanently",
            [](const KarvelloCopy& copy) {
                return copy.cleanupImpactSummary(sampleImpact(CleaningMode::deletePermanently, 4096, false));
            }},
        {"cleanupImpactSummary unknown",
            [](const KarvelloCopy& copy) { return copy.cleanupImpactSummary(sampleImpact(std::nullopt, 4096, false)); },
            SampleCoverage::own},
        {"cleanupImpactSummary moveToTrash cancelled without a percentage",
            [](const KarvelloCopy& copy) {
                return copy.cleanupImpactSummary(sampleImpact(CleaningMode::moveToTrash, 0, true));
            },
            SampleCoverage::assembled},
        {"cleanupImpactSummary deletePermanently cancelled without a percentage",
            [](const KarvelloCopy& copy) {
                return copy.cleanupImpactSummary(sampleImpact(CleaningMode::deletePermanently, 0, true));
            },
            SampleCoverage::assembled},
        {"cleanupImpactSummary unknown cancelled without a percentage",
            [](const KarvelloCopy& copy) { return copy.cleanupImpactSummary(sampleImpact(std::nullopt, 0, true)); },
            SampleCoverage::own},
        {"cleanupImpactAccessibilityLabel",
            [](const KarvelloCopy& copy) {
                return copy.cleanupImpactAccessibilityLabel(sampleImpact(CleaningMode::moveToTrash, 4096, false));
            },
            SampleCoverage::own},
        {"cleanupImpactAccessibilityLabel cancelled",
            [](const KarvelloCopy& copy) {
                return copy.cleanupImpactAccessibilityLabel(sampleImpact(CleaningMode::deletePermanently, 4096, true));
            },
            SampleCoverage::own},
    });

} // namespace
} // namespace KarvelloUI
