#include "CleanerCore/Scan/AppCacheContextEnricher.h"

#include <gtest/gtest.h>

namespace CleanerCore {
namespace {

using Application = AppCacheRunningApplicationIdentity;
using State = AppCacheRunningState;

CleanupCandidate candidate(std::string_view path, std::optional<AppCacheContext> context)
{
    return CleanupCandidate({
        .url = Platform::FileURL(path),
        .category = CleanupCategory::appContainerCaches,
        .sizeBytes = 5,
        .appCacheContext = std::move(context),
    });
}

AppCacheContext container(std::string_view identifier)
{
    return AppCacheContext::seed(AppCacheContainerKind::appContainer, identifier);
}

/// The name under which the one container finds its application among several.
std::optional<std::string> bestName(const std::vector<Application>& applications)
{
    const auto enriched =
        AppCacheContextEnricher::enrich({candidate("/a", container("com.example.app"))}, applications);
    return enriched.at(0).appCacheContext->matchedRunningDisplayName;
}

TEST(AppCacheContextEnricher, MatchesWholeIdentifiersInAnyCase)
{
    const std::vector<Application> running{
        Application({.displayName = "App", .bundleIdentifier = "COM.Example.App "}),
        Application({.displayName = "Other", .bundleIdentifier = "com.example.app.helper"}),
        Application({.displayName = "Blank", .bundleIdentifier = " "}),
        Application({.displayName = "None"}),
    };
    const auto enriched = AppCacheContextEnricher::enrich(
        {candidate("/b", container("com.example.app")), candidate("/a", std::nullopt),
            candidate("/c", container("com.example")), candidate("/d", container("")),
            candidate("/e", AppCacheContext::seed(AppCacheContainerKind::groupContainer, "group.com.example.app"))},
        running);
    ASSERT_EQ(enriched.size(), 5U);
    EXPECT_EQ(enriched[0].appCacheContext->runningState, State::running);
    EXPECT_EQ(enriched[0].appCacheContext->matchedRunningDisplayName, "App");
    EXPECT_EQ(enriched[1], candidate("/a", std::nullopt));
    EXPECT_EQ(enriched[2].appCacheContext->runningState, State::notRunning);
    EXPECT_EQ(enriched[3].appCacheContext->runningState, State::unknown);
    EXPECT_EQ(enriched[4].appCacheContext->runningState, State::running);
    EXPECT_EQ(enriched[4].sizeBytes, 5);
}

TEST(AppCacheContextEnricher, GivesListsWithoutContextBackAsTheyAre)
{
    const std::vector<CleanupCandidate> plain{candidate("/a", std::nullopt), candidate("/b", std::nullopt)};
    const std::vector<Application> running{Application({.displayName = "App", .bundleIdentifier = "com.example.app"})};
    EXPECT_EQ(AppCacheContextEnricher::enrich(plain, running), plain);
    EXPECT_TRUE(AppCacheContextEnricher::enrich({}, running).empty());
}

TEST(AppCacheContextEnricher, PrefersTheProcessThatSaysMore)
{
    // Each pair differs in the named point and, the other way round, in all that come later.
    const std::string id = "com.example.app";
    const std::vector<std::pair<Application, Application>> betterFirst{
        {Application({.displayName = std::nullopt, .bundleIdentifier = id, .processIdentifier = 9}),
            Application({.displayName = "x",
                .bundleIdentifier = id,
                .processIdentifier = 1,
                .isFrontmost = true,
                .isTerminated = true,
                .isUserVisible = true})},
        {Application(
             {.displayName = std::nullopt, .bundleIdentifier = id, .processIdentifier = 9, .isUserVisible = true}),
            Application({.displayName = "x", .bundleIdentifier = id, .processIdentifier = 1, .isFrontmost = true})},
        {Application({.displayName = "better", .bundleIdentifier = id, .processIdentifier = 9}),
            Application({.bundleIdentifier = id, .processIdentifier = 1, .isFrontmost = true})},
        {Application({.displayName = "better", .bundleIdentifier = id, .processIdentifier = 9, .isFrontmost = true}),
            Application({.displayName = "x", .bundleIdentifier = id, .processIdentifier = 1})},
        {Application({.displayName = "better", .bundleIdentifier = id, .processIdentifier = 1}),
            Application({.displayName = "x", .bundleIdentifier = id, .processIdentifier = 9})},
    };
    for (const auto& [better, other] : betterFirst) {
        EXPECT_EQ(bestName({better, other}), better.displayName);
        EXPECT_EQ(bestName({other, better}), better.displayName);
    }
    EXPECT_EQ(bestName({Application({.displayName = "first", .bundleIdentifier = id, .processIdentifier = 4}),
                  Application({.displayName = "second", .bundleIdentifier = id, .processIdentifier = 4})}),
        "first");
}

} // namespace
} // namespace CleanerCore
