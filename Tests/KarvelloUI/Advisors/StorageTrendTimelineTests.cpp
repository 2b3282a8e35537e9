#include "KarvelloUI/Advisors/StorageTrendTimeline.h"

#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "Tests/KarvelloUI/Advisors/AuditEntries.h"
#include "Tests/KarvelloUI/Advisors/ReviewReports.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace KarvelloUI {
namespace {

using CleanerCore::CleaningMode;
using Point = StorageTrendTimeline::Point;
using Action = StorageTrendTimeline::Action;
using PointKind = StorageTrendTimelinePointKind;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<Point> pointsOf(const DiskCapacitySnapshot& disk, const std::vector<std::int64_t>& candidates = {},
    const InsightSizes& insights = {}, const std::vector<CleanupAuditEntry>& entries = {})
{
    return StorageTrendTimeline::of(disk, cleanupReportOf(candidates), insightReportOf(insights), entries).points;
}

std::vector<Point> auditPointsOf(const std::vector<CleanupAuditEntry>& entries)
{
    return pointsOf({}, {}, {}, entries);
}

std::vector<std::string> idsOf(const std::vector<Point>& points)
{
    std::vector<std::string> ids;
    std::ranges::transform(points, std::back_inserter(ids), &Point::id);
    return ids;
}

CleanupAuditEntry deletionOf(int number, double date, std::int64_t requestedBytes, std::int64_t affectedBytes)
{
    return {.id = auditId(number),
        .occurredAt = {date},
        .source = CleanupAuditSource::cleanupDashboard,
        .mode = CleaningMode::deletePermanently,
        .requestedItemCount = 4,
        .requestedBytes = requestedBytes,
        .succeededItemCount = 3,
        .affectedBytes = affectedBytes};
}

const TrashedFile kFile{"/home/ada/.cache/a", 100};
const TrashedFile kOther{"/home/ada/.cache/b", 20};

TEST(StorageTrendTimeline, SaysNothingOfADiskWithATotalOfZero)
{
    EXPECT_THAT(pointsOf({.totalBytes = 0, .freeBytes = 0}), IsEmpty());
    EXPECT_THAT(pointsOf({.totalBytes = 0, .freeBytes = 5}), IsEmpty());
}

TEST(StorageTrendTimeline, TellsWhatIsFreeAndUsed)
{
    EXPECT_THAT(pointsOf({.totalBytes = 100, .freeBytes = 40}),
        ElementsAre(
            Point{.id = "current-storage", .kind = PointKind::currentStorage, .bytes = 40, .secondaryBytes = 60}));
    EXPECT_EQ(pointsOf({.totalBytes = 100, .freeBytes = 140})[0].secondaryBytes, 0);
}

TEST(StorageTrendTimeline, RemindsOfALowDiskFromTwelvePercentDown)
{
    EXPECT_THAT(idsOf(pointsOf({.totalBytes = 100, .freeBytes = 13})), ElementsAre("current-storage"));
    const auto points = pointsOf({.totalBytes = 100, .freeBytes = 12});
    ASSERT_EQ(points.size(), 2U);
    EXPECT_EQ(points[1], (Point{.id = "low-disk-reminder", .kind = PointKind::lowDiskReminder, .bytes = 12}));
}

TEST(StorageTrendTimeline, LeadsFromALowDiskToTheLargestTarget)
{
    const DiskCapacitySnapshot low{.totalBytes = 100, .freeBytes = 1};
    EXPECT_EQ(pointsOf(low, {5})[1].action, Action{MacDashboardSection::cleanup});
    EXPECT_EQ(pointsOf(low, {5}, {.largeFiles = {5}})[1].action, Action{MacDashboardSection::largeFiles});
    EXPECT_EQ(
        pointsOf(low, {5}, {.largeFiles = {5}, .downloads = {6}})[1].action, Action{MacDashboardSection::downloads});
    EXPECT_EQ(pointsOf(low, {}, {.duplicates = {9}})[1].action, std::nullopt);
}

TEST(StorageTrendTimeline, TellsTheEstimateOfTheCleanupScan)
{
    EXPECT_THAT(pointsOf({}, {1, 2}),
        ElementsAre(Point{.id = "cleanup-scan-estimate",
            .kind = PointKind::cleanupScanEstimate,
            .bytes = 3,
            .itemCount = 2,
            .action = Action{MacDashboardSection::cleanup}}));
    EXPECT_THAT(pointsOf({}, {0}), IsEmpty());
}

TEST(StorageTrendTimeline, TellsTheLargestFindOfTheInsightScan)
{
    const auto find = [](const InsightSizes& sizes) { return pointsOf({}, {}, sizes); };
    EXPECT_THAT(find({.largeFiles = {3, 4}, .downloads = {6}, .duplicates = {5}}),
        ElementsAre(Point{.id = "insight-review-largeFiles",
            .kind = PointKind::insightReviewOpportunity,
            .bytes = 7,
            .itemCount = 2,
            .action = Action{MacDashboardSection::largeFiles}}));
    EXPECT_THAT(idsOf(find({.largeFiles = {3}, .downloads = {6}})), ElementsAre("insight-review-downloads"));
    EXPECT_EQ(find({.largeFiles = {3}, .duplicates = {5, 4}})[0],
        (Point{.id = "insight-review-duplicates",
            .kind = PointKind::insightReviewOpportunity,
            .bytes = 9,
            .itemCount = 2,
            .action = Action{MacDashboardSection::duplicates}}));
    EXPECT_THAT(idsOf(find({.largeFiles = {6}, .downloads = {6}, .duplicates = {6}})),
        ElementsAre("insight-review-largeFiles"));
    EXPECT_THAT(find({.largeFiles = {0}}), IsEmpty());
}

TEST(StorageTrendTimeline, CallsAMoveToTheTrashPendingAndNotRecovered)
{
    EXPECT_THAT(auditPointsOf({moveOf(7, 10, {kFile, kOther}, CleanupAuditSource::macInsights)}),
        ElementsAre(Point{.id = "audit-trash-00000000-0000-4000-8000-000000000007",
            .kind = PointKind::movedToTrashPending,
            .bytes = 120,
            .secondaryBytes = 120,
            .occurredAt = Platform::Date{10},
            .source = CleanupAuditSource::macInsights,
            .itemCount = 2}));
}

TEST(StorageTrendTimeline, HasNoPendingPointForAMoveOfWhichAllItemsWentBack)
{
    const std::vector<CleanupAuditEntry> entries{moveOf(1, 10, {kFile, kOther}), restoreOf(2, 20, {kFile, kOther})};
    EXPECT_THAT(auditPointsOf(entries), IsEmpty());
    EXPECT_THAT(auditPointsOf(stored(entries)), IsEmpty());
}

TEST(StorageTrendTimeline, ShowsOfAPartlyRestoredMoveWhatIsLeft)
{
    const auto points = auditPointsOf({moveOf(1, 10, {kFile, kOther}), restoreOf(2, 20, {kFile})});
    ASSERT_EQ(points.size(), 1U);
    EXPECT_EQ(points[0].bytes, 20);
    EXPECT_EQ(points[0].secondaryBytes, 20);
    EXPECT_EQ(points[0].itemCount, 1);
}

TEST(StorageTrendTimeline, ShowsTheNewestThreeOfFourRecords)
{
    EXPECT_THAT(idsOf(auditPointsOf(
                    {moveOf(1, 10, {kFile}), moveOf(2, 40, {kFile}), deletionOf(3, 20, 5, 5), moveOf(4, 30, {kFile})})),
        ElementsAre("audit-trash-00000000-0000-4000-8000-000000000002",
            "audit-trash-00000000-0000-4000-8000-000000000004",
            "audit-recovered-00000000-0000-4000-8000-000000000003"));
}

TEST(StorageTrendTimeline, LetsNoRecordWithoutAPointTakeAPlace)
{
    auto unknown = moveOf(6, 60, {kFile});
    unknown.mode = std::nullopt;
    EXPECT_THAT(auditPointsOf({moveOf(1, 10, {kFile}), moveOf(5, 50, {}), unknown, deletionOf(7, 70, 5, 0)}),
        testing::SizeIs(1));
}

TEST(StorageTrendTimeline, HasNoPointForADeletionThatReclaimedNothing)
{
    EXPECT_THAT(auditPointsOf({deletionOf(1, 10, 100, 0)}), IsEmpty());
    EXPECT_THAT(auditPointsOf({deletionOf(1, 10, 100, -5)}), IsEmpty());
}

TEST(StorageTrendTimeline, TellsWhatADeletionLeftOfTheEstimate)
{
    EXPECT_THAT(auditPointsOf({deletionOf(1, 10, 100, 60)}),
        ElementsAre(Point{.id = "audit-recovered-00000000-0000-4000-8000-000000000001",
            .kind = PointKind::recoveredSpace,
            .bytes = 60,
            .secondaryBytes = 40,
            .occurredAt = Platform::Date{10},
            .source = CleanupAuditSource::cleanupDashboard,
            .itemCount = 3}));
}

TEST(StorageTrendTimeline, LeavesNothingOfAnEstimateThatWasExceeded)
{
    EXPECT_EQ(auditPointsOf({deletionOf(1, 10, 100, 160)})[0].secondaryBytes, 0);
}

TEST(StorageTrendTimeline, OrdersRecordsOfOneDateInOneWay)
{
    std::vector<CleanupAuditEntry> entries{moveOf(1, 10, {kFile}), moveOf(2, 10, {kFile}), moveOf(3, 10, {kOther}),
        moveOf(4, 10, {kFile}, CleanupAuditSource::macInsights)};
    const auto expected = idsOf(auditPointsOf(entries));
    EXPECT_THAT(expected,
        ElementsAre("audit-trash-00000000-0000-4000-8000-000000000002",
            "audit-trash-00000000-0000-4000-8000-000000000001", "audit-trash-00000000-0000-4000-8000-000000000003"));
    const auto byId = [](const auto& left, const auto& right) { return left.id < right.id; };
    do {
        EXPECT_EQ(idsOf(auditPointsOf(entries)), expected);
    } while (std::ranges::next_permutation(entries, byId).found);
}

TEST(StorageTrendTimeline, TellsThePresentBeforeThePast)
{
    EXPECT_THAT(idsOf(pointsOf({.totalBytes = 100, .freeBytes = 1}, {5}, {.downloads = {4}}, {moveOf(1, 10, {kFile})})),
        ElementsAre("current-storage", "low-disk-reminder", "cleanup-scan-estimate", "insight-review-downloads",
            "audit-trash-00000000-0000-4000-8000-000000000001"));
}

std::string bodyOf(const Point& point, AppLanguage language)
{
    return KarvelloCopy{language}.storageTimelinePointBody(point.kind, point.bytes, point.secondaryBytes,
        point.action ? std::optional(point.action->destination) : std::nullopt);
}

TEST(StorageTrendTimeline, HasTextsForItsPointsInEveryLanguage)
{
    auto points = pointsOf({.totalBytes = 100, .freeBytes = 1}, {5}, {.downloads = {4}},
        {moveOf(1, 10, {kFile}), deletionOf(2, 20, 100, 60)});
    points.push_back(pointsOf({.totalBytes = 100, .freeBytes = 1})[1]);
    std::vector<std::string> bodies;
    for (const Point& point : points) {
        bodies.push_back(bodyOf(point, AppLanguage::english));
        for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
            const KarvelloCopy copy{language};
            EXPECT_FALSE(copy.storageTimelinePointTitle(point.kind).empty());
            EXPECT_EQ(copy.storageTimelinePointDetail(point.kind, point.itemCount).empty(),
                point.kind == PointKind::lowDiskReminder);
            if (language != AppLanguage::english) {
                EXPECT_NE(bodyOf(point, language), bodies.back()) << Platform::rawValue(language);
            }
        }
    }
    EXPECT_THAT(bodies,
        ElementsAre("1 bytes free, 99 bytes used. This is the current snapshot.",
            "Free space is low. Open Cleanup Review to review candidates. Nothing runs automatically.",
            "5 bytes is the latest cleanup scan estimate that still needs review. Nothing is moved to Trash before you "
            "choose items.",
            "4 bytes review opportunity in Downloads. It is not added to scan estimates as one recovery total.",
            "60 bytes was recovered by a cleanup record. Remaining estimate is 40 bytes.",
            "100 bytes was moved to Trash. It is pending recovery; free space increases after Trash is emptied.",
            "Free space is low. Open Cleanup Review to review candidates. Nothing runs automatically."));
}

} // namespace
} // namespace KarvelloUI
