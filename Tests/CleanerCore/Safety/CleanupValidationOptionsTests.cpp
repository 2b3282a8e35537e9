#include "CleanerCore/Safety/CleanupValidationOptions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using CleanerCore::CleanupValidationOptions;
using Platform::FileURL;
using testing::ElementsAre;
using testing::IsEmpty;

using Paths = std::set<std::string, std::less<>>;

const FileURL kRoot = FileURL::folder("/u/.cache/tool");

CleanupValidationOptions options(bool includesHiddenFiles, bool includesPackageDescendants)
{
    return {.includesHiddenFiles = includesHiddenFiles,
        .includesPackageDescendants = includesPackageDescendants,
        .maximumDescendantItems = 10};
}

TEST(CleanupValidationOptions, KnowsTheNinePackageExtensionsInLowerCase)
{
    EXPECT_THAT(CleanupValidationOptions::packageExtensions,
        ElementsAre(
            "app", "appex", "bundle", "framework", "kext", "plugin", "photoslibrary", "musiclibrary", "tvlibrary"));
}

TEST(CleanupValidationOptions, IncludesAPackageButNotItsContentsWhenPackageDescendantsAreLeftOut)
{
    Paths excluded;
    const auto rules = options(true, false);
    EXPECT_TRUE(rules.includesInFreshness(kRoot.appending("X.app"), kRoot, true, excluded));
    EXPECT_THAT(excluded, ElementsAre("/u/.cache/tool/X.app"));
    EXPECT_FALSE(rules.includesInFreshness(kRoot.appending("X.app/Contents"), kRoot, false, excluded));
    EXPECT_FALSE(rules.includesInFreshness(kRoot.appending("X.app/Contents/file"), kRoot, false, excluded));
    EXPECT_TRUE(rules.includesInFreshness(kRoot.appending("X.apple"), kRoot, false, excluded));
    EXPECT_TRUE(rules.includesInFreshness(kRoot.appending("X.ap"), kRoot, false, excluded));
}

TEST(CleanupValidationOptions, IncludesAPackageAndItsContentsWhenPackageDescendantsCount)
{
    Paths excluded;
    const auto rules = options(true, true);
    EXPECT_TRUE(rules.includesInFreshness(kRoot.appending("X.app"), kRoot, true, excluded));
    EXPECT_TRUE(rules.includesInFreshness(kRoot.appending("X.app/Contents/file"), kRoot, false, excluded));
    EXPECT_THAT(excluded, IsEmpty());
}

TEST(CleanupValidationOptions, IncludesTheContentsOfAFolderThatIsNoPackage)
{
    Paths excluded;
    const auto rules = options(true, false);
    EXPECT_TRUE(rules.includesInFreshness(kRoot.appending("folder"), kRoot, false, excluded));
    EXPECT_THAT(excluded, IsEmpty());
    EXPECT_TRUE(rules.includesInFreshness(kRoot.appending("folder/file"), kRoot, false, excluded));
}

TEST(CleanupValidationOptions, LeavesOutWhatLiesInAnExcludedPackageEvenWhenPackageDescendantsCount)
{
    Paths excluded{"/u/.cache/tool/X.app"};
    EXPECT_FALSE(options(true, true).includesInFreshness(kRoot.appending("X.app/file"), kRoot, false, excluded));
}

TEST(CleanupValidationOptions, RemembersAPackageInsideAPackage)
{
    Paths excluded{"/u/.cache/tool/X.app"};
    EXPECT_FALSE(options(true, false).includesInFreshness(kRoot.appending("X.app/Y.bundle"), kRoot, true, excluded));
    EXPECT_THAT(excluded, ElementsAre("/u/.cache/tool/X.app", "/u/.cache/tool/X.app/Y.bundle"));
}

TEST(CleanupValidationOptions, TakesTheRootFolderForNoPackage)
{
    Paths excluded{"/"};
    EXPECT_TRUE(options(true, false).includesInFreshness(kRoot.appending("file"), kRoot, false, excluded));
}

TEST(CleanupValidationOptions, LeavesOutWhatLiesInAHiddenFolderBelowTheRoot)
{
    Paths excluded;
    const auto rules = options(false, true);
    EXPECT_FALSE(rules.includesInFreshness(kRoot.appending(".hidden"), kRoot, false, excluded));
    EXPECT_FALSE(rules.includesInFreshness(kRoot.appending("a/.hidden/b/file"), kRoot, false, excluded));
    EXPECT_TRUE(options(true, true).includesInFreshness(kRoot.appending("a/.hidden/b/file"), kRoot, false, excluded));
}

TEST(CleanupValidationOptions, DoesNotCountAHiddenComponentOfTheRootItself)
{
    Paths excluded;
    EXPECT_TRUE(options(false, true).includesInFreshness(kRoot.appending("a/b.c/file."), kRoot, false, excluded));
}

TEST(CleanupValidationOptions, CountsEveryHiddenComponentOfAPathOutsideTheRoot)
{
    Paths excluded;
    const auto rules = options(false, true);
    EXPECT_FALSE(rules.includesInFreshness(FileURL("/u/.cache/other/file"), kRoot, false, excluded));
    EXPECT_FALSE(rules.includesInFreshness(FileURL("/u/.cache/file"), FileURL(), false, excluded));
    EXPECT_TRUE(rules.includesInFreshness(FileURL("/u/cache/file"), FileURL(), false, excluded));
}

TEST(CleanupValidationOptions, RemembersAHiddenPackageThatItLeavesOut)
{
    Paths excluded;
    EXPECT_FALSE(options(false, false).includesInFreshness(kRoot.appending(".X.app"), kRoot, true, excluded));
    EXPECT_THAT(excluded, ElementsAre("/u/.cache/tool/.X.app"));
}

} // namespace
