#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {
namespace {

const CatalogueTheme kSmartCleanup("SmartCleanup",
    {
        {"smartCleanupSizeDetail", [](const KarvelloCopy& copy) { return copy.smartCleanupSizeDetail(1536); },
            SampleCoverage::staysEnglish},
        {"smartCleanupOpenSectionCTA",
            [](const KarvelloCopy& copy) { return copy.smartCleanupOpenSectionCTA("Karvello"); }, SampleCoverage::own},
        {"smartCleanupLowDiskBody",
            [](const KarvelloCopy& copy) { return copy.smartCleanupLowDiskBody(1536, "Karvello"); }},
        {"smartCleanupDuplicatesBody", [](const KarvelloCopy& copy) { return copy.smartCleanupDuplicatesBody(3); }},
        {"smartCleanupPermissionBody 0", [](const KarvelloCopy& copy) { return copy.smartCleanupPermissionBody(0); }},
        {"smartCleanupPermissionBody 3", [](const KarvelloCopy& copy) { return copy.smartCleanupPermissionBody(3); }},
        {"smartCleanupPermissionDetail 0",
            [](const KarvelloCopy& copy) { return copy.smartCleanupPermissionDetail(0); }},
        {"smartCleanupPermissionDetail 3",
            [](const KarvelloCopy& copy) { return copy.smartCleanupPermissionDetail(3); }},
        {"smartCleanupCandidatesBody", [](const KarvelloCopy& copy) { return copy.smartCleanupCandidatesBody(3); }},
        {"smartCleanupLargeFilesBody", [](const KarvelloCopy& copy) { return copy.smartCleanupLargeFilesBody(3); },
            SampleCoverage::assembled},
        {"smartCleanupDownloadsBody", [](const KarvelloCopy& copy) { return copy.smartCleanupDownloadsBody(3); }},
        {"smartCleanupPrimerBody", [](const KarvelloCopy& copy) { return copy.smartCleanupPrimerBody(); }},
        {"smartCleanupPrimerDetail", [](const KarvelloCopy& copy) { return copy.smartCleanupPrimerDetail(); }},
    });

const CatalogueTheme kRecommendationTitles("SmartCleanup",
    samplesOfEachCase<StorageRecommendationKind>("smartCleanupTitle",
        [](const KarvelloCopy& copy, StorageRecommendationKind kind) { return copy.smartCleanupTitle(kind); }));

} // namespace
} // namespace KarvelloUI
