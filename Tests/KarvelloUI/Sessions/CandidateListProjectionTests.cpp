#include "KarvelloUI/Sessions/CandidateListProjection.h"

#include "Tests/KarvelloUI/Sessions/CandidateSamples.h"

#include <gtest/gtest.h>

namespace KarvelloUI {

namespace {

using CleanerCore::AppCacheContext;
using CleanerCore::CleanupCandidate;
using CleanerCore::CleanupCategory;
using CleanerCore::CleanupSafety;
using Mode = CandidateListGroupingMode;
using Sections = std::vector<CandidateListSection>;

/// Short words, each with its field's name, so that a test sees where a word was found.
const CandidateListTextProvider kTexts{
    .categoryName = [](CleanupCategory category) { return "category-" + std::string(Platform::rawValue(category)); },
    .safetyName = [](CleanupSafety safety) { return "Sicherheit-" + std::string(Platform::rawValue(safety)); },
    .reasonText =
        [](CleanerCore::CleanupRecommendationReason reason) {
            return "reason-" + std::string(Platform::rawValue(reason));
        },
    .actionText = [](CleanupCategory category) { return "action-" + std::string(Platform::rawValue(category)); },
    .appCacheContextText =
        [](const std::optional<AppCacheContext>& context) {
            return context ? std::optional("context-" + context->containerIdentifier) : std::nullopt;
        },
};

bool matches(const CleanupCandidate& candidate, std::string_view searchText)
{
    return CandidateListProjection::matchesSearch(candidate, searchText, kTexts);
}

const CleanupCandidate kBrowser = made({"/home/u/.cache/Browser", CleanupCategory::userCaches, CleanupSafety::safe});

/// Safe ones first, then the larger.
const std::vector<CleanupCandidate> kMixed = CleanerCore::ScanReport(kScannedAt,
    {
        made({"/h/a", CleanupCategory::userLogs, CleanupSafety::safe, 50}),
        made({"/h/b", CleanupCategory::userCaches, CleanupSafety::safe, 40}),
        made({"/h/c", CleanupCategory::userLogs, CleanupSafety::caution, 30}),
        made({"/h/d", CleanupCategory::customFolder, CleanupSafety::manualReview, 20}),
        made({"/h/e", CleanupCategory::userCaches, CleanupSafety::manualReview, 10}),
    },
    {})
                                                 .candidates;

Sections sections(const CandidateListFilters& filters)
{
    return CandidateListProjection::sections(kMixed, filters, kTexts);
}

} // namespace

TEST(CandidateListProjection, AnEmptySearchTextOrOneOfBlanksMatchesEverything)
{
    for (const std::string_view text : {"", " ", " \t\n ", "\u3000\u00A0"}) {
        EXPECT_TRUE(matches(kBrowser, text)) << text;
    }
}

TEST(CandidateListProjection, TermsInDifferentFieldsMatch)
{
    EXPECT_TRUE(matches(kBrowser, "browser category-userCaches"));
    EXPECT_TRUE(matches(kBrowser, "  action-  .cache\treason-regenerable "));
    EXPECT_TRUE(matches(kBrowser, "row ome"));
}

TEST(CandidateListProjection, ATermFoundInNoFieldHidesTheCandidate)
{
    EXPECT_FALSE(matches(kBrowser, "browser nowhere"));
    EXPECT_FALSE(matches(kBrowser, "category-userLogs"));
}

TEST(CandidateListProjection, LooksIntoEachField)
{
    auto candidate = CleanupCandidate({.url = Platform::FileURL("/home/u/dir/file"),
        .displayName = "Shown Name",
        .category = CleanupCategory::appContainerCaches,
        .safety = CleanupSafety::caution,
        .appCacheContext = AppCacheContext{.containerIdentifier = "org.example.app"}});
    for (const std::string_view term : {"shown", "name", "/home/u/dir/file", "/home/u/dir", "category-app",
             "sicherheit-caution", "reason-appContainerCache", "action-appContainer", "context-org.example.app"}) {
        EXPECT_TRUE(matches(candidate, term)) << term;
    }
    // Neither across two fields nor in a field of another candidate.
    EXPECT_FALSE(matches(candidate, "fileshown"));
    EXPECT_FALSE(matches(candidate, "sicherheit-safe"));
    candidate.appCacheContext.reset();
    EXPECT_FALSE(matches(candidate, "context-"));
}

TEST(CandidateListProjection, ATermWithoutAccentsFindsTheWordWithThem)
{
    const auto accented = made({"/home/u/Café Münster"});
    EXPECT_TRUE(matches(accented, "cafe"));
    EXPECT_TRUE(matches(accented, "munster"));
    EXPECT_TRUE(matches(accented, "CAFÉ"));
    // In parts, as other systems store names.
    EXPECT_TRUE(matches(made({"/home/u/Cafe\u0301"}), "café"));
    EXPECT_TRUE(matches(made({"/home/u/cafe"}), "café"));
}

TEST(CandidateListProjection, TheSearchIgnoresCase)
{
    EXPECT_TRUE(matches(kBrowser, "BROWSER"));
    EXPECT_TRUE(matches(kBrowser, "bRoWsEr SICHERHEIT-SAFE"));
}

TEST(CandidateListProjection, FindsNamesThatAreNoText)
{
    const auto hostile = made({"/home/u/b\xFF\nd\u202Egnp"});
    EXPECT_TRUE(matches(hostile, "b\xFF"));
    EXPECT_TRUE(matches(hostile, "gnp"));
    EXPECT_FALSE(matches(hostile, "\xFE"));
}

TEST(CandidateListProjection, AFlatListIsOneSectionInTheOrderOfTheReport)
{
    EXPECT_EQ(sections({}), (Sections{{"flat.all", "", {0, 1, 2, 3, 4}}}));
}

TEST(CandidateListProjection, AFlatListWithNoMatchHasNoSection)
{
    EXPECT_EQ(sections({.searchText = "nowhere"}), Sections{});
}

TEST(CandidateListProjection, GroupsByCategoryInTheirOrderWithoutEmptyOnes)
{
    EXPECT_EQ(sections({.groupingMode = Mode::category}),
        (Sections{{"category.userCaches", "category-userCaches", {1, 4}},
            {"category.userLogs", "category-userLogs", {0, 2}},
            {"category.customFolder", "category-customFolder", {3}}}));
}

TEST(CandidateListProjection, GroupsBySafetyInTheirOrderWithoutEmptyOnes)
{
    EXPECT_EQ(sections({.searchText = "sicherheit-safe", .groupingMode = Mode::safety}),
        (Sections{{"safety.safe", "Sicherheit-safe", {0, 1}}}));
    EXPECT_EQ(sections({.groupingMode = Mode::safety}),
        (Sections{{"safety.safe", "Sicherheit-safe", {0, 1}}, {"safety.caution", "Sicherheit-caution", {2}},
            {"safety.manualReview", "Sicherheit-manualReview", {3, 4}}}));
}

TEST(CandidateListProjection, AllFiltersHaveToBePassed)
{
    EXPECT_EQ(sections({.category = CleanupCategory::userLogs}), (Sections{{"flat.all", "", {0, 2}}}));
    EXPECT_EQ(sections({.safety = CleanupSafety::manualReview}), (Sections{{"flat.all", "", {3, 4}}}));
    EXPECT_EQ(sections({.category = CleanupCategory::userLogs, .safety = CleanupSafety::caution}),
        (Sections{{"flat.all", "", {2}}}));
    EXPECT_EQ(sections({.searchText = "/h/e", .category = CleanupCategory::userLogs}), Sections{});
}

TEST(CandidateListProjection, TheCopyOfALanguageGivesItsTexts)
{
    const auto copy = english();
    const auto texts = candidateListTextProvider(copy);
    EXPECT_EQ(texts.categoryName(CleanupCategory::userLogs), copy.categoryName(CleanupCategory::userLogs));
    EXPECT_EQ(texts.safetyName(CleanupSafety::caution), copy.safetyName(CleanupSafety::caution));
    EXPECT_EQ(texts.actionText(CleanupCategory::userLogs), copy.categoryRecommendedAction(CleanupCategory::userLogs));
    const auto reason = CleanerCore::CleanupRecommendationReason::diagnosticLog;
    EXPECT_EQ(texts.reasonText(reason), copy.recommendationReason(reason));
    EXPECT_EQ(texts.appCacheContextText(std::nullopt), std::nullopt);
    const AppCacheContext context{.containerIdentifier = "org.example.app"};
    EXPECT_EQ(texts.appCacheContextText(context), copy.appCacheContextSummary(context));
}

} // namespace KarvelloUI
