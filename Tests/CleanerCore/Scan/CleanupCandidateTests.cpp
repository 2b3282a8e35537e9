#include "CleanerCore/Scan/CleanupCandidate.h"

#include "Platform/Base/Text.h"

#include <gtest/gtest.h>

namespace CleanerCore {

namespace {

using Platform::FileURL;

CleanupCandidate appCandidate()
{
    return CleanupCandidate({
        .url = FileURL::folder("/home/u/.cache/app"),
        .displayName = "App",
        .category = CleanupCategory::userCaches,
        .sizeBytes = 10,
        .lastModified = Platform::Date{5},
        .resourceIdentity = FileResourceIdentity{.fileSize = 3},
        .isSelectedByDefault = true,
        .safety = CleanupSafety::safe,
        .requiresManualReviewBySource = true,
        .appCacheContext = AppCacheContext{.containerIdentifier = "com.example.app"},
    });
}

} // namespace

TEST(CleanupCandidate, DerivesItsIdFromCategoryAndPath)
{
    const CleanupCandidate candidate({.url = FileURL("/home/u/x/../A b:c/"), .category = CleanupCategory::userLogs});
    EXPECT_EQ(candidate.id, "userLogs:/home/u/A b:c");
    EXPECT_EQ(candidate.url.path(), "/home/u/A b:c");
    EXPECT_NE(CleanupCandidate::makeId(CleanupCategory::userCaches, candidate.url), candidate.id);
}

TEST(CleanupCandidate, HasTheSameIdForAFolderAndAFile)
{
    EXPECT_EQ(CleanupCandidate::makeId(CleanupCategory::userCaches, FileURL("/a")),
        CleanupCandidate::makeId(CleanupCategory::userCaches, FileURL::folder("/a")));
}

TEST(CleanupCandidate, HasAnIdOfItsOwnForAPathThatIsNotUTF8)
{
    const auto id = CleanupCandidate::makeId(CleanupCategory::customFolder, FileURL("/a/caf\xE9"));
    EXPECT_EQ(id, "customFolder:/a/caf//xE9");
    EXPECT_TRUE(Platform::Text::isValidUTF8(id));
    for (const std::string_view other : {"/a/caf//xE9", "/a/caf/xE9", "/a/caf\xE8", "/a/caf\\xE9"}) {
        EXPECT_NE(CleanupCandidate::makeId(CleanupCategory::customFolder, FileURL(other)), id);
    }
}

TEST(CleanupCandidate, IsNamedForItsLastComponent)
{
    EXPECT_EQ(CleanupCandidate({.url = FileURL("/a/b.txt")}).displayName, "b.txt");
    EXPECT_EQ(CleanupCandidate({.url = FileURL("/a/caf\xE9")}).displayName, "caf\xE9");
    EXPECT_EQ(CleanupCandidate({.url = FileURL("/a/b"), .displayName = "Given"}).displayName, "Given");
    EXPECT_EQ(CleanupCandidate({.url = FileURL("/a/b"), .displayName = ""}).displayName, "");
}

TEST(CleanupCandidate, StoresANegativeSizeAsZero)
{
    EXPECT_EQ(CleanupCandidate({.url = FileURL("/a"), .sizeBytes = -5}).sizeBytes, 0);
    EXPECT_EQ(CleanupCandidate({.url = FileURL("/a"), .sizeBytes = 5}).sizeBytes, 5);
}

TEST(CleanupCandidate, KeepsWhatItIsGiven)
{
    const auto candidate = appCandidate();
    EXPECT_EQ(candidate.id, "userCaches:/home/u/.cache/app");
    EXPECT_EQ(candidate.displayName, "App");
    EXPECT_EQ(candidate.lastModified, Platform::Date{5});
    EXPECT_EQ(candidate.resourceIdentity, FileResourceIdentity{.fileSize = 3});
    EXPECT_TRUE(candidate.isSelectedByDefault);
    EXPECT_EQ(candidate.safety, CleanupSafety::safe);
    EXPECT_TRUE(candidate.requiresManualReviewBySource);
    EXPECT_EQ(candidate.appCacheContext, AppCacheContext{.containerIdentifier = "com.example.app"});
    EXPECT_EQ(candidate.recommendationReason(), CleanupRecommendationReason::regenerableUserCache);
}

TEST(CleanupCandidate, ChangesNothingButTheContext)
{
    auto expected = appCandidate();
    EXPECT_EQ(expected.withAppCacheContext(expected.appCacheContext), expected);
    const auto changed = expected.withAppCacheContext(std::nullopt);
    EXPECT_NE(changed, expected);
    expected.appCacheContext.reset();
    EXPECT_EQ(changed, expected);
}

TEST(CleanupCandidate, IsRebuiltByTheRulesOfTheConstructor)
{
    auto candidate = appCandidate();
    candidate.id = "stored";
    candidate.sizeBytes = -1;
    const auto rebuilt = candidate.withAppCacheContext(std::nullopt);
    EXPECT_EQ(rebuilt.id, "userCaches:/home/u/.cache/app");
    EXPECT_EQ(rebuilt.sizeBytes, 0);
}

TEST(CleanupManualReviewPolicy, AsksForAReviewByAnyOfThreeSigns)
{
    using namespace CleanupManualReviewPolicy;
    EXPECT_FALSE(requires_(CleanupCategory::userCaches, CleanupSafety::safe, false));
    EXPECT_FALSE(requires_(CleanupCategory::userCaches, CleanupSafety::caution, false));
    EXPECT_TRUE(requires_(CleanupCategory::userCaches, CleanupSafety::safe, true));
    EXPECT_TRUE(requires_(CleanupCategory::userCaches, CleanupSafety::manualReview, false));
    EXPECT_TRUE(requires_(CleanupCategory::buildArchives, CleanupSafety::safe, false));
}

TEST(CleanupCandidate, RequiresAReviewByItsOwnFields)
{
    const CleanupCandidate::Fields plain{
        .url = FileURL("/a"), .category = CleanupCategory::userCaches, .safety = CleanupSafety::safe};
    EXPECT_FALSE(CleanupCandidate(plain).requiresManualReview());
    auto marked = plain;
    marked.requiresManualReviewBySource = true;
    EXPECT_TRUE(CleanupCandidate(marked).requiresManualReview());
}

} // namespace CleanerCore
