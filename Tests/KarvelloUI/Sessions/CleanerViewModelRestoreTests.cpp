#include "Tests/KarvelloUI/Sessions/CleanerViewModelCleaningFixture.h"

namespace CleanerViewModelTests {

namespace {

using testing::ElementsAre;
using testing::SizeIs;

using CleanerViewModelRestoreTest = CleanerViewModelCleaningTest;

} // namespace

TEST_F(CleanerViewModelRestoreTest, PutsBackWhatItMoved)
{
    scanCaches();
    clean();
    session->undoLastTrashClean(cleanedIDs());
    EXPECT_EQ(session->phase(), Phase::restoring);
    EXPECT_FALSE(session->canUndoLastTrashClean());
    settle();
    EXPECT_EQ(session->phase(), Phase::finished);
    EXPECT_TRUE(stands("home/Caches/large/data"));
    EXPECT_EQ(trashedCount(), 0);
    EXPECT_THAT(names(), ElementsAre("large", "middle", "small"));
    EXPECT_EQ(session->selectedCount(), 0);
    EXPECT_EQ(session->lastCleanResult(), std::nullopt);
    EXPECT_THAT(session->lastRestoreResult()->restoredItems, SizeIs(3));
    ASSERT_THAT(session->auditEntries(), SizeIs(2));
    EXPECT_EQ(auditStore.loadEntries().size(), 2U);
}

TEST_F(CleanerViewModelRestoreTest, LeavesTheRestOfAPartialRestoreRestorable)
{
    scanCaches();
    clean();
    const auto ids = cleanedIDs();
    undo({*ids.begin()});
    EXPECT_THAT(session->lastCleanResult()->cleanedItems, SizeIs(2));
    EXPECT_TRUE(session->canUndoLastTrashClean());
    undo(ids);
    EXPECT_EQ(session->lastCleanResult(), std::nullopt);
    EXPECT_THAT(names(), SizeIs(3));
}

TEST_F(CleanerViewModelRestoreTest, RestoresNothingForUnknownIdsOrWithoutAClean)
{
    scanCaches();
    undo({"x"});
    EXPECT_EQ(session->phase(), Phase::ready);
    clean();
    undo({});
    undo({"x"});
    EXPECT_EQ(session->phase(), Phase::finished);
    EXPECT_EQ(session->lastRestoreResult(), std::nullopt);
    EXPECT_EQ(trashedCount(), 3);
}

TEST_F(CleanerViewModelRestoreTest, DoesNotShowARestoredCandidateTwice)
{
    scanCaches();
    select({"small"});
    clean();
    const auto ids = cleanedIDs();
    // Another one stands there by now, so that the restore is refused, and the candidate is known again.
    tree.add("home/Caches/small/data size=8K");
    undo(ids);
    EXPECT_EQ(session->errorMessage(), "Some items could not be restored.");
    EXPECT_EQ(session->phase(), Phase::finished);
    EXPECT_THAT(session->lastRestoreResult()->failedItems, SizeIs(1));
    EXPECT_THAT(session->lastCleanResult()->cleanedItems, SizeIs(1));
    EXPECT_THAT(names(), ElementsAre("large", "middle"));
}

TEST_F(CleanerViewModelRestoreTest, ARestoreToldToStopBeforeItBeganMovesNothing)
{
    scanCaches();
    clean();
    const auto ids = cleanedIDs();
    session->undoLastTrashClean(ids);
    session->cancelCurrentOperation();
    settle();
    // Nothing is in the report any more.
    EXPECT_EQ(session->phase(), Phase::idle);
    EXPECT_EQ(session->errorMessage(), "Restore was cancelled.");
    EXPECT_TRUE(session->lastRestoreResult()->wasCancelled);
    EXPECT_THAT(session->lastCleanResult()->cleanedItems, SizeIs(3));
    EXPECT_EQ(trashedCount(), 3);
    EXPECT_THAT(session->auditEntries(), SizeIs(2));
}

TEST_F(CleanerViewModelRestoreTest, ARestoreToldToStopWhenAllWasBackCountsAsDone)
{
    scanCaches();
    select({"small"});
    clean();
    session->undoLastTrashClean(cleanedIDs());
    executor.runOne();
    session->cancelCurrentOperation();
    settle();
    EXPECT_EQ(session->phase(), Phase::finished);
    EXPECT_FALSE(session->lastRestoreResult()->wasCancelled);
}

TEST_F(CleanerViewModelRestoreTest, ShowsInTheRestoreCenterTheLogAfterANewScan)
{
    scanCaches();
    clean();
    EXPECT_TRUE(session->restoreCenterSnapshot().allowsRestoreAttempts);
    EXPECT_THAT(session->restoreCenterSnapshot().restoreAuthorizedItems, SizeIs(3));
    scanCaches();
    EXPECT_EQ(session->lastCleanResult(), std::nullopt);
    EXPECT_FALSE(session->canUndoLastTrashClean());
    EXPECT_FALSE(session->restoreCenterSnapshot().allowsRestoreAttempts);
    EXPECT_EQ(session->restoreCenterSnapshot().recordedAt, now);
}

} // namespace CleanerViewModelTests
