#include "KarvelloUI/Copy/KarvelloCopy.h"

#include "Tests/KarvelloUI/Copy/CopyLanguages.h"

#include <gtest/gtest.h>

namespace KarvelloUI {
namespace {

using CleanerCore::CleanupCategory;
using AdvisoryKind = DeveloperCleanupAdvisoryKind;

std::optional<AdvisoryKind> kindFor(CleanupCategory category, std::string_view path)
{
    const auto advisory = kEnglish.developerCleanupAdvisory(category, path);
    return advisory ? std::optional(advisory->kind) : std::nullopt;
}

TEST(DeveloperCopy, HasGuidanceForDevelopersFoldersOnly)
{
    EXPECT_EQ(kindFor(CleanupCategory::xcodeDerivedData, "/a"), AdvisoryKind::xcodeDerivedData);
    EXPECT_EQ(kindFor(CleanupCategory::xcodeDeviceSupport, "/a"), AdvisoryKind::xcodeDeviceSupport);
    EXPECT_EQ(kindFor(CleanupCategory::userCaches, "/a"), std::nullopt);
    EXPECT_EQ(kindFor(CleanupCategory::buildArchives, "/a"), std::nullopt);
}

TEST(DeveloperCopy, TellsTheCacheOfOneDeviceFromThoseOfAll)
{
    constexpr auto kCategory = CleanupCategory::simulatorCaches;
    EXPECT_EQ(kindFor(kCategory, "/Users/a/Library/Developer/CoreSimulator/Caches/x"), AdvisoryKind::simulatorCaches);
    EXPECT_EQ(kindFor(kCategory, "/Users/a/Library/Developer/CoreSimulator/Devices/1/data/Library/Caches/x"),
        AdvisoryKind::simulatorDeviceCaches);
    EXPECT_EQ(kindFor(kCategory, "/Users/a/Library/Developer/CoreSimulator/Devices/1/../2/./data/Library//Caches"),
        AdvisoryKind::simulatorDeviceCaches);
    // The caches have to be those of a device.
    EXPECT_EQ(kindFor(kCategory, "/Users/a/Library/Developer/CoreSimulator/Devices/data/Library/Caches"),
        AdvisoryKind::simulatorCaches);
    EXPECT_EQ(kindFor(kCategory, "/data/Library/Caches/Library/Developer/CoreSimulator/Devices/1"),
        AdvisoryKind::simulatorCaches);
}

TEST(DeveloperCopy, SaysAllThatIsToKnowOfAnArtifact)
{
    const DeveloperCleanupAdvisory advisory = kEnglish.developerCleanupAdvisory(AdvisoryKind::xcodeDerivedData);
    EXPECT_EQ(advisory.title, "Xcode build artifact guidance");
    EXPECT_EQ(
        advisory.summary, "DerivedData stores per-project indexes and intermediate build products created by Xcode.");
    EXPECT_EQ(advisory.regeneration, "Xcode can rebuild these artifacts when the project needs them again.");
    EXPECT_EQ(
        advisory.impact, "The next indexing pass or build may take longer, and active builds may need to restart.");
    EXPECT_EQ(advisory.prerequisite,
        "Stop active Xcode builds and tests, then confirm the project artifacts are disposable.");
    EXPECT_EQ(advisory.action,
        "In Karvello, review scanned items and move them to Trash only when you no longer need the current build "
        "state.");
}

TEST(DeveloperCopy, TellsTheAgeOfAProjectAtRest)
{
    EXPECT_EQ(kEnglish.developerProjectAdvisoryActivity(DeveloperProjectActivityLevel::inactive, 90),
        "Last changed about 90 days ago. Confirm whether the project is still active.");
    EXPECT_EQ(kEnglish.developerProjectAdvisoryActivity(DeveloperProjectActivityLevel::stale, 30),
        "Last changed about 30 days ago. Check whether this project is current work.");
    EXPECT_EQ(kEnglish.developerProjectAdvisoryActivity(DeveloperProjectActivityLevel::recent, 0),
        "Recent activity is visible, so this may be current work.");
    EXPECT_EQ(kEnglish.developerProjectAdvisoryActivity(DeveloperProjectActivityLevel::unknown, 0),
        "No modification-date evidence is available; review conservatively.");
}

TEST(DeveloperCopy, NamesTheArtifactsOfProjects)
{
    using enum DeveloperProjectArtifact;
    EXPECT_EQ(kEnglish.developerProjectAdvisoryArtifactName(dependencyFolder), "Local dependency folder");
    EXPECT_EQ(kEnglish.developerProjectAdvisoryArtifactName(genericTargetFolder), "Conditional target folder");
    EXPECT_EQ(
        kEnglish.developerProjectAdvisoryNote(webFrameworkFolder), kEnglish.developerProjectAdvisoryNote(turboFolder));
    EXPECT_EQ(kEnglish.developerProjectAdvisoryNote(genericBuildFolder),
        "Use this only if the folder is a project build artifact. The app leaves the decision with you.");
}

} // namespace
} // namespace KarvelloUI
