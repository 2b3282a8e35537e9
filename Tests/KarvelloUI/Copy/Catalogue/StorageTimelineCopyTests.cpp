#include "KarvelloUI/Copy/KarvelloCopy.h"

#include "Tests/KarvelloUI/Copy/CopyLanguages.h"

#include <gtest/gtest.h>

namespace KarvelloUI {
namespace {

using PointKind = StorageTrendTimelinePointKind;

std::string bodyOf(PointKind kind, std::optional<MacDashboardSection> section = {})
{
    return kEnglish.storageTimelinePointBody(kind, 1536, 1024, section);
}

TEST(StorageTimelineCopy, KeepsEstimatesMovesAndRecoveriesApart)
{
    EXPECT_EQ(bodyOf(PointKind::currentStorage), "1.5 KB free, 1 KB used. This is the current snapshot.");
    EXPECT_EQ(bodyOf(PointKind::cleanupScanEstimate),
        "1.5 KB is the latest cleanup scan estimate that still needs review. Nothing is moved to Trash before you "
        "choose items.");
    EXPECT_EQ(bodyOf(PointKind::insightReviewOpportunity, MacDashboardSection::downloads),
        "1.5 KB review opportunity in Downloads. It is not added to scan estimates as one recovery total.");
    EXPECT_EQ(bodyOf(PointKind::movedToTrashPending),
        "1.5 KB was moved to Trash. It is pending recovery; free space increases after Trash is emptied.");
    EXPECT_EQ(
        bodyOf(PointKind::recoveredSpace), "1.5 KB was recovered by a cleanup record. Remaining estimate is 1 KB.");
}

TEST(StorageTimelineCopy, LeadsToCleanupWithoutASection)
{
    EXPECT_EQ(bodyOf(PointKind::lowDiskReminder),
        "Free space is low. Open Cleanup Review to review candidates. Nothing runs automatically.");
    EXPECT_EQ(bodyOf(PointKind::lowDiskReminder, MacDashboardSection::largeFiles),
        "Free space is low. Open Large Files to review candidates. Nothing runs automatically.");
}

TEST(StorageTimelineCopy, CountsWhatAPointIsMadeOf)
{
    EXPECT_EQ(kEnglish.storageTimelinePointDetail(PointKind::currentStorage, 0), "Current snapshot");
    EXPECT_EQ(kEnglish.storageTimelinePointDetail(PointKind::lowDiskReminder, 3), "");
    EXPECT_EQ(kEnglish.storageTimelinePointDetail(PointKind::cleanupScanEstimate, 3), "3 candidates · review required");
    EXPECT_EQ(
        kEnglish.storageTimelinePointDetail(PointKind::insightReviewOpportunity, 3), "3 items · review opportunity");
    EXPECT_EQ(kEnglish.storageTimelinePointDetail(PointKind::movedToTrashPending, 3), "3 items · pending recovery");
    EXPECT_EQ(kEnglish.storageTimelinePointDetail(PointKind::recoveredSpace, 3), "3 items · recovered");
    EXPECT_EQ(kEnglish.storageTimelinePointTitle(PointKind::recoveredSpace), "Space recovered record");
}

} // namespace
} // namespace KarvelloUI
