#include "KarvelloUI/Stores/CustomScanFolderAccess.h"
#include "Tests/KarvelloUI/Sessions/CleanerViewModelCleaningFixture.h"

namespace CleanerViewModelTests {

namespace {

using CleanerCore::CleaningMode;
using CleanerCore::CleanResult;
using CleanerCore::CleanupAuditOperation;
using CleanerCore::CleanupAuditSource;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr auto kTrash = CleaningMode::moveToTrash;
constexpr const char* kFailed = "Some items could not be cleaned. Review the result details.";
constexpr const char* kCancelled = "Cleaning was cancelled. Already cleaned items were removed from the list.";

} // namespace

TEST_F(CleanerViewModelCleaningTest, MovesWhatIsSelectedAndTakesItFromTheReport)
{
    scanCaches();
    select({"large", "small"});
    session->cleanSelected(kTrash);
    EXPECT_EQ(session->phase(), Phase::cleaning);
    settle();
    EXPECT_EQ(session->phase(), Phase::finished);
    EXPECT_THAT(names(), ElementsAre("middle"));
    EXPECT_FALSE(stands("home/Caches/large"));
    EXPECT_TRUE(stands("home/Caches/middle/data"));
    EXPECT_EQ(trashedCount(), 2);
    EXPECT_THAT(session->lastCleanResult()->cleanedItems, SizeIs(2));
    EXPECT_EQ(session->errorMessage(), std::nullopt);
    EXPECT_EQ(session->selectedCount(), 0);
    EXPECT_TRUE(session->canUndoLastTrashClean());
}

TEST_F(CleanerViewModelCleaningTest, WritesDownWhatItDid)
{
    scanCaches();
    select({"large"});
    clean();
    ASSERT_THAT(session->auditEntries(), SizeIs(1));
    const auto& entry = session->auditEntries().front();
    EXPECT_EQ(entry.operation, CleanupAuditOperation::clean);
    EXPECT_EQ(entry.source, CleanupAuditSource::cleanupDashboard);
    EXPECT_EQ(entry.occurredAt, now);
    EXPECT_EQ(entry.requestedItemCount, 1);
    EXPECT_EQ(entry.succeededItemCount, 1);
    EXPECT_EQ(auditStore.loadEntries(), session->auditEntries());
}

TEST_F(CleanerViewModelCleaningTest, IsRefusedWhileBusy)
{
    scanCaches();
    session->cleanSelected(kTrash);
    session->cleanSelected(kTrash);
    EXPECT_EQ(executor.waitingCount(), 1U);
    session->undoLastTrashClean({"x"});
    EXPECT_EQ(executor.waitingCount(), 1U);
    settle();
    EXPECT_THAT(session->auditEntries(), SizeIs(1));
}

TEST_F(CleanerViewModelCleaningTest, MovesTheSnapshotWhateverIsSelectedByThen)
{
    scanCaches();
    select({"small"});
    const auto snapshot = session->review().selectionSnapshot();
    session->selectAllCandidates();
    session->cleanSelected(kTrash, snapshot);
    settle();
    EXPECT_THAT(names(), ElementsAre("large", "middle"));
    EXPECT_EQ(trashedCount(), 1);
}

TEST_F(CleanerViewModelCleaningTest, ChangesNothingForASnapshotThatHasLeftTheReport)
{
    scanCaches();
    select({"small"});
    const auto snapshot = session->review().selectionSnapshot();
    clean();
    scan({location("home/Logs/")});
    session->cleanSelected(kTrash, snapshot);
    EXPECT_EQ(session->phase(), Phase::ready);
    EXPECT_EQ(executor.waitingCount(), 0U);
}

TEST_F(CleanerViewModelCleaningTest, EmptiesReportAndFiltersWhenAllIsCleaned)
{
    scanCaches();
    session->setFilters({.searchText = "a", .category = CleanerCore::CleanupCategory::userCaches});
    clean();
    EXPECT_THAT(session->report().candidates, IsEmpty());
    EXPECT_EQ(session->filters(), CandidateListFilters());
    EXPECT_EQ(session->phase(), Phase::finished);
}

TEST_F(CleanerViewModelCleaningTest, ClearsTheFilterOfACategoryWhoseLastItemWent)
{
    scan({location("home/Caches/"),
        location("home/Logs/", CleanerCore::CleanupCategory::userLogs, CleanerCore::CleanupSafety::caution)});
    session->setFilters({.searchText = "log", .category = CleanerCore::CleanupCategory::userLogs});
    select({"old.log"});
    clean();
    EXPECT_EQ(session->filters(), CandidateListFilters{.searchText = "log"});
}

TEST_F(CleanerViewModelCleaningTest, KeepsWhatFailedInTheListAndSelected)
{
    scanCaches();
    trash.behaviour.failure = Platform::FileErrorKind::noTrash;
    clean();
    EXPECT_EQ(session->phase(), Phase::finished);
    EXPECT_THAT(names(), SizeIs(3));
    EXPECT_EQ(session->selectedCount(), 3);
    EXPECT_THAT(session->lastCleanResult()->failedItems, SizeIs(3));
    EXPECT_EQ(session->errorMessage(), kFailed);
    EXPECT_FALSE(session->canUndoLastTrashClean());
}

TEST_F(CleanerViewModelCleaningTest, SaysWhatItIsGivenToSay)
{
    scanCaches();
    trash.behaviour.failure = Platform::FileErrorKind::noTrash;
    session->cleanSelected(kTrash, std::nullopt, "failed", "cancelled");
    settle();
    EXPECT_EQ(session->errorMessage(), "failed");
    session->cleanSelected(kTrash, std::nullopt, "failed", "cancelled");
    session->cancelCurrentOperation();
    settle();
    EXPECT_EQ(session->errorMessage(), "cancelled");
}

TEST_F(CleanerViewModelCleaningTest, ToldToStopBeforeItBeganMovesNothing)
{
    scanCaches();
    session->cleanSelected(kTrash);
    session->cancelCurrentOperation();
    EXPECT_EQ(session->phase(), Phase::cleaning);
    settle();
    EXPECT_EQ(session->phase(), Phase::ready);
    EXPECT_EQ(session->lastCleanResult(), CleanResult{.wasCancelled = true});
    EXPECT_EQ(session->errorMessage(), kCancelled);
    EXPECT_EQ(trashedCount(), 0);
    ASSERT_THAT(session->auditEntries(), SizeIs(1));
    EXPECT_TRUE(session->auditEntries().front().wasCancelled);
    EXPECT_EQ(session->auditEntries().front().requestedItemCount, 3);
}

TEST_F(CleanerViewModelCleaningTest, ToldToStopInTheMiddleTellsWhatWasMoved)
{
    scanCaches();
    trash.behaviour.afterMove = [this] { session->cancelCurrentOperation(); };
    clean();
    EXPECT_EQ(session->phase(), Phase::ready);
    EXPECT_THAT(session->lastCleanResult()->cleanedItems, SizeIs(1));
    EXPECT_TRUE(session->lastCleanResult()->wasCancelled);
    EXPECT_EQ(session->errorMessage(), kCancelled);
    EXPECT_EQ(trashedCount(), 1);
    EXPECT_THAT(names(), SizeIs(2));
    EXPECT_THAT(session->auditEntries(), SizeIs(1));
}

TEST_F(CleanerViewModelCleaningTest, CountsAsCancelledThoughEverythingHadMoved)
{
    scanCaches();
    select({"small"});
    cleanAction = [this](std::span<const CleanupCandidate> candidates, const CleanRequest& request,
                      const std::stop_token& stop, const CleanerCore::ItemProgressReport& report) {
        auto result = cleaningServiceAction(services)(candidates, request, stop, report);
        session->cancelCurrentOperation();
        return result;
    };
    restart();
    scanCaches();
    clean();
    EXPECT_THAT(session->lastCleanResult()->cleanedItems, SizeIs(3));
    EXPECT_TRUE(session->lastCleanResult()->wasCancelled);
    EXPECT_EQ(session->phase(), Phase::ready);
}

TEST_F(CleanerViewModelCleaningTest, IsDroppedWholeWhenAScanReplacesIt)
{
    scanCaches();
    session->cleanSelected(kTrash);
    executor.runOne();
    session->scan({location("home/Logs/")});
    settle();
    EXPECT_EQ(trashedCount(), 3);
    EXPECT_EQ(session->lastCleanResult(), std::nullopt);
    EXPECT_THAT(session->auditEntries(), IsEmpty());
    EXPECT_THAT(names(), ElementsAre("old.log"));
}

TEST_F(CleanerViewModelCleaningTest, KeepsACandidateAwayThatWasIgnoredMeanwhile)
{
    scanCaches();
    select({"large"});
    session->cleanSelected(kTrash);
    executor.runOne();
    session->ignoreCandidate(candidate("small"));
    settle();
    EXPECT_THAT(names(), ElementsAre("middle"));
}

TEST_F(CleanerViewModelCleaningTest, BlocksWhatLiesInAFolderWithoutAccess)
{
    auto folder = CustomScanFolder::make(tree.url("home/Logs/"), fileManager, bookmarks, now);
    ASSERT_TRUE(folder.has_value());
    session->scanMac(CleanerCore::CleanupScanMode::standard, tree.url("home/"), {*folder}, std::nullopt, false);
    settle();
    enterSandbox();
    std::filesystem::rename(tree.path("home/Logs"), tree.path("home/Aside"));
    session->selectAllCandidates();
    clean();
    ASSERT_THAT(session->lastCleanResult()->failedItems, SizeIs(1));
    EXPECT_EQ(session->lastCleanResult()->failedItems.front().reason, CustomScanFolderAccess::unavailableReason);
    EXPECT_THAT(trash.itemAnchors(), IsEmpty());
}

TEST_F(CleanerViewModelCleaningTest, MayBeDestroyedAtAnyMomentOfAClean)
{
    for (int moment = 0; moment < 3; ++moment) {
        restart();
        tree.add("home/Caches/again" + std::to_string(moment) + "/data size=8K");
        scanCaches();
        session->cleanSelected(kTrash);
        if (moment == 1) {
            executor.runOne();
        } else if (moment == 2) {
            QObject::connect(session.get(), &CleanerViewModel::resultsChanged, qApp, [&] { session.reset(); });
            settle();
            EXPECT_EQ(session, nullptr);
        }
        session.reset();
        settle();
    }
    // What was under way when the session had its result is in the log.
    EXPECT_THAT(auditStore.loadEntries(), SizeIs(1));
}

TEST_F(CleanerViewModelCleaningTest, TellsHowFarItIs)
{
    scanCaches();
    std::size_t most = 0;
    QObject::connect(session.get(), &CleanerViewModel::progressChanged, session.get(),
        [&] { most = std::max(most, session->itemProgress().doneItems); });
    clean();
    EXPECT_EQ(most, 3U);
    EXPECT_EQ(session->itemProgress().allItems, 0U);
}

} // namespace CleanerViewModelTests
