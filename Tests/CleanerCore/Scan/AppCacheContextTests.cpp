#include "CleanerCore/Scan/AppCacheContext.h"

#include "CleanerCore/Scan/AppCacheRunningApplicationIdentity.h"

#include <gtest/gtest.h>

namespace CleanerCore {
namespace {

using ContainerKind = AppCacheContainerKind;
using Source = AppCacheIdentitySource;
using State = AppCacheRunningState;

TEST(AppCacheContext, SeedsAGroupContainerWithTheIdentifierThatItsNameSuggests)
{
    const auto context = AppCacheContext::seed(ContainerKind::groupContainer, "group.com.example.shared");
    EXPECT_EQ(context.containerKind, ContainerKind::groupContainer);
    EXPECT_EQ(context.containerIdentifier, "group.com.example.shared");
    EXPECT_EQ(context.possibleBundleIdentifier, "com.example.shared");
    EXPECT_EQ(context.identitySource, Source::groupContainerPossibleMatch);
    EXPECT_EQ(context.runningState, State::unknown);
    EXPECT_EQ(context.matchedRunningBundleIdentifier, std::nullopt);
    EXPECT_EQ(context.matchedRunningDisplayName, std::nullopt);
}

TEST(AppCacheContext, SuggestsNothingForAGroupThatIsNoIdentifier)
{
    for (const std::string_view group :
        {"group.foo", "group.com.example", "group.Com.example.app", "ABCDE12345.com.example", "group.com..example.app",
            "group.com.example.", "group.com.exa_mple.app", "group.com.example.a b", "Group.com.example.app",
            "com.example.app", "", "group.", "group.co-m.example.app", "group.漢.example.app"}) {
        EXPECT_EQ(AppCacheContext::possibleBundleIdentifierForGroup(group), std::nullopt) << group;
        EXPECT_EQ(AppCacheContext::seed(ContainerKind::groupContainer, group).identitySource, Source::unknown) << group;
    }
    EXPECT_EQ(AppCacheContext::possibleBundleIdentifierForGroup("group.com2.Example-1.App"), "com2.Example-1.App");
}

TEST(AppCacheContext, SeedsAnAppContainerWithItsTrimmedName)
{
    const auto context = AppCacheContext::seed(ContainerKind::appContainer, " com.example.Notes\n");
    EXPECT_EQ(context.containerIdentifier, "com.example.Notes");
    EXPECT_EQ(context.possibleBundleIdentifier, "com.example.Notes");
    EXPECT_EQ(context.identitySource, Source::appContainerPath);

    const auto blank = AppCacheContext::seed(ContainerKind::appContainer, " \t");
    EXPECT_EQ(blank.possibleBundleIdentifier, std::nullopt);
    EXPECT_EQ(blank.identitySource, Source::unknown);
}

TEST(AppCacheContext, KnowsARunningApplication)
{
    const AppCacheRunningApplicationIdentity app({.displayName = " Notes ", .bundleIdentifier = "com.example.Notes "});
    for (const auto kind : {ContainerKind::appContainer, ContainerKind::groupContainer}) {
        auto context = AppCacheContext::seed(kind, "group.com.example.notes");
        context.possibleBundleIdentifier = " com.example.notes ";
        const auto enriched = context.enriched(&app);
        EXPECT_EQ(enriched.containerKind, kind);
        EXPECT_EQ(enriched.containerIdentifier, context.containerIdentifier);
        EXPECT_EQ(enriched.possibleBundleIdentifier, "com.example.notes");
        EXPECT_EQ(enriched.matchedRunningDisplayName, "Notes");
        EXPECT_EQ(enriched.matchedRunningBundleIdentifier, "com.example.Notes");
        EXPECT_EQ(enriched.runningState, State::running);
        EXPECT_EQ(enriched.identitySource, Source::runningAppExactMatch);
    }
}

TEST(AppCacheContext, ClaimsOnlyOfAnAppContainerThatItsApplicationDoesNotRun)
{
    const auto app = AppCacheContext::seed(ContainerKind::appContainer, "com.example.notes").enriched(nullptr);
    EXPECT_EQ(app.runningState, State::notRunning);
    EXPECT_EQ(app.identitySource, Source::appContainerPath);
    EXPECT_EQ(app.possibleBundleIdentifier, "com.example.notes");

    const auto group =
        AppCacheContext::seed(ContainerKind::groupContainer, "group.com.example.notes").enriched(nullptr);
    EXPECT_EQ(group.runningState, State::unknown);
    EXPECT_EQ(group.identitySource, Source::groupContainerPossibleMatch);
}

TEST(AppCacheContext, ForgetsAMatchThatNoLongerHolds)
{
    const AppCacheRunningApplicationIdentity app({.displayName = "Notes", .bundleIdentifier = "com.example.notes"});
    const auto matched = AppCacheContext::seed(ContainerKind::appContainer, "com.example.notes").enriched(&app);
    const auto after = matched.enriched(nullptr);
    EXPECT_EQ(after.matchedRunningDisplayName, std::nullopt);
    EXPECT_EQ(after.matchedRunningBundleIdentifier, std::nullopt);
}

TEST(AppCacheContext, KnowsNothingWithoutAnIdentifier)
{
    const AppCacheRunningApplicationIdentity app({.displayName = "Notes", .bundleIdentifier = "com.example.notes"});
    const auto context = AppCacheContext::seed(ContainerKind::groupContainer, "group.foo").enriched(&app);
    EXPECT_EQ(context.runningState, State::unknown);
    EXPECT_EQ(context.identitySource, Source::unknown);
    EXPECT_EQ(context.matchedRunningDisplayName, std::nullopt);
    EXPECT_EQ(context.containerIdentifier, "group.foo");
}

TEST(AppCacheContext, NamesAnAppContainerByTheLastPartOfItsIdentifier)
{
    const auto name = [](std::string_view identifier) {
        return AppCacheContext::seed(ContainerKind::appContainer, identifier).displayNameForAppContainerFallback();
    };
    EXPECT_EQ(name("com.example.Notes"), "Notes");
    EXPECT_EQ(name("com.example.Notes.."), "Notes");
    EXPECT_EQ(name("com.example. Notes"), "Notes");
    EXPECT_EQ(name("Notes"), "Notes");
    EXPECT_EQ(name("..."), std::nullopt);
    EXPECT_EQ(name("com. ."), std::nullopt);
    EXPECT_EQ(name(""), std::nullopt);
    EXPECT_EQ(AppCacheContext::seed(ContainerKind::groupContainer, "group.com.example.x")
                  .displayNameForAppContainerFallback(),
        std::nullopt);
}

TEST(AppCacheRunningApplicationIdentity, TrimsItsTextsAndDropsBlankOnes)
{
    const AppCacheRunningApplicationIdentity app(
        {.displayName = " \n", .bundleIdentifier = "\tcom.example ", .processIdentifier = 7, .isUserVisible = true});
    EXPECT_EQ(app.displayName, std::nullopt);
    EXPECT_EQ(app.bundleIdentifier, "com.example");
    EXPECT_EQ(app.processIdentifier, 7);
    EXPECT_TRUE(app.isUserVisible);
}

} // namespace
} // namespace CleanerCore
