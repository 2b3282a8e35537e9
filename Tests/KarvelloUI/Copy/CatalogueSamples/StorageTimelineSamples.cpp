#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {
namespace {

std::string sampleBody(const KarvelloCopy& copy, StorageTrendTimelinePointKind kind)
{
    return copy.storageTimelinePointBody(kind, 4096, 1536, MacDashboardSection::largeFiles);
}

const CatalogueTheme kPointTitles("StorageTimeline",
    samplesOfEachCase<StorageTrendTimelinePointKind>(
        "storageTimelinePointTitle", &KarvelloCopy::storageTimelinePointTitle));
const CatalogueTheme kPointBodies(
    "StorageTimeline", samplesOfEachCase<StorageTrendTimelinePointKind>("storageTimelinePointBody", sampleBody));
const CatalogueTheme kPointDetails("StorageTimeline",
    {
        {"storageTimelinePointDetail currentStorage",
            [](const KarvelloCopy& copy) {
                return copy.storageTimelinePointDetail(StorageTrendTimelinePointKind::currentStorage, 3);
            }},
        {"storageTimelinePointDetail cleanupScanEstimate",
            [](const KarvelloCopy& copy) {
                return copy.storageTimelinePointDetail(StorageTrendTimelinePointKind::cleanupScanEstimate, 3);
            }},
        {"storageTimelinePointDetail insightReviewOpportunity",
            [](const KarvelloCopy& copy) {
                return copy.storageTimelinePointDetail(StorageTrendTimelinePointKind::insightReviewOpportunity, 3);
            }},
        {"storageTimelinePointDetail movedToTrashPending",
            [](const KarvelloCopy& copy) {
                return copy.storageTimelinePointDetail(StorageTrendTimelinePointKind::movedToTrashPending, 3);
            }},
        {"storageTimelinePointDetail recoveredSpace",
            [](const KarvelloCopy& copy) {
                return copy.storageTimelinePointDetail(StorageTrendTimelinePointKind::recoveredSpace, 3);
            }},
    });

} // namespace
} // namespace KarvelloUI
