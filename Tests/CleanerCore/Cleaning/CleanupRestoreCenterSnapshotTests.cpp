#include "CleanerCore/Cleaning/CleanupRestoreCenterSnapshot.h"

#include "Tests/CleanerCore/Audit/AuditFixture.h"

#include <limits>

namespace CleanerCore {

namespace {

using namespace AuditTests;

/// In the Trash and known there, in the Trash only, nowhere.
std::vector<CleanedItem> items()
{
    std::vector<CleanedItem> all{
        trashedItem("/a", 1), trashedItem("/b", 2), trashedItem("/c", 4), trashedItem("/d", 8)};
    all[1].restoreSourceIdentity.reset();
    all[2].destinationURL.reset();
    return all;
}

} // namespace

TEST(CleanupRestoreCenterSnapshot, IsEmptyWithoutAResult)
{
    const CleanupRestoreCenterSnapshot snapshot(std::nullopt);
    EXPECT_TRUE(snapshot.recentItems.empty());
    EXPECT_TRUE(snapshot.trashMovedItems.empty());
    EXPECT_TRUE(snapshot.restoreAuthorizedItems.empty());
    EXPECT_EQ(snapshot.failedItemCount, 0);
    EXPECT_FALSE(snapshot.wasCancelled);
    EXPECT_EQ(snapshot.auditSource, std::nullopt);
    EXPECT_EQ(snapshot.recordedAt, std::nullopt);
    EXPECT_FALSE(snapshot.allowsRestoreAttempts);
}

TEST(CleanupRestoreCenterSnapshot, ShowsAResultAndOffersARestore)
{
    CleanResult result{.cleanedItems = items(), .failedItems = {{loggedCandidate("/f"), "busy"}}, .wasCancelled = true};
    const CleanupRestoreCenterSnapshot snapshot(std::optional{result});
    EXPECT_EQ(snapshot.recentItems, items());
    EXPECT_EQ(snapshot.trashMovedItems, (std::vector{items()[0], items()[1], items()[3]}));
    EXPECT_EQ(snapshot.restoreAuthorizedItems, (std::vector{items()[0], items()[3]}));
    EXPECT_EQ(snapshot.failedItemCount, 1);
    EXPECT_TRUE(snapshot.wasCancelled);
    EXPECT_EQ(snapshot.auditSource, std::nullopt);
    EXPECT_EQ(snapshot.recordedAt, std::nullopt);
    EXPECT_TRUE(snapshot.allowsRestoreAttempts);
    EXPECT_TRUE(CleanupRestoreCenterSnapshot(std::optional<CleanResult>(CleanResult())).allowsRestoreAttempts);
}

TEST(CleanupRestoreCenterSnapshot, ShowsAnEntryOfTheLogAndOffersNoRestore)
{
    auto logged = entry(0, 0);
    logged.cleanedItems = items();
    logged.source = CleanupAuditSource::macInsights;
    logged.failedItemCount = 3;
    logged.wasCancelled = true;
    const CleanupRestoreCenterSnapshot snapshot(logged);
    EXPECT_EQ(snapshot.recentItems, items());
    EXPECT_EQ(snapshot.restoreAuthorizedItems, (std::vector{items()[0], items()[3]}));
    EXPECT_EQ(snapshot.failedItemCount, 3);
    EXPECT_TRUE(snapshot.wasCancelled);
    EXPECT_EQ(snapshot.auditSource, CleanupAuditSource::macInsights);
    EXPECT_EQ(snapshot.recordedAt, logged.occurredAt);
    EXPECT_FALSE(snapshot.allowsRestoreAttempts);
}

TEST(CleanupRestoreCenterSnapshot, TakesANegativeCountOfFailuresForNone)
{
    auto logged = entry();
    logged.failedItemCount = -3;
    EXPECT_EQ(CleanupRestoreCenterSnapshot(logged).failedItemCount, 0);
}

TEST(CleanupRestoreCenterSnapshot, CountsAnItemWithoutIdentityAsMovedButNotAsRestorable)
{
    const CleanupRestoreCenterSnapshot snapshot(std::optional<CleanResult>(CleanResult{.cleanedItems = items()}));
    EXPECT_EQ(snapshot.trashMovedBytes(), 11);
    EXPECT_EQ(snapshot.restorableBytes(), 9);
}

TEST(CleanupRestoreCenterSnapshot, ShowsAPermanentDeletionAmongTheRecentItemsOnly)
{
    const CleanedItem deleted{.candidate = loggedCandidate("/a", 5)};
    const CleanupRestoreCenterSnapshot snapshot(std::optional<CleanResult>(CleanResult{.cleanedItems = {deleted}}));
    EXPECT_EQ(snapshot.recentItems, std::vector{deleted});
    EXPECT_TRUE(snapshot.trashMovedItems.empty());
    EXPECT_TRUE(snapshot.restoreAuthorizedItems.empty());
    EXPECT_EQ(snapshot.trashMovedBytes(), 0);
}

TEST(CleanupRestoreCenterSnapshot, IsNotFelledByTheSizesOfAForgedLog)
{
    constexpr auto limit = std::numeric_limits<std::int64_t>::max();
    auto forged = entry(0, 0);
    forged.cleanedItems = {trashedItem("/a", limit), trashedItem("/b", 1)};
    EXPECT_EQ(CleanupRestoreCenterSnapshot(forged).trashMovedBytes(), limit);
    EXPECT_EQ(CleanupRestoreCenterSnapshot(forged).restorableBytes(), limit);
}

} // namespace CleanerCore
