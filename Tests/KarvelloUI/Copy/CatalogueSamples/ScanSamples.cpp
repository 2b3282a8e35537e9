#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

#include "CleanerCore/Scan/StorageScannerSkipReason.h"

namespace KarvelloUI {
namespace {

using CleanerCore::CleanupScanMode;
namespace SkipReason = CleanerCore::StorageScannerSkipReason;

const CatalogueTheme kScan("Scan",
    {
        {"scanningMessage", &KarvelloCopy::scanningMessage},
        {"scanAgain", &KarvelloCopy::scanAgain},
        {"scanAppCache", &KarvelloCopy::scanAppCache},
        {"scanModeTitle", &KarvelloCopy::scanModeTitle},
        {"scanModeName standard",
            [](const KarvelloCopy& copy) { return copy.scanModeName(CleanupScanMode::standard); }},
        {"scanModeName aggressive",
            [](const KarvelloCopy& copy) { return copy.scanModeName(CleanupScanMode::aggressive); }},
        {"scanModeName direct", [](const KarvelloCopy& copy) { return copy.scanModeName(CleanupScanMode::direct); },
            SampleCoverage::own},
        {"scanModeAccessibilityHint", [](const KarvelloCopy& copy) { return copy.scanModeAccessibilityHint(false); },
            SampleCoverage::own},
        {"scanModeAccessibilityHint direct",
            [](const KarvelloCopy& copy) { return copy.scanModeAccessibilityHint(true); }, SampleCoverage::own},
        {"aggressiveWarningTitle", &KarvelloCopy::aggressiveWarningTitle},
        {"aggressiveWarningBody", &KarvelloCopy::aggressiveWarningBody},
        {"scanRunnerPreparing", &KarvelloCopy::scanRunnerPreparing},
        {"scanRunnerVisiting", &KarvelloCopy::scanRunnerVisiting},
        {"scanRunnerHint", &KarvelloCopy::scanRunnerHint},
        {"scanRunnerProgressLabel", &KarvelloCopy::scanRunnerProgressLabel},
        {"scanRunnerProgress", [](const KarvelloCopy& copy) { return copy.scanRunnerProgress(85); }},
        {"scanRunnerScannedLabel", &KarvelloCopy::scanRunnerScannedLabel},
        {"scanRunnerCandidatesLabel", &KarvelloCopy::scanRunnerCandidatesLabel},
        {"scanRunnerSkippedLabel", &KarvelloCopy::scanRunnerSkippedLabel},
        {"itemsScannedCount", [](const KarvelloCopy& copy) { return copy.itemsScannedCount(12); }},
        {"reclaimableTitle", &KarvelloCopy::reclaimableTitle},
        {"skippedTitle", &KarvelloCopy::skippedTitle},
        {"skippedSummary", [](const KarvelloCopy& copy) { return copy.skippedSummary(3); }},
        {"skippedMore", [](const KarvelloCopy& copy) { return copy.skippedMore(3); }},
        {"skippedReason folderDoesNotExist",
            [](const KarvelloCopy& copy) { return copy.skippedReason(SkipReason::folderDoesNotExist); },
            SampleCoverage::own},
        {"skippedReason symbolicLink",
            [](const KarvelloCopy& copy) { return copy.skippedReason(SkipReason::symbolicLink); }, SampleCoverage::own},
        {"skippedReason noTouchPath",
            [](const KarvelloCopy& copy) { return copy.skippedReason(SkipReason::noTouchPath); }, SampleCoverage::own},
        {"skippedReason noTouchDescendant",
            [](const KarvelloCopy& copy) { return copy.skippedReason(SkipReason::noTouchDescendant); },
            SampleCoverage::own},
        {"skippedReason recentlyModified",
            [](const KarvelloCopy& copy) { return copy.skippedReason(SkipReason::recentlyModified); },
            SampleCoverage::own},
        {"skippedReason emptyItem", [](const KarvelloCopy& copy) { return copy.skippedReason(SkipReason::emptyItem); },
            SampleCoverage::own},
        {"skippedReason inventoryItemLimitExceeded",
            [](const KarvelloCopy& copy) { return copy.skippedReason(SkipReason::inventoryItemLimitExceeded); },
            SampleCoverage::own},
        {"skippedReason duplicateHashBudgetExceeded",
            [](const KarvelloCopy& copy) { return copy.skippedReason(SkipReason::duplicateHashBudgetExceeded); },
            SampleCoverage::own},
        {"skippedReason couldNotEnumerateFolder",
            [](const KarvelloCopy& copy) { return copy.skippedReason(SkipReason::couldNotEnumerateFolder); },
            SampleCoverage::own},
        {"skippedReason couldNotEnumeratePackage",
            [](const KarvelloCopy& copy) { return copy.skippedReason(SkipReason::couldNotEnumeratePackage); },
            SampleCoverage::own},
        {"skippedReason scanRootItself",
            [](const KarvelloCopy& copy) { return copy.skippedReason(SkipReason::scanRootItself); },
            SampleCoverage::own},
        {"skippedReason of the system", [](const KarvelloCopy& copy) { return copy.skippedReason("ENOSPC"); },
            SampleCoverage::staysEnglish},
        {"cancel", &KarvelloCopy::cancel},
        {"cancelOperation", &KarvelloCopy::cancelOperation},
    });

} // namespace
} // namespace KarvelloUI
