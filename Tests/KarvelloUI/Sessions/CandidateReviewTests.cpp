#include "KarvelloUI/Sessions/CandidateReview.h"

#include "Tests/KarvelloUI/Sessions/CandidateSamples.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace KarvelloUI {

namespace {

using CleanerCore::CleanupCandidate;
using CleanerCore::CleanupCategory;
using CleanerCore::CleanupSafety;
using Filters = CandidateReview::Filters;
using IDs = std::unordered_set<std::string>;

constexpr SampleCandidate kCache{"/h/cache", CleanupCategory::userCaches, CleanupSafety::safe, 100, true};
constexpr SampleCandidate kLog{"/h/log", CleanupCategory::userLogs, CleanupSafety::safe, 50, true};
constexpr SampleCandidate kArchive{"/h/archive", CleanupCategory::buildArchives, CleanupSafety::manualReview, 30};

class CandidateReviewTest : public testing::Test {
protected:
    CandidateReviewTest() { apply({kCache, kLog, kArchive}, Filters::reset); }

    void apply(const std::vector<SampleCandidate>& samples, Filters filters)
    {
        review.apply(indexOf(samples), filters);
    }
    void filter(CandidateListFilters filters) { review.setFilters(std::move(filters)); }
    IDs visible() { return review.visibleCandidateIDs(english()); }

    CandidateReview review;
    CandidateSelection& selection = review.selection();
};

} // namespace

TEST_F(CandidateReviewTest, StartsWithNothingSelected)
{
    EXPECT_EQ(selection.count(), 0);
    EXPECT_EQ(CandidateReview().selection().preview(), CleanerCore::CleanupSelectionPreview());
    EXPECT_FALSE(CandidateReview().selection().areAllSelected());
}

TEST_F(CandidateReviewTest, SelectsWhatTheScanSelectsByDefault)
{
    selection.setSelected(idOf(kArchive), true);
    selection.selectDefaults();
    EXPECT_EQ(selection.ids(), (IDs{idOf(kCache), idOf(kLog)}));
    EXPECT_EQ(selection.count(), 2);
    EXPECT_EQ(selection.bytes(), 150);
    EXPECT_FALSE(selection.containsNonSafe());
}

TEST_F(CandidateReviewTest, AClickChangesTheSums)
{
    EXPECT_TRUE(selection.setSelected(idOf(kArchive), true));
    EXPECT_TRUE(selection.setSelected(idOf(kCache), true));
    EXPECT_TRUE(selection.isSelected(idOf(kArchive)));
    EXPECT_EQ(selection.bytes(), 130);
    EXPECT_TRUE(selection.containsNonSafe());
    EXPECT_EQ(selection.preview(), CleanerCore::CleanupSelectionPreview(selection.candidates()));
    EXPECT_TRUE(selection.setSelected(idOf(kArchive), false));
    EXPECT_FALSE(selection.isSelected(idOf(kArchive)));
    EXPECT_EQ(selection.bytes(), 100);
    EXPECT_FALSE(selection.containsNonSafe());
}

TEST_F(CandidateReviewTest, ChangesNothingForAnUnknownIdOrAStateThatStands)
{
    EXPECT_FALSE(selection.setSelected("userCaches:/h/unknown", true));
    EXPECT_FALSE(selection.isSelected("userCaches:/h/unknown"));
    EXPECT_FALSE(selection.setSelected(idOf(kLog), false));
    EXPECT_TRUE(selection.setSelected(idOf(kLog), true));
    EXPECT_FALSE(selection.setSelected(idOf(kLog), true));
    EXPECT_EQ(selection.count(), 1);
}

TEST_F(CandidateReviewTest, SelectAllAlsoSelectsHiddenCandidates)
{
    filter({.category = CleanupCategory::userLogs});
    selection.selectAll();
    EXPECT_EQ(selection.count(), 3);
    EXPECT_TRUE(selection.areAllSelected());
    selection.clear();
    EXPECT_EQ(selection.count(), 0);
    EXPECT_EQ(selection.ids(), IDs{});
}

TEST_F(CandidateReviewTest, AFilterHidesSelectedRowsAndLeavesThemSelected)
{
    selection.selectAll();
    const auto all = visible();
    EXPECT_EQ(review.hiddenSelectedCandidateCount(&all), 0);
    filter({.category = CleanupCategory::userLogs});
    const auto some = visible();
    EXPECT_EQ(some, IDs{idOf(kLog)});
    EXPECT_EQ(selection.count(), 3);
    EXPECT_EQ(review.hiddenSelectedCandidateCount(&some), 2);
    EXPECT_EQ(review.selectionSnapshot(&some).hiddenSelectedCount, 2);
}

TEST_F(CandidateReviewTest, ASnapshotWithoutVisibleIdsHidesNothing)
{
    selection.selectAll();
    filter({.searchText = "nowhere"});
    const auto snapshot = review.selectionSnapshot();
    EXPECT_EQ(snapshot,
        (CandidateSelectionSnapshot{.ids = {idOf(kCache), idOf(kLog), idOf(kArchive)},
            .count = 3,
            .bytes = 180,
            .containsNonSafe = true,
            .hiddenSelectedCount = 0}));
}

TEST_F(CandidateReviewTest, ThePreviewOfASnapshotLeavesOutWhatHasGone)
{
    selection.selectAll();
    const auto snapshot = review.selectionSnapshot();
    apply({kCache, kLog}, Filters::reconcile);
    selection.clear();
    EXPECT_EQ(review.cleanupPreview(&snapshot).count, 2);
    EXPECT_EQ(review.cleanupPreview(&snapshot).bytes, 150);
    EXPECT_EQ(review.cleanupPreview(nullptr).count, 0);
}

TEST_F(CandidateReviewTest, WhatLeavesTheReportLeavesTheSelection)
{
    selection.selectAll();
    review.apply(
        std::make_shared<const CandidateIndex>(review.index().reportWithout({idOf(kCache)})), Filters::reconcile);
    EXPECT_EQ(selection.ids(), (IDs{idOf(kLog), idOf(kArchive)}));
    EXPECT_EQ(selection.bytes(), 80);
    EXPECT_EQ(review.report().scannedAt, kScannedAt);
    // What comes back comes back unselected.
    apply({kCache, kLog, kArchive}, Filters::reconcile);
    EXPECT_FALSE(selection.isSelected(idOf(kCache)));
    EXPECT_EQ(selection.count(), 2);
}

TEST_F(CandidateReviewTest, WithTheLastCandidateOfItsCategoryGoneTheFilterGoesAndTheSearchTextStays)
{
    filter({.searchText = "h", .category = CleanupCategory::userLogs, .safety = CleanupSafety::safe});
    apply({kCache, kArchive}, Filters::reconcile);
    EXPECT_EQ(review.filters(), (CandidateListFilters{.searchText = "h", .safety = CleanupSafety::safe}));
    apply({kArchive}, Filters::reconcile);
    EXPECT_EQ(review.filters(), CandidateListFilters{.searchText = "h"});
}

TEST_F(CandidateReviewTest, AnEmptyReportResetsAllFiltersTheSearchTextToo)
{
    filter({.searchText = "h", .category = CleanupCategory::userLogs, .safety = CleanupSafety::safe});
    apply({}, Filters::reconcile);
    EXPECT_EQ(review.filters(), CandidateListFilters());
}

TEST_F(CandidateReviewTest, TheGroupingModeSurvivesAScan)
{
    filter({.searchText = "h", .groupingMode = CandidateListGroupingMode::safety});
    apply({kCache}, Filters::reset);
    EXPECT_EQ(review.filters(), CandidateListFilters{.groupingMode = CandidateListGroupingMode::safety});
}

TEST_F(CandidateReviewTest, SumsCategoriesTheLargestFirst)
{
    auto second = kArchive;
    second.path = "/h/archive-2";
    second.sizeBytes = 40;
    apply({kCache, kLog, kArchive, second}, Filters::reset);
    EXPECT_EQ(review.index().categorySummaries(),
        (std::vector<CleanupCategorySummary>{{CleanupCategory::userCaches, 100}, {CleanupCategory::buildArchives, 70},
            {CleanupCategory::userLogs, 50}}));
    EXPECT_TRUE(CandidateReview().index().categorySummaries().empty());
}

TEST_F(CandidateReviewTest, KnowsWhichFiltersCanShowSomething)
{
    EXPECT_EQ(review.index().availableCategories(),
        (std::vector{CleanupCategory::userCaches, CleanupCategory::userLogs, CleanupCategory::buildArchives}));
    EXPECT_EQ(review.index().availableSafetyLevels(), (std::vector{CleanupSafety::safe, CleanupSafety::manualReview}));
}

TEST_F(CandidateReviewTest, FindsTheWordsOfTheLanguageThatIsAsked)
{
    const KarvelloCopy korean{AppLanguage::korean};
    filter({.searchText = korean.safetyName(CleanupSafety::manualReview)});
    EXPECT_EQ(review.visibleCandidateIDs(korean), IDs{idOf(kArchive)});
    EXPECT_EQ(visible(), IDs{});
    EXPECT_EQ(review.visibleCandidateIDs(korean), IDs{idOf(kArchive)});
}

TEST_F(CandidateReviewTest, FindsTheApplicationsOfTheReportOnShow)
{
    const auto ofApplication = [](const std::string& name) {
        return CleanupCandidate({.url = Platform::FileURL("/h/data"),
            .category = CleanupCategory::appContainerCaches,
            .appCacheContext = CleanerCore::AppCacheContext{.containerIdentifier = "com.example." + name}});
    };
    filter({.searchText = "com.example.second"});
    review.apply(indexOf({ofApplication("first")}), Filters::reconcile);
    EXPECT_EQ(visible(), IDs{});
    review.apply(indexOf({ofApplication("second")}), Filters::reconcile);
    EXPECT_EQ(visible().size(), 1U);
}

TEST_F(CandidateReviewTest, SumsBeyondTheRangeEndTheProgram)
{
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    const auto index = indexOf({SampleCandidate{"/h/a", CleanupCategory::userCaches, CleanupSafety::safe, most},
        SampleCandidate{"/h/b", CleanupCategory::userLogs, CleanupSafety::safe, 1}});
    review.apply(index, Filters::reset);
    EXPECT_DEATH(selection.selectAll(), "overflow");
}

TEST_F(CandidateReviewTest, TheSumsAreThoseOfTheSelectionWhateverHappens)
{
    std::mt19937 random(1);
    const auto chance = [&random](unsigned most) { return random() % most; };
    const auto randomReport = [&chance] {
        std::vector<CleanupCandidate> candidates;
        for (int number = 0; number < 40; ++number) {
            if (chance(3) != 0) {
                const auto path = "/h/" + std::to_string(number);
                candidates.push_back(made({path, static_cast<CleanupCategory>(number % 13),
                    static_cast<CleanupSafety>(number % 3), number * 7, number % 2 == 0}));
            }
        }
        return indexOf(std::move(candidates));
    };
    for (int step = 0; step < 2000; ++step) {
        const auto before = selection.ids();
        switch (chance(20)) {
        case 0:
            selection.selectAll();
            break;
        case 1:
            selection.clear();
            break;
        case 2:
            selection.selectDefaults();
            break;
        case 3:
            review.apply(randomReport(), Filters::reconcile);
            for (const auto& id : selection.ids()) {
                EXPECT_TRUE(before.contains(id));
            }
            break;
        default:
            if (const auto size = static_cast<unsigned>(review.index().size())) {
                selection.setSelected(review.index().candidates()[chance(size)].id, chance(2) == 0);
            }
        }
        ASSERT_EQ(selection.preview(), CleanerCore::CleanupSelectionPreview(selection.candidates()));
        for (const auto& id : selection.ids()) {
            ASSERT_NE(review.index().candidate(id), nullptr);
        }
    }
}

} // namespace KarvelloUI
