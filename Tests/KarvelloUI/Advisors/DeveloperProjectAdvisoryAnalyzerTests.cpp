#include "KarvelloUI/Advisors/DeveloperProjectAdvisoryAnalyzer.h"

#include "Tests/Support/Days.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

namespace KarvelloUI {
namespace {

using namespace DeveloperProjectAdvisoryAnalyzer;
using CleanerCore::CleanupCandidate;
using CleanerCore::CleanupCategory;
using Platform::Date;
using Platform::FileURL;
using testing::ElementsAre;
using testing::IsEmpty;
using TestSupport::kDay;
using Artifact = DeveloperProjectArtifact;
using Level = DeveloperProjectActivityLevel;

constexpr Date kNow{800'000'000};

CleanupCandidate candidate(std::string_view path, std::int64_t sizeBytes = 1, std::optional<double> age = {},
    CleanupCategory category = CleanupCategory::customFolder)
{
    return CleanupCandidate({.url = FileURL::folder(path),
        .category = category,
        .sizeBytes = sizeBytes,
        .lastModified = age ? std::optional(kNow.addingSeconds(-*age)) : std::nullopt});
}

std::optional<Artifact> artifactAt(std::string_view path)
{
    const auto found = opportunity(candidate(path), kNow);
    return found ? std::optional(found->artifact) : std::nullopt;
}

std::optional<std::int64_t> ageInDays(double seconds)
{
    return opportunity(candidate("/p/build", 1, seconds), kNow).value().ageInDays;
}

std::vector<std::string> pathsOf(std::span<const DeveloperProjectAdvisoryOpportunity> opportunities)
{
    std::vector<std::string> paths;
    for (const auto& of : opportunities) {
        paths.push_back(of.candidatePath);
    }
    return paths;
}

TEST(DeveloperProjectAdvisoryAnalyzer, KnowsEachArtifactByTheNameOfItsFolder)
{
    const std::vector<std::pair<std::string, Artifact>> names{{"node_modules", Artifact::dependencyFolder},
        {".build", Artifact::swiftBuildFolder}, {".dart_tool", Artifact::toolMetadataFolder},
        {"pods", Artifact::podsFolder}, {".next", Artifact::webFrameworkFolder}, {".turbo", Artifact::turboFolder},
        {"build", Artifact::genericBuildFolder}, {"dist", Artifact::genericDistributionFolder},
        {"target", Artifact::genericTargetFolder}};
    EXPECT_EQ(names.size(), Platform::allCases<Artifact>().size());
    for (const auto& [name, artifact] : names) {
        EXPECT_EQ(artifactAt("/home/a/p/" + name), artifact) << name;
    }
}

TEST(DeveloperProjectAdvisoryAnalyzer, LooksPastTheCaseOfAName)
{
    EXPECT_EQ(artifactAt("/home/a/p/Pods"), Artifact::podsFolder);
    EXPECT_EQ(artifactAt("/home/a/p/Node_Modules"), Artifact::dependencyFolder);
}

TEST(DeveloperProjectAdvisoryAnalyzer, TakesWholeNamesOnly)
{
    for (const char* const name : {"dist2", "mydist", ".dist", "dis", "buıld", "bu\xFFild", "dist\n", "build/x"}) {
        EXPECT_EQ(artifactAt("/home/a/p/" + std::string(name)), std::nullopt) << name;
    }
    EXPECT_EQ(artifactAt("/"), std::nullopt);
}

TEST(DeveloperProjectAdvisoryAnalyzer, LooksAtFoldersOfTheUserOnly)
{
    for (const auto category : Platform::allCases<CleanupCategory>()) {
        EXPECT_EQ(opportunity(candidate("/home/a/p/node_modules", 1, kDay, category), kNow).has_value(),
            category == CleanupCategory::customFolder)
            << Platform::rawValue(category);
    }
}

TEST(DeveloperProjectAdvisoryAnalyzer, TellsAllOfAnOpportunity)
{
    const auto of = candidate("/home/a/./p\xFF/x/../Build/", 4096, 45.5 * kDay);
    const DeveloperProjectAdvisoryOpportunity expected{.id = of.id,
        .artifact = Artifact::genericBuildFolder,
        .activityLevel = Level::stale,
        .projectPath = "/home/a/p\xFF",
        .candidatePath = "/home/a/p\xFF/Build",
        .displayName = "Build",
        .sizeBytes = 4096,
        .lastModified = of.lastModified,
        .ageInDays = 45};
    EXPECT_EQ(opportunity(of, kNow), expected);
}

TEST(DeveloperProjectAdvisoryAnalyzer, ExcludesModulesInsideTheGlobalOnes)
{
    EXPECT_EQ(artifactAt("/usr/local/lib/node_modules/npm/node_modules"), std::nullopt);
    EXPECT_EQ(artifactAt("/usr/local/lib/node_modules"), std::nullopt);
}

TEST(DeveloperProjectAdvisoryAnalyzer, ExcludesEverythingUnderCargo)
{
    EXPECT_EQ(artifactAt("/home/a/.cargo/registry/src/x/target"), std::nullopt);
    EXPECT_EQ(artifactAt("/home/a/p/target"), Artifact::genericTargetFolder);
}

TEST(DeveloperProjectAdvisoryAnalyzer, ComparesWholeComponentsWithTheExcludedPlaces)
{
    EXPECT_FALSE(isExcludedPath("/Users/a/cachework/.cache-tools/build"));
    EXPECT_EQ(artifactAt("/Users/a/cachework/.cache-tools/build"), Artifact::genericBuildFolder);
    EXPECT_FALSE(isExcludedPath("/Users/a/x.cargo/build"));
    EXPECT_FALSE(isExcludedPath("/Users/a/.CARGO/build"));
    EXPECT_FALSE(isExcludedPath(""));
    EXPECT_FALSE(isExcludedPath("/"));
}

TEST(DeveloperProjectAdvisoryAnalyzer, ExcludesThePlacesThatToolsShare)
{
    for (const std::string place :
        {"Library/Developer", "Library/Developer/CoreSimulator", "Library/Developer/Xcode/iOS DeviceSupport",
            "Library/Caches", "Library/Application Support", ".npm", ".gradle/caches", ".pub-cache", ".cache",
            ".local/share", ".config", ".yarn", ".pnpm-store", "Library/pnpm", ".cargo", ".m2", ".nuget", "go/pkg/mod",
            ".cocoapods", ".bun", "usr/local/lib/node_modules", "opt/homebrew/lib/node_modules", ".docker",
            "Library/Containers", "Library/Group Containers", "var/lib/docker", ".var/app"}) {
        EXPECT_TRUE(isExcludedPath("/" + place)) << place;
        EXPECT_TRUE(isExcludedPath(place + "/p")) << place;
        EXPECT_TRUE(isExcludedPath("/home/a//" + place + "/p/build")) << place;
        EXPECT_FALSE(isExcludedPath("/home/a/x" + place + "/p/build")) << place;
    }
    for (const char* const place : {"/.gradle", "/.local", "/go/pkg", "/Library", "/usr/local/lib", "/.var"}) {
        EXPECT_FALSE(isExcludedPath(std::string("/home/a") + place + "/x/build")) << place;
    }
}

TEST(DeveloperProjectAdvisoryAnalyzer, TakesABackslashForASlash)
{
    EXPECT_TRUE(isExcludedPath(R"(C:\Users\a\.gradle\caches\x)"));
    EXPECT_TRUE(isExcludedPath(R"(\home/go\pkg/mod)"));
    EXPECT_FALSE(isExcludedPath(R"(C:\Users\a\.gradle\x\caches)"));
}

TEST(DeveloperProjectAdvisoryAnalyzer, FindsAnExcludedPlaceWhereverItsComponentsStandInARow)
{
    const std::vector<std::string> names{"go", "pkg", "mod", ".cargo", "Library", "Caches", "x"};
    const std::vector<std::vector<std::string>> places{{"go", "pkg", "mod"}, {".cargo"}, {"Library", "Caches"}};
    std::mt19937 random(3);
    int excludedCount = 0;
    for (int round = 0; round < 3000; ++round) {
        std::vector<std::string> components;
        std::string path;
        for (auto left = random() % 7; left > 0; --left) {
            components.push_back(names[random() % names.size()]);
            path += (random() % 4 == 0 ? R"(\)" : random() % 4 == 0 ? "//" : "/") + components.back();
        }
        const bool isExcluded = std::ranges::any_of(
            places, [&](const auto& place) { return !std::ranges::search(components, place).empty(); });
        EXPECT_EQ(isExcludedPath(path), isExcluded) << path;
        excludedCount += isExcluded ? 1 : 0;
    }
    EXPECT_GT(excludedCount, 300);
    EXPECT_LT(excludedCount, 2700);
}

TEST(DeveloperProjectAdvisoryAnalyzer, CountsThirtyDaysAsStaleAndNinetyAsInactive)
{
    const auto levelAt = [](double age) { return activityLevel(kNow.addingSeconds(-age), kNow); };
    EXPECT_EQ(levelAt(30 * kDay), Level::stale);
    EXPECT_EQ(levelAt(30 * kDay - 1), Level::recent);
    EXPECT_EQ(levelAt(90 * kDay), Level::inactive);
    EXPECT_EQ(levelAt(90 * kDay - 1), Level::stale);
    EXPECT_EQ(levelAt(0), Level::recent);
    EXPECT_EQ(levelAt(-400 * kDay), Level::recent);
    EXPECT_EQ(activityLevel(std::nullopt, kNow), Level::unknown);
}

TEST(DeveloperProjectAdvisoryAnalyzer, CountsWholeDaysAndNoneForADateToCome)
{
    EXPECT_EQ(ageInDays(0), 0);
    EXPECT_EQ(ageInDays(2 * kDay - 1), 1);
    EXPECT_EQ(ageInDays(2 * kDay), 2);
    EXPECT_EQ(ageInDays(-5 * kDay), 0);
    EXPECT_EQ(ageInDays(1e300), 1'000'000'000);
    EXPECT_EQ(opportunity(candidate("/p/build"), kNow).value().ageInDays, std::nullopt);
}

TEST(DeveloperProjectAdvisoryAnalyzer, PutsProjectsAtRestFirstAndThenTheLargerOnes)
{
    const std::vector candidates{candidate("/a/build", 900), candidate("/b/build", 800, kDay),
        candidate("/c/build", 10, 100 * kDay), candidate("/c/none", 5), candidate("/d/build", 700, 40 * kDay),
        candidate("/p10/build", 20, 100 * kDay), candidate("/p9/build", 20, 200 * kDay)};
    EXPECT_THAT(pathsOf(summary(candidates, kNow).opportunities),
        ElementsAre("/p9/build", "/p10/build", "/c/build", "/d/build", "/b/build", "/a/build"));
}

TEST(DeveloperProjectAdvisoryAnalyzer, GivesTheSameOrderWhateverTheOrderOfTheCandidates)
{
    std::mt19937 random(5);
    std::vector<CleanupCandidate> candidates;
    for (int number = 0; number < 60; ++number) {
        const auto age = random() % 5 == 0 ? std::nullopt : std::optional(static_cast<double>(random() % 120) * kDay);
        candidates.push_back(
            candidate("/P" + std::to_string(number) + "/build", static_cast<std::int64_t>(random() % 3), age));
    }
    const auto expected = summary(candidates, kNow);
    EXPECT_EQ(expected.opportunities.size(), candidates.size());
    for (int round = 0; round < 20; ++round) {
        std::ranges::shuffle(candidates, random);
        EXPECT_EQ(summary(candidates, kNow), expected);
    }
}

TEST(DeveloperProjectAdvisorySummary, ShowsThreeOfFourOpportunities)
{
    std::vector<CleanupCandidate> candidates;
    for (std::size_t count = 0; count <= 4; ++count) {
        const auto found = summary(candidates, kNow);
        EXPECT_EQ(found.topOpportunities().size(), std::min<std::size_t>(count, 3));
        EXPECT_TRUE(std::ranges::equal(
            found.topOpportunities(), std::span(found.opportunities).first(found.topOpportunities().size())));
        candidates.push_back(candidate("/p" + std::to_string(count) + "/build"));
    }
}

TEST(DeveloperProjectAdvisorySummary, CountsAProjectOnce)
{
    const std::vector candidates{candidate("/p/build", 4, kDay), candidate("/p/dist", 2, 31 * kDay),
        candidate("/p/target", 1, 91 * kDay), candidate("/q/build", 8, 91 * kDay), candidate("/r/build", 16, kDay),
        candidate("/s/build", 32)};
    const auto found = summary(candidates, kNow);
    EXPECT_EQ(found.projectCount(), 4);
    EXPECT_EQ(found.inactiveOrStaleCount(), 2);
    EXPECT_EQ(found.estimatedBytes(), 63);
}

TEST(DeveloperProjectAdvisorySummary, IsEmptyWithoutAnOpportunity)
{
    const auto found = summary(std::vector{candidate("/p/src")}, kNow);
    EXPECT_THAT(found.opportunities, IsEmpty());
    EXPECT_THAT(found.topOpportunities(), IsEmpty());
    EXPECT_EQ(found.projectCount(), 0);
    EXPECT_EQ(found.inactiveOrStaleCount(), 0);
    EXPECT_EQ(found.estimatedBytes(), 0);
}

} // namespace
} // namespace KarvelloUI
