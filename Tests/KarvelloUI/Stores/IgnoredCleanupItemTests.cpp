#include "KarvelloUI/Stores/IgnoredCleanupItem.h"

#include "KarvelloUI/Stores/StoresCoding.h"
#include "Tests/KarvelloUI/Stores/IgnoredItems.h"
#include "Tests/KarvelloUI/Stores/StoresFixture.h"

#include <gtest/gtest.h>

namespace KarvelloUI {

namespace {

using namespace StoresTests;
using CleanerCore::CleanupCandidate;
using CleanerCore::CleanupCategory;
using CleanerCore::CleanupSafety;
using Duration = CleanupIgnoreDuration;

CleanupCandidate candidate(CleanupCategory category, CleanupSafety safety = CleanupSafety::caution,
    std::string_view path = "/h/a", bool requiresManualReviewBySource = false)
{
    return CleanupCandidate({
        .url = Platform::FileURL(path),
        .category = category,
        .sizeBytes = 7,
        .safety = safety,
        .requiresManualReviewBySource = requiresManualReviewBySource,
    });
}

std::vector<Duration> durations(const CleanupCandidate& candidate)
{
    const auto available = availableIgnoreDurations(candidate);
    return {available.begin(), available.end()};
}

const std::vector kAll{Duration::oneDay, Duration::oneWeek, Duration::untilShownAgain};
const std::vector kLimited{Duration::oneDay, Duration::oneWeek};

IgnoredCleanupItem item(std::string_view path, Platform::Date ignoredAt = kNow, Duration duration = Duration::oneDay)
{
    return {candidate(CleanupCategory::userCaches, CleanupSafety::safe, path), ignoredAt, duration};
}

} // namespace

TEST(CleanupIgnoreDuration, EndsADayOrAWeekLaterOrNever)
{
    EXPECT_EQ(expirationDate(Duration::oneDay, kNow), kNow.addingSeconds(86400.0));
    EXPECT_EQ(expirationDate(Duration::oneWeek, kNow), kNow.addingSeconds(604800.0));
    EXPECT_EQ(expirationDate(Duration::untilShownAgain, kNow), std::nullopt);
    EXPECT_EQ(
        Platform::allCases<Duration>(), (std::array{Duration::oneDay, Duration::oneWeek, Duration::untilShownAgain}));
}

TEST(IgnoreDurations, GoUntilShownAgainForWhatComesBackByItself)
{
    for (const auto category : {CleanupCategory::userCaches, CleanupCategory::userLogs,
             CleanupCategory::xcodeDerivedData, CleanupCategory::simulatorCaches, CleanupCategory::appSandboxCaches,
             CleanupCategory::appContainerCaches, CleanupCategory::groupContainerCaches,
             CleanupCategory::xcodeDeviceSupport, CleanupCategory::temporaryFiles}) {
        for (const auto safety : {CleanupSafety::safe, CleanupSafety::caution}) {
            EXPECT_EQ(durations(candidate(category, safety)), kAll) << Platform::rawValue(category);
            EXPECT_EQ(defaultIgnoreDuration(candidate(category, safety)), Duration::untilShownAgain);
        }
    }
}

TEST(IgnoreDurations, EndAtAWeekForWhatADeveloperMayWantBack)
{
    for (const auto category :
        {CleanupCategory::developerToolCaches, CleanupCategory::packageManagerCaches, CleanupCategory::buildArchives}) {
        EXPECT_EQ(durations(candidate(category, CleanupSafety::safe)), kLimited) << Platform::rawValue(category);
        EXPECT_EQ(defaultIgnoreDuration(candidate(category, CleanupSafety::safe)), Duration::oneWeek);
    }
}

TEST(IgnoreDurations, EndAtAWeekForWhateverNeedsManualReview)
{
    for (const auto category : Platform::allCases<CleanupCategory>()) {
        EXPECT_EQ(durations(candidate(category, CleanupSafety::manualReview)), kLimited);
        EXPECT_EQ(durations(candidate(category, CleanupSafety::safe, "/h/a", true)), kLimited);
        EXPECT_EQ(defaultIgnoreDuration(candidate(category, CleanupSafety::manualReview)), Duration::oneWeek);
    }
    EXPECT_EQ(durations(candidate(CleanupCategory::customFolder, CleanupSafety::safe)), kLimited);
}

TEST(IgnoredCleanupItem, TakesTheCandidateAsItWas)
{
    const auto source = candidate(CleanupCategory::userLogs, CleanupSafety::safe, "/h/a\xFF");
    const IgnoredCleanupItem ignored(source, kNow, Duration::oneWeek);
    EXPECT_EQ(ignored.id, source.id);
    EXPECT_EQ(ignored.displayName, "a\xFF");
    EXPECT_EQ(ignored.path, "/h/a\xFF");
    EXPECT_EQ(ignored.category, CleanupCategory::userLogs);
    EXPECT_EQ(ignored.sizeBytes, 7);
    EXPECT_EQ(ignored.ignoredAt, kNow);
    EXPECT_EQ(ignored.duration, Duration::oneWeek);
    EXPECT_EQ(ignored.expiresAt, kNow.addingSeconds(604800.0));
}

TEST(IgnoredCleanupItem, IsOverAtTheVeryMomentOfExpiry)
{
    const auto ignored = item("/h/a", kNow, Duration::oneDay);
    EXPECT_TRUE(ignored.isActive(kNow));
    EXPECT_TRUE(ignored.isActive(kNow.addingSeconds(86399.9)));
    EXPECT_FALSE(ignored.isActive(kNow.addingSeconds(86400.0)));
    EXPECT_TRUE(item("/h/a", kNow, Duration::untilShownAgain).isActive(kNow.addingSeconds(1e12)));
}

TEST(SortIgnoredItems, PutsTheLatestFirstAndThenGoesByPath)
{
    std::vector items{item("/h/a10"), item("/h/b", kNow.addingSeconds(-1)), item("/h/a2"),
        item("/h/z", kNow.addingSeconds(1)), item("/h/A1")};
    sortIgnoredItems(items);
    EXPECT_EQ(pathsOf(items), (Paths{"/h/z", "/h/A1", "/h/a2", "/h/a10", "/h/b"}));
}

TEST(AddingIgnoredItem, ReplacesTheRuleOfTheSameCandidateAndDropsExpiredOnes)
{
    const auto expired = item("/h/old", kNow.addingSeconds(-86400.0));
    const auto other = item("/h/other", kNow.addingSeconds(-5));
    const auto first = item("/h/a", kNow.addingSeconds(-3), Duration::untilShownAgain);
    const auto second = item("/h/a", kNow);
    EXPECT_EQ(addingIgnoredItem(std::vector{first, other, expired}, second, kNow), (std::vector{second, other}));
}

TEST(IgnoredCleanupItem, IsStoredUnderTheNamesOfItsFields)
{
    const auto ignored = item("/h/caf\xE9", kNow, Duration::oneDay);
    const auto text = Platform::encodeJSON(ignored);
    EXPECT_EQ(text, R"({
  "category" : "userCaches",
  "displayName" : "caf\\xE9",
  "duration" : "oneDay",
  "expiresAt" : 800086400,
  "id" : "userCaches:\/h\/caf\/\/xE9",
  "ignoredAt" : 800000000,
  "path" : "file:\/\/\/h\/caf%E9",
  "sizeBytes" : 7
})");
    auto read = Platform::decodeJSON<IgnoredCleanupItem>(std::string_view(*text));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->displayName, "caf\\xE9");
    read->displayName = ignored.displayName;
    EXPECT_EQ(*read, ignored);
}

TEST(IgnoredCleanupItem, HasNoExpiryInItsStoredFormWhereItNeverEnds)
{
    const auto ignored = item("/h/a", kNow, Duration::untilShownAgain);
    const auto text = Platform::encodeJSON(ignored).value();
    EXPECT_EQ(text.find("expiresAt"), std::string::npos);
    EXPECT_EQ(Platform::decodeJSON<IgnoredCleanupItem>(std::string_view(text)), ignored);
}

} // namespace KarvelloUI
