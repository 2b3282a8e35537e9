#include "KarvelloUI/Stores/CleanupReviewProfile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace KarvelloUI {
namespace {

using CleanerCore::CleanupCategory;
using CleanerCore::CleanupScanMode;
using testing::ElementsAre;
using ID = CleanupReviewProfileID;
using Scope = CleanupReviewProfileScope;

TEST(CleanupReviewProfile, IsBuiltInForEachID)
{
    EXPECT_THAT(CleanupReviewProfile::builtIn(),
        ElementsAre(
            CleanupReviewProfile{.id = ID::balanced,
                .scope = Scope::standardSafeRoots,
                .scanMode = CleanupScanMode::standard,
                .categories = {CleanupCategory::userCaches, CleanupCategory::userLogs, CleanupCategory::temporaryFiles},
                .includesCustomFolders = false,
                .respectsIgnoreAndSnoozeRules = true},
            CleanupReviewProfile{.id = ID::downloads,
                .scope = Scope::downloadsInsights,
                .scanMode = CleanupScanMode::standard,
                .categories = {CleanupCategory::temporaryFiles},
                .includesCustomFolders = false,
                .respectsIgnoreAndSnoozeRules = true},
            CleanupReviewProfile{.id = ID::developerCaches,
                .scope = Scope::developerCacheReview,
                .scanMode = CleanupScanMode::aggressive,
                .categories = {CleanupCategory::xcodeDerivedData, CleanupCategory::simulatorCaches,
                    CleanupCategory::xcodeDeviceSupport},
                .includesCustomFolders = false,
                .respectsIgnoreAndSnoozeRules = true}));
}

TEST(CleanupReviewProfile, IsFoundByItsID)
{
    for (const ID id : Platform::allCases<ID>()) {
        EXPECT_EQ(CleanupReviewProfile::profile(id).id, id);
    }
}

TEST(CleanupReviewProfile, IsTheFirstOneForAnIDThatNobodyKnows)
{
    EXPECT_EQ(CleanupReviewProfile::profile(static_cast<ID>(99)).id, ID::balanced);
}

TEST(CleanupReviewProfile, StandsInJSONWithTheNamesOfItsFields)
{
    const auto& profile = CleanupReviewProfile::profile(ID::downloads);
    const auto json = Platform::encodeJSON(profile).value();
    EXPECT_EQ(json, R"({
  "categories" : [
    "temporaryFiles"
  ],
  "id" : "downloads",
  "includesCustomFolders" : false,
  "respectsIgnoreAndSnoozeRules" : true,
  "scanMode" : "standard",
  "scope" : "downloadsInsights"
})");
    EXPECT_EQ(Platform::decodeJSON<CleanupReviewProfile>(json), profile);
}

} // namespace
} // namespace KarvelloUI
