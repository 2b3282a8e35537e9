#include "KarvelloUI/Advisors/SmartCleanupCoach.h"

#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "Tests/KarvelloUI/Advisors/ReviewReports.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace KarvelloUI {
namespace {

using RecommendationKind = StorageRecommendationKind;

/// What the coach is told, with access to the home folder and half of the disk free where nothing else is said.
struct Situation {
    std::vector<std::int64_t> candidates = {};
    InsightSizes insights = {};
    DiskCapacitySnapshot disk = {.totalBytes = 1000 * kGiB, .freeBytes = 500 * kGiB};
    int blockedInCleanup = 0;
    int blockedInInsights = 0;
    MacAccessPolicy access = {.isHomeBookmarkStored = true};

    [[nodiscard]] std::vector<StorageRecommendation> recommendations(AppLanguage language = AppLanguage::english) const
    {
        auto cleanupReport = cleanupReportOf(candidates);
        cleanupReport.skippedItems = blockedItems(blockedInCleanup);
        auto insightReport = insightReportOf(insights);
        insightReport.skippedItems = blockedItems(blockedInInsights);
        return SmartCleanupCoach::recommendations(cleanupReport, insightReport, disk, access, language);
    }
};

constexpr DiskCapacitySnapshot kLowDisk{.totalBytes = 100 * kGiB, .freeBytes = 12 * kGiB};
constexpr MacAccessPolicy kNoAccess{};

/// Kinds and priorities, the best first.
using Ranks = std::vector<std::pair<RecommendationKind, int>>;

Ranks ranksIn(const Situation& situation)
{
    Ranks ranks;
    for (const auto& recommendation : situation.recommendations()) {
        ranks.emplace_back(recommendation.kind, recommendation.priority);
    }
    return ranks;
}

StorageRecommendation onlyOne(const Situation& situation, AppLanguage language = AppLanguage::english)
{
    const auto recommendations = situation.recommendations(language);
    EXPECT_EQ(recommendations.size(), 1U);
    return recommendations.empty() ? StorageRecommendation{} : recommendations.front();
}

TEST(SmartCleanupCoach, SpeaksOfALowDiskAtExactlyTwelvePercentIfThereIsSomethingToReview)
{
    EXPECT_EQ(ranksIn({.candidates = {1}, .disk = {.totalBytes = 100, .freeBytes = 12}}),
        (Ranks{{RecommendationKind::lowDiskReview, 900}, {RecommendationKind::cleanupReview, 830}}));
    EXPECT_EQ(ranksIn({.candidates = {1}, .disk = {.totalBytes = 100, .freeBytes = 13}}),
        (Ranks{{RecommendationKind::cleanupReview, 830}}));
    EXPECT_EQ(ranksIn({.disk = {.totalBytes = 100, .freeBytes = 12}}), (Ranks{{RecommendationKind::scanPrimer, 500}}));
    EXPECT_EQ(ranksIn({.candidates = {0}, .disk = {.totalBytes = 100, .freeBytes = 12}}),
        (Ranks{{RecommendationKind::scanPrimer, 500}}));
}

TEST(SmartCleanupCoach, SaysNothingOfADiskWithoutAReading)
{
    EXPECT_EQ(ranksIn({.candidates = {1}, .disk = {}}), (Ranks{{RecommendationKind::cleanupReview, 830}}));
}

TEST(SmartCleanupCoach, RaisesDuplicatesFrom512MiB)
{
    EXPECT_EQ(ranksIn({.insights = {.duplicates = {511 * kMiB}}}), (Ranks{{RecommendationKind::scanPrimer, 500}}));
    EXPECT_EQ(ranksIn({.insights = {.duplicates = {512 * kMiB - 1}}}), (Ranks{{RecommendationKind::scanPrimer, 500}}));
    EXPECT_EQ(ranksIn({.insights = {.duplicates = {512 * kMiB}}}), (Ranks{{RecommendationKind::duplicateReview, 930}}));
}

TEST(SmartCleanupCoach, CountsWholeGibibytesUpToTwenty)
{
    const std::vector<std::pair<std::int64_t, int>> priorities{{kGiB - 1, 930}, {kGiB, 931},
        {20 * kGiB - kGiB / 10, 949}, {20 * kGiB - 1, 949}, {20 * kGiB, 950}, {500 * kGiB, 950}};
    for (const auto& [bytes, priority] : priorities) {
        EXPECT_EQ(
            ranksIn({.insights = {.duplicates = {bytes}}}), (Ranks{{RecommendationKind::duplicateReview, priority}}))
            << bytes;
    }
}

TEST(SmartCleanupCoach, CountsBlockedItemsUpToTwenty)
{
    for (const auto& [blocked, priority] : {std::pair{1, 881}, {19, 899}, {20, 900}, {25, 900}}) {
        EXPECT_EQ(ranksIn({.blockedInCleanup = blocked}), (Ranks{{RecommendationKind::permissionGuide, priority}}))
            << blocked;
    }
}

TEST(SmartCleanupCoach, CountsWhatEitherScanWasBlockedFrom)
{
    const auto guide = onlyOne({.blockedInCleanup = 2, .blockedInInsights = 3});
    EXPECT_EQ(guide.priority, 885);
    EXPECT_EQ(guide.detail, "5 skipped");
}

TEST(SmartCleanupCoach, SuggestsAScanAloneWithoutAnyFindingButWithAccess)
{
    const auto primer = onlyOne({});
    EXPECT_EQ(primer,
        (StorageRecommendation{.kind = RecommendationKind::scanPrimer,
            .title = "Scan to unlock recommendations",
            .body = "Run cleanup or insight scans to prioritize the safest review screens.",
            .detail = "Review-first · Trash-first",
            .actionTitle = "Open Cleanup Review",
            .systemImage = "sparkles",
            .priority = 500,
            .action = {MacDashboardSection::cleanup}}));
    EXPECT_EQ(
        ranksIn({.access = {.supportsDirectDistributionScans = true}}), (Ranks{{RecommendationKind::scanPrimer, 500}}));
}

TEST(SmartCleanupCoach, AsksForAccessAndNotForAScanWithoutReportsAndWithoutAccess)
{
    const Situation situation{.disk = {}, .access = kNoAccess};
    EXPECT_EQ(onlyOne(situation),
        (StorageRecommendation{.kind = RecommendationKind::permissionGuide,
            .title = "Review access-limited paths",
            .body = "Home folder access is needed for complete scan results. Review access status in Settings.",
            .detail = "Access check needed",
            .actionTitle = "Open Settings",
            .systemImage = "lock.fill",
            .priority = 880,
            .action = {MacDashboardSection::settings}}));
    EXPECT_EQ(ranksIn({.access = {.isBusy = true}}), (Ranks{{RecommendationKind::permissionGuide, 880}}));
}

TEST(SmartCleanupCoach, RaisesLargeFilesAndDownloadsFrom256MiBAndCleanupFromOneByte)
{
    EXPECT_EQ(ranksIn({.insights = {.largeFiles = {256 * kMiB - 1}}}), (Ranks{{RecommendationKind::scanPrimer, 500}}));
    EXPECT_EQ(ranksIn({.insights = {.largeFiles = {128 * kMiB, 128 * kMiB}}}),
        (Ranks{{RecommendationKind::largeFileReview, 780}}));
    EXPECT_EQ(ranksIn({.insights = {.downloads = {256 * kMiB - 1}}}), (Ranks{{RecommendationKind::scanPrimer, 500}}));
    EXPECT_EQ(ranksIn({.insights = {.downloads = {256 * kMiB}}}), (Ranks{{RecommendationKind::downloadsReview, 740}}));
    EXPECT_EQ(ranksIn({.candidates = {0}}), (Ranks{{RecommendationKind::scanPrimer, 500}}));
    EXPECT_EQ(ranksIn({.candidates = {1}}), (Ranks{{RecommendationKind::cleanupReview, 830}}));
}

TEST(SmartCleanupCoach, EndsEachBandAtTwentyGibibytes)
{
    EXPECT_EQ(ranksIn({.candidates = {20 * kGiB - 1}}), (Ranks{{RecommendationKind::cleanupReview, 849}}));
    EXPECT_EQ(ranksIn({.candidates = {900 * kGiB}}), (Ranks{{RecommendationKind::cleanupReview, 850}}));
    EXPECT_EQ(ranksIn({.insights = {.largeFiles = {900 * kGiB}}}), (Ranks{{RecommendationKind::largeFileReview, 800}}));
    EXPECT_EQ(ranksIn({.insights = {.downloads = {900 * kGiB}}}), (Ranks{{RecommendationKind::downloadsReview, 760}}));
    EXPECT_EQ(ranksIn({.candidates = {900 * kGiB}, .disk = kLowDisk}).front(),
        std::pair(RecommendationKind::lowDiskReview, 920));
}

TEST(SmartCleanupCoach, GivesTheBestThreeOfSix)
{
    const Situation situation{.candidates = {kGiB},
        .insights = {.largeFiles = {2 * kGiB}, .downloads = {kGiB}, .duplicates = {kGiB}},
        .disk = kLowDisk,
        .blockedInCleanup = 1};
    EXPECT_EQ(ranksIn(situation),
        (Ranks{{RecommendationKind::duplicateReview, 931}, {RecommendationKind::lowDiskReview, 902},
            {RecommendationKind::permissionGuide, 881}}));
}

TEST(SmartCleanupCoach, PutsTwoGibibytesOfDuplicatesBeforeALowDiskWithThree)
{
    EXPECT_EQ(ranksIn({.candidates = {3 * kGiB}, .insights = {.duplicates = {2 * kGiB}}, .disk = kLowDisk}),
        (Ranks{{RecommendationKind::duplicateReview, 932}, {RecommendationKind::lowDiskReview, 903},
            {RecommendationKind::cleanupReview, 833}}));
}

TEST(SmartCleanupCoach, OrdersWhereTwoBandsTouchByTheNameOfTheKind)
{
    EXPECT_EQ(ranksIn({.candidates = {1}, .disk = kLowDisk, .blockedInCleanup = 20}),
        (Ranks{{RecommendationKind::lowDiskReview, 900}, {RecommendationKind::permissionGuide, 900},
            {RecommendationKind::cleanupReview, 830}}));
}

TEST(SmartCleanupCoach, LeadsFromALowDiskToWhatHoldsMost)
{
    using enum MacDashboardSection;
    struct Row {
        std::int64_t largeFiles, downloads, candidates;
        MacDashboardSection section;
    };
    for (const Row& row :
        {Row{3, 2, 1, largeFiles}, Row{2, 3, 1, downloads}, Row{1, 2, 3, cleanup}, Row{2, 2, 1, largeFiles},
            Row{2, 1, 2, largeFiles}, Row{1, 2, 2, downloads}, Row{2, 2, 2, largeFiles}, Row{0, 0, 1, cleanup}}) {
        const auto first = Situation{.candidates = {row.candidates},
            .insights = {.largeFiles = {row.largeFiles}, .downloads = {row.downloads}},
            .disk = kLowDisk}
                               .recommendations()[0];
        EXPECT_EQ(first.kind, RecommendationKind::lowDiskReview);
        EXPECT_EQ(first.action.destination, row.section) << row.largeFiles << row.downloads << row.candidates;
        EXPECT_EQ(first.detail,
            KarvelloCopy{AppLanguage::english}.smartCleanupSizeDetail(
                std::max({row.largeFiles, row.downloads, row.candidates})));
    }
}

TEST(SmartCleanupCoach, WritesEachKind)
{
    const Situation everything{.candidates = {kGiB, 2 * kGiB},
        .insights = {.largeFiles = {kGiB, kGiB, 2 * kGiB}, .downloads = {kGiB}, .duplicates = {kGiB, 2 * kGiB}},
        .disk = kLowDisk};
    EXPECT_THAT(everything.recommendations(),
        testing::ElementsAre(StorageRecommendation{RecommendationKind::duplicateReview, "Review duplicate candidates",
                                 "Found 2 hash-matched groups. Confirm the keeper before selecting extras.", "3 GB",
                                 "Open Duplicates", "doc.on.doc.fill", 933, {MacDashboardSection::duplicates}},
            StorageRecommendation{RecommendationKind::lowDiskReview, "Free space is running low",
                "Free space is 12 GB. Start by reviewing larger candidates in Large Files.", "4 GB", "Open Large Files",
                "internaldrive.fill", 904, {MacDashboardSection::largeFiles}},
            StorageRecommendation{RecommendationKind::cleanupReview, "Review cleanup candidates",
                "2 candidates are ready. Review paths and safety before moving selected items to Trash.", "3 GB",
                "Open Cleanup Review", "checklist.checked", 833, {MacDashboardSection::cleanup}}));
    EXPECT_EQ(onlyOne({.insights = {.largeFiles = {kGiB, kGiB, 2 * kGiB}}}),
        (StorageRecommendation{RecommendationKind::largeFileReview, "Review large files first",
            "3 large files by size. Review what you recognize; nothing is removed automatically.", "4 GB",
            "Open Large Files", "internaldrive", 784, {MacDashboardSection::largeFiles}}));
    EXPECT_EQ(onlyOne({.insights = {.downloads = {kGiB, kGiB}}}),
        (StorageRecommendation{RecommendationKind::downloadsReview, "Downloads review queue",
            "Review 2 Downloads candidates by size.", "2 GB", "Open Downloads", "arrow.down.circle.fill", 742,
            {MacDashboardSection::downloads}}));
    EXPECT_EQ(onlyOne({.blockedInCleanup = 4}).body,
        "4 items were skipped because of permissions or security scope. Review access status in Settings.");
}

/// A situation for each kind in which that kind stands first.
std::vector<Situation> oneOfEachKind()
{
    return {{.candidates = {kGiB}, .disk = kLowDisk}, {.insights = {.duplicates = {kGiB}}}, {.blockedInCleanup = 3},
        {.access = kNoAccess}, {.candidates = {kGiB}}, {.insights = {.largeFiles = {kGiB}}},
        {.insights = {.downloads = {kGiB}}}, {}};
}

TEST(SmartCleanupCoach, SpeaksEveryLanguageWithTheSameOrder)
{
    for (const Situation& situation : oneOfEachKind()) {
        const auto english = situation.recommendations().front();
        for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
            const auto spoken = situation.recommendations(language).front();
            EXPECT_EQ(spoken.kind, english.kind);
            EXPECT_EQ(spoken.priority, english.priority);
            EXPECT_EQ(spoken.action, english.action);
            EXPECT_EQ(spoken.systemImage, english.systemImage);
            const KarvelloCopy copy{language};
            EXPECT_EQ(spoken.title, copy.smartCleanupTitle(spoken.kind));
            EXPECT_EQ(spoken.actionTitle,
                copy.smartCleanupOpenSectionCTA(copy.macDashboardSectionTitle(spoken.action.destination)));
            if (language != AppLanguage::english) {
                EXPECT_NE(spoken.title, english.title) << Platform::rawValue(language);
                EXPECT_NE(spoken.body, english.body) << Platform::rawValue(language);
            }
        }
    }
}

TEST(SmartCleanupCoach, SpeaksKoreanAndGermanThroughout)
{
    const Situation situation{.candidates = {kGiB + kGiB / 2}};
    const auto korean = onlyOne(situation, AppLanguage::korean);
    EXPECT_EQ(korean.title, "정리 후보 검토");
    EXPECT_EQ(korean.actionTitle, "정리 검토 열기");
    EXPECT_EQ(korean.detail, "1.5GB");
    const auto german = onlyOne(situation, AppLanguage::german);
    EXPECT_EQ(german.detail, "1.5 GB");
    EXPECT_EQ(german.body,
        "Kandidaten bereit: 1. Prüfen Sie Pfade und Sicherheit, bevor Sie ausgewählte Objekte in den Papierkorb "
        "legen.");
}

TEST(SmartCleanupCoachDeathTest, EndsOnSumsBeyondTheRange)
{
    const Situation situation{.insights = {.largeFiles = {std::numeric_limits<std::int64_t>::max(), 1}}};
    EXPECT_DEATH(std::ignore = situation.recommendations(), "overflow");
}

} // namespace
} // namespace KarvelloUI
