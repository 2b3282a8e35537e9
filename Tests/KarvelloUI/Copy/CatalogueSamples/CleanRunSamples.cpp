#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"
#include "Tests/KarvelloUI/Copy/CatalogueSamples/SampleCandidate.h"

namespace KarvelloUI {
namespace {

using CleanerCore::CleaningMode;

CleanerCore::CleanResult cleaned(bool wasCancelled)
{
    return {.cleanedItems = {{.candidate = sampleCandidate()}, {.candidate = sampleCandidate()}},
        .failedItems = {{.candidate = sampleCandidate(), .reason = "ENOSPC"}},
        .wasCancelled = wasCancelled};
}

CleanerCore::RestoreResult restored(bool wasCancelled)
{
    const CleanerCore::CleanedItem item{.candidate = sampleCandidate()};
    return {.restoredItems = {{.cleanedItem = item, .restoredURL = item.candidate.url}},
        .failedItems = {{.cleanedItem = item, .reason = "ENOSPC"}},
        .wasCancelled = wasCancelled};
}

const CatalogueTheme kCleanRun("CleanRun",
    {
        {"cleaningMessage", &KarvelloCopy::cleaningMessage},
        {"cleanFailureMessage", &KarvelloCopy::cleanFailureMessage},
        {"cleanCancelledMessage", &KarvelloCopy::cleanCancelledMessage},
        {"lastCleanTitle moveToTrash",
            [](const KarvelloCopy& copy) { return copy.lastCleanTitle(CleaningMode::moveToTrash); }},
        {"lastCleanTitle deletePermanently",
            [](const KarvelloCopy& copy) { return copy.lastCleanTitle(CleaningMode::deletePermanently); }},
        {"lastCleanTitle unknown", [](const KarvelloCopy& copy) { return copy.lastCleanTitle(std::nullopt); }},
        {"lastCleanSubtitle moveToTrash",
            [](const KarvelloCopy& copy) { return copy.lastCleanSubtitle(cleaned(false), CleaningMode::moveToTrash); }},
        {"lastCleanSubtitle cancelled",
            [](const KarvelloCopy& copy) { return copy.lastCleanSubtitle(cleaned(true), CleaningMode::moveToTrash); },
            SampleCoverage::assembled},
        {"lastCleanSubtitle deletePermanently",
            [](const KarvelloCopy& copy) {
                return copy.lastCleanSubtitle(cleaned(false), CleaningMode::deletePermanently);
            }},
        {"lastCleanSubtitle unknown",
            [](const KarvelloCopy& copy) { return copy.lastCleanSubtitle(cleaned(false), std::nullopt); },
            SampleCoverage::own},
        {"restoringMessage", &KarvelloCopy::restoringMessage},
        {"restoreFailureMessage", &KarvelloCopy::restoreFailureMessage},
        {"restoreCancelledMessage", &KarvelloCopy::restoreCancelledMessage},
        {"lastRestoreTitle", &KarvelloCopy::lastRestoreTitle},
        {"lastRestoreSubtitle", [](const KarvelloCopy& copy) { return copy.lastRestoreSubtitle(restored(false)); }},
        {"lastRestoreSubtitle cancelled",
            [](const KarvelloCopy& copy) { return copy.lastRestoreSubtitle(restored(true)); },
            SampleCoverage::assembled},
    });

} // namespace
} // namespace KarvelloUI
