#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {
namespace {

const CatalogueTheme kCleanupIgnoreDurationTitle("IgnoreList",
    samplesOfEachCase<CleanupIgnoreDuration>("cleanupIgnoreDurationTitle", &KarvelloCopy::cleanupIgnoreDurationTitle));

const CatalogueTheme kIgnoreList("IgnoreList",
    {
        {"ignoreCleanupCandidate", &KarvelloCopy::ignoreCleanupCandidate},
        {"ignoredCandidatesTitle", &KarvelloCopy::ignoredCandidatesTitle},
        {"ignoredCandidatesDescription", &KarvelloCopy::ignoredCandidatesDescription},
        {"ignoredCandidatesEmpty", &KarvelloCopy::ignoredCandidatesEmpty},
        {"ignoredCandidatesSummary 1", [](const KarvelloCopy& copy) { return copy.ignoredCandidatesSummary(1); }},
        {"ignoredCandidatesSummary 3", [](const KarvelloCopy& copy) { return copy.ignoredCandidatesSummary(3); },
            SampleCoverage::assembled},
        {"ignoredCandidateDurationDescription oneDay",
            [](const KarvelloCopy& copy) {
                return copy.ignoredCandidateDurationDescription(CleanupIgnoreDuration::oneDay, "10:30");
            }},
        {"ignoredCandidateDurationDescription oneWeek",
            [](const KarvelloCopy& copy) {
                return copy.ignoredCandidateDurationDescription(CleanupIgnoreDuration::oneWeek, {});
            }},
        {"ignoredCandidateDurationDescription untilShownAgain",
            [](const KarvelloCopy& copy) {
                return copy.ignoredCandidateDurationDescription(CleanupIgnoreDuration::untilShownAgain, {});
            }},
        {"showIgnoredCandidateAgain", &KarvelloCopy::showIgnoredCandidateAgain},
        {"clearIgnoredCandidates", &KarvelloCopy::clearIgnoredCandidates},
        {"cleanupIgnoreLoadFailedMessage",
            [](const KarvelloCopy& copy) { return copy.cleanupIgnoreLoadFailedMessage("ENOSPC"); }},
        {"cleanupIgnoreSaveFailedMessage",
            [](const KarvelloCopy& copy) { return copy.cleanupIgnoreSaveFailedMessage("ENOSPC"); }},
    });

} // namespace
} // namespace KarvelloUI
