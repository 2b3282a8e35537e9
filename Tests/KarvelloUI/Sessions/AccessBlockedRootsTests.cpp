#include "KarvelloUI/Sessions/AccessBlockedRoots.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace KarvelloUI {

namespace {

using CleanerCore::CleanupCandidate;
using CleanerCore::SkippedItem;
using Platform::FileURL;
using testing::ElementsAre;
using testing::IsEmpty;

CleanupCandidate candidate(std::string_view path)
{
    return CleanupCandidate(CleanupCandidate::Fields{.url = FileURL(path)});
}

AccessBlockedRoots blocked(std::vector<SkippedItem> items)
{
    return AccessBlockedRoots(items);
}

} // namespace

TEST(AccessBlockedRoots, HoldUpWhatLiesInThemAndThemselves)
{
    const auto roots = blocked({{FileURL::folder("/u/a"), "no access"}});
    EXPECT_EQ(roots.reason("/u/a"), "no access");
    EXPECT_EQ(roots.reason("/u/a/b/c"), "no access");
    EXPECT_EQ(roots.reason("/u/ab"), std::nullopt);
    EXPECT_EQ(roots.reason("/u"), std::nullopt);
}

TEST(AccessBlockedRoots, GiveTheReasonOfTheDeepestOne)
{
    const auto roots = blocked({{FileURL("/u/a/b"), "deep"}, {FileURL("/u/a"), "shallow"}, {FileURL("/u"), "top"}});
    EXPECT_EQ(roots.reason("/u/a/b/c"), "deep");
    EXPECT_EQ(roots.reason("/u/a/c"), "shallow");
    EXPECT_EQ(roots.reason("/u/c"), "top");
}

TEST(AccessBlockedRoots, TakeTheLaterReasonForOneFolder)
{
    EXPECT_EQ(blocked({{FileURL("/u"), "folder"}, {FileURL("/u"), "home"}}).reason("/u/x"), "home");
}

TEST(AccessBlockedRoots, SplitCandidatesInTheirOrder)
{
    const auto split = blocked({{FileURL("/u/a"), "no"}})
                           .split({candidate("/u/a/2"), candidate("/u/b/2"), candidate("/u/a/1"), candidate("/u/b/1")});
    EXPECT_THAT(split.reachable, ElementsAre(candidate("/u/b/2"), candidate("/u/b/1")));
    EXPECT_THAT(split.blocked,
        ElementsAre(CleanerCore::FailedCleanItem{candidate("/u/a/2"), "no"},
            CleanerCore::FailedCleanItem{candidate("/u/a/1"), "no"}));
}

TEST(AccessBlockedRoots, BlockNothingWithoutSkippedItems)
{
    const auto split = blocked({}).split({candidate("/u/a")});
    EXPECT_THAT(split.reachable, ElementsAre(candidate("/u/a")));
    EXPECT_THAT(split.blocked, IsEmpty());
}

} // namespace KarvelloUI
