#include "Tests/KarvelloUI/Sessions/MacInsightsViewModelFixture.h"

#include <filesystem>

namespace MacInsightsViewModelTests {

namespace {

using CleanerCore::CleanResult;
using CleanerCore::CleanupAuditOperation;
using CleanerCore::CleanupAuditSource;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

constexpr const char* kFailed = "Some items could not be cleaned. Review the result details.";
constexpr const char* kCancelled = "Cleaning was cancelled. Already cleaned items were removed from the list.";
constexpr const char* kNoLongerEligible =
    "Some selected items are no longer eligible for cleanup. Refresh the scan and review them again.";

using MacInsightsViewModelCleaningTest = MacInsightsViewModelTest;

} // namespace

TEST_F(MacInsightsViewModelCleaningTest, MovesWhatIsSelectedInTheSectionAlone)
{
    scan();
    select(largeFiles, "Downloads/film.mov");
    select(downloads, "Downloads/note.txt");
    session->cleanSelected(largeFiles);
    EXPECT_EQ(session->phase(), Phase::cleaning);
    settle();
    EXPECT_EQ(session->phase(), Phase::finished);
    EXPECT_EQ(trashedCount(), 1);
    EXPECT_FALSE(stands("home/Downloads/film.mov"));
    EXPECT_TRUE(stands("home/Downloads/note.txt"));
    EXPECT_THAT(session->lastCleanResult()->cleanedItems, SizeIs(1));
    EXPECT_EQ(session->errorMessage(), std::nullopt);
    EXPECT_EQ(session->selectedCount(), 1);
    EXPECT_TRUE(session->isSelected(file(downloads, "Downloads/note.txt")));
}

TEST_F(MacInsightsViewModelCleaningTest, TakesACleanedFileOutOfEverySection)
{
    scan();
    select(largeFiles, "Downloads/disc.img");
    clean(largeFiles);
    EXPECT_THAT(paths(session->files(largeFiles)), Not(Contains("Downloads/disc.img")));
    EXPECT_THAT(paths(session->files(downloads)), Not(Contains("Downloads/disc.img")));
    // A group with one file left is none.
    EXPECT_THAT(session->duplicateGroupsForReview(), SizeIs(2));
    EXPECT_THAT(session->duplicateReviewGroups(), SizeIs(2));
    // So its keeper is a file as any other.
    EXPECT_TRUE(session->isSelectable(file(largeFiles, "Documents/disc.img")));
}

TEST_F(MacInsightsViewModelCleaningTest, LeavesABarWhoseEveryFileWentInItsPlace)
{
    tree.remove("home/Pictures");
    tree.add("home/Pictures/video.mov size=120K");
    scan();
    const auto order = [this] {
        std::vector<std::string> bars;
        for (const auto& bar : session->report().heatmapItems) {
            bars.push_back(bar.displayName);
        }
        return bars;
    };
    const auto before = order();
    ASSERT_THAT(before, ElementsAre("~/Downloads", "~/Documents", "~/Library/Application Support", "~/Pictures"));
    tree.add("home/Pictures/later.txt size=4K");
    select(largeFiles, "Pictures/video.mov");
    clean(largeFiles);
    EXPECT_EQ(bytesOfBar("Pictures"), 0);
    EXPECT_EQ(order(), before);
}

TEST_F(MacInsightsViewModelCleaningTest, WritesDownWhatItDid)
{
    scan();
    select(largeFiles, "Downloads/film.mov");
    clean(largeFiles);
    ASSERT_THAT(session->auditEntries(), SizeIs(1));
    const auto& entry = session->auditEntries().front();
    EXPECT_EQ(entry.operation, CleanupAuditOperation::clean);
    EXPECT_EQ(entry.source, CleanupAuditSource::macInsights);
    EXPECT_EQ(entry.mode, CleanerCore::CleaningMode::moveToTrash);
    EXPECT_EQ(entry.occurredAt, now);
    EXPECT_EQ(entry.requestedItemCount, 1);
    EXPECT_EQ(entry.succeededItemCount, 1);
    EXPECT_EQ(auditStore.loadEntries(), session->auditEntries());
}

TEST_F(MacInsightsViewModelCleaningTest, IsRefusedWhileBusyAndWithoutASelection)
{
    scan();
    session->cleanSelected(largeFiles);
    EXPECT_EQ(session->phase(), Phase::ready);
    select(largeFiles, "Downloads/film.mov");
    session->cleanSelected(largeFiles);
    session->cleanSelected(largeFiles);
    EXPECT_EQ(executor.waitingCount(), 1U);
    settle();
    session->scan(std::nullopt);
    session->cleanSelected(downloads);
    EXPECT_EQ(executor.waitingCount(), 1U);
}

TEST_F(MacInsightsViewModelCleaningTest, CleansTheOthersWhenAFileLeftTheAllowedRoots)
{
    scan();
    session->selectAll(largeFiles);
    // The folder is another one by now.
    std::filesystem::rename(tree.path("home/Documents"), tree.path("home/Aside"));
    tree.add("home/Documents/thesis.pdf size=64K");
    session->cleanSelected(largeFiles);
    std::vector<std::optional<std::string>> messages;
    QObject::connect(session.get(), &MacInsightsViewModel::errorMessageChanged, session.get(),
        [&] { messages.push_back(session->errorMessage()); });
    settle();
    EXPECT_EQ(session->phase(), Phase::finished);
    EXPECT_THAT(messages, ElementsAre(kNoLongerEligible));
    EXPECT_THAT(session->lastCleanResult()->cleanedItems, SizeIs(2));
    EXPECT_TRUE(stands("home/Documents/thesis.pdf"));
    EXPECT_EQ(trashedCount(), 2);
    EXPECT_THAT(session->selectedIDs(), IsEmpty());
    EXPECT_FALSE(session->isSelectable(file(largeFiles, "Documents/thesis.pdf")));
    EXPECT_EQ(session->auditEntries().front().requestedItemCount, 2);
}

TEST_F(MacInsightsViewModelCleaningTest, ReplacesTheMessageOfWhatIsNoLongerEligibleByALaterFailure)
{
    scan();
    session->selectAll(largeFiles);
    std::filesystem::rename(tree.path("home/Documents"), tree.path("home/Aside"));
    trash.behaviour.failure = Platform::FileErrorKind::noTrash;
    std::vector<std::optional<std::string>> messages;
    QObject::connect(session.get(), &MacInsightsViewModel::errorMessageChanged, session.get(),
        [&] { messages.push_back(session->errorMessage()); });
    clean(largeFiles);
    EXPECT_THAT(messages, ElementsAre(kNoLongerEligible, kFailed));
    EXPECT_EQ(session->phase(), Phase::finished);
    // What failed stays, and stays selected.
    EXPECT_THAT(paths(session->selectedFiles(largeFiles)), ElementsAre("Downloads/film.mov", "Downloads/disc.img"));
}

TEST_F(MacInsightsViewModelCleaningTest, StopsWhereNothingIsEligible)
{
    scan();
    select(downloads, "Downloads/note.txt");
    clean(downloads);
    ASSERT_EQ(session->phase(), Phase::finished);
    select(largeFiles, "Documents/thesis.pdf");
    std::filesystem::rename(tree.path("home/Documents"), tree.path("home/Aside"));
    clean(largeFiles);
    EXPECT_EQ(session->phase(), Phase::finished);
    EXPECT_EQ(session->errorMessage(), kNoLongerEligible);
    EXPECT_THAT(session->selectedIDs(), IsEmpty());
    // That of the clean before.
    EXPECT_THAT(session->lastCleanResult()->cleanedItems, SizeIs(1));
    EXPECT_THAT(session->auditEntries(), SizeIs(1));
    EXPECT_EQ(trashedCount(), 1);
}

TEST_F(MacInsightsViewModelCleaningTest, ForgetsTheLastResultOnceItBegins)
{
    scan();
    select(downloads, "Downloads/note.txt");
    clean(downloads);
    select(downloads, "Downloads/film.mov");
    session->cleanSelected(downloads);
    bool wasForgotten = false;
    QObject::connect(session.get(), &MacInsightsViewModel::resultsChanged, session.get(),
        [&] { wasForgotten = wasForgotten || !session->lastCleanResult(); });
    settle();
    EXPECT_TRUE(wasForgotten);
    EXPECT_EQ(session->lastCleanResult()->cleanedItems.front().candidate.displayName, "film.mov");
}

TEST_F(MacInsightsViewModelCleaningTest, KeepsWhatFailedInTheListAndSelected)
{
    scan();
    session->selectAll(downloads);
    trash.behaviour.failure = Platform::FileErrorKind::noTrash;
    clean(downloads);
    EXPECT_EQ(session->phase(), Phase::finished);
    EXPECT_EQ(session->errorMessage(), kFailed);
    EXPECT_EQ(session->selectedFiles(downloads), session->selectableFiles(downloads));
    EXPECT_THAT(session->lastCleanResult()->failedItems, SizeIs(4));
}

TEST_F(MacInsightsViewModelCleaningTest, ForgetsTheFailureOfTheCleanBefore)
{
    scan();
    session->selectAll(downloads);
    trash.behaviour.failure = Platform::FileErrorKind::noTrash;
    clean(downloads);
    ASSERT_EQ(session->errorMessage(), kFailed);
    trash.behaviour.failure.reset();
    session->cleanSelected(downloads);
    EXPECT_EQ(session->errorMessage(), std::nullopt) << "from its beginning";
    settle();
    EXPECT_EQ(session->phase(), Phase::finished);
    EXPECT_EQ(trashedCount(), 4);
    EXPECT_EQ(session->errorMessage(), std::nullopt);
}

TEST_F(MacInsightsViewModelCleaningTest, TellsEachTimeThatNothingIsEligible)
{
    scan();
    std::filesystem::rename(tree.path("home/Documents"), tree.path("home/Aside"));
    std::vector<std::optional<std::string>> messages;
    QObject::connect(session.get(), &MacInsightsViewModel::errorMessageChanged, session.get(),
        [&] { messages.push_back(session->errorMessage()); });
    for (int time = 0; time < 2; ++time) {
        select(largeFiles, "Documents/thesis.pdf");
        clean(largeFiles);
    }
    EXPECT_THAT(messages, ElementsAre(kNoLongerEligible, std::nullopt, kNoLongerEligible));
}

TEST_F(MacInsightsViewModelCleaningTest, SaysWhatItIsGivenToSay)
{
    scan();
    session->selectAll(downloads);
    trash.behaviour.failure = Platform::FileErrorKind::noTrash;
    session->cleanSelected(downloads, "failed", "cancelled");
    settle();
    EXPECT_EQ(session->errorMessage(), "failed");
    session->cleanSelected(downloads, "failed", "cancelled");
    session->cancelCurrentOperation();
    settle();
    EXPECT_EQ(session->errorMessage(), "cancelled");
}

TEST_F(MacInsightsViewModelCleaningTest, ToldToStopBeforeItBeganMovesNothing)
{
    scan();
    session->selectAll(downloads);
    session->cleanSelected(downloads);
    session->cancelCurrentOperation();
    EXPECT_EQ(session->phase(), Phase::cleaning);
    settle();
    EXPECT_EQ(session->phase(), Phase::ready);
    EXPECT_EQ(session->lastCleanResult(), CleanResult{.wasCancelled = true});
    EXPECT_EQ(session->errorMessage(), kCancelled);
    EXPECT_EQ(trashedCount(), 0);
    ASSERT_THAT(session->auditEntries(), SizeIs(1));
    EXPECT_TRUE(session->auditEntries().front().wasCancelled);
    EXPECT_EQ(session->auditEntries().front().requestedItemCount, 4);
    EXPECT_EQ(session->selectedCount(), 4);
}

TEST_F(MacInsightsViewModelCleaningTest, ToldToStopInTheMiddleTellsWhatWasMoved)
{
    scan();
    session->selectAll(downloads);
    trash.behaviour.afterMove = [this] { session->cancelCurrentOperation(); };
    clean(downloads);
    EXPECT_EQ(session->phase(), Phase::ready);
    EXPECT_THAT(session->lastCleanResult()->cleanedItems, SizeIs(1));
    EXPECT_TRUE(session->lastCleanResult()->wasCancelled);
    EXPECT_EQ(session->errorMessage(), kCancelled);
    EXPECT_EQ(trashedCount(), 1);
    EXPECT_THAT(session->files(downloads), SizeIs(4));
    EXPECT_THAT(session->auditEntries(), SizeIs(1));
}

TEST_F(MacInsightsViewModelCleaningTest, CountsAsCancelledThoughItsResultWasOnTheWay)
{
    scan();
    session->selectAll(downloads);
    session->cleanSelected(downloads);
    executor.runOne();
    session->cancelCurrentOperation();
    settle();
    EXPECT_THAT(session->lastCleanResult()->cleanedItems, SizeIs(4));
    EXPECT_TRUE(session->lastCleanResult()->wasCancelled);
    EXPECT_EQ(session->errorMessage(), kCancelled);
    EXPECT_EQ(session->phase(), Phase::ready);
}

TEST_F(MacInsightsViewModelCleaningTest, IsDroppedWholeWhenAScanReplacesIt)
{
    scan();
    session->selectAll(downloads);
    session->cleanSelected(downloads);
    executor.runOne();
    session->scan(std::nullopt);
    settle();
    EXPECT_EQ(trashedCount(), 4);
    EXPECT_EQ(session->lastCleanResult(), std::nullopt);
    EXPECT_THAT(session->auditEntries(), IsEmpty());
    EXPECT_THAT(paths(session->files(downloads)), ElementsAre("Downloads/setup.sh"));
    EXPECT_EQ(session->phase(), Phase::ready);
}

TEST_F(MacInsightsViewModelCleaningTest, IsDroppedWholeWhenResultsAreCleared)
{
    scan();
    session->selectAll(downloads);
    session->cleanSelected(downloads);
    executor.runOne();
    session->clearScanResults();
    settle();
    EXPECT_EQ(session->phase(), Phase::idle);
    EXPECT_EQ(session->lastCleanResult(), std::nullopt);
    EXPECT_THAT(session->auditEntries(), IsEmpty());
}

TEST_F(MacInsightsViewModelCleaningTest, KeepsWhatWasSelectedWhileItRan)
{
    scan();
    select(downloads, "Downloads/note.txt");
    session->cleanSelected(downloads);
    executor.runOne();
    select(largeFiles, "Documents/thesis.pdf");
    select(downloads, "Downloads/film.mov");
    settle();
    EXPECT_THAT(paths(session->selectedFiles(downloads)), ElementsAre("Downloads/film.mov"));
    EXPECT_THAT(paths(session->selectedFiles(largeFiles)), ElementsAre("Documents/thesis.pdf"));
    EXPECT_EQ(session->selectedBytes(),
        file(downloads, "Downloads/film.mov").sizeBytes + file(largeFiles, "Documents/thesis.pdf").sizeBytes);
}

TEST_F(MacInsightsViewModelCleaningTest, CleansNoFileThatIsAnotherOneByNow)
{
    scan();
    select(downloads, "Downloads/note.txt");
    tree.remove("home/Downloads/note.txt");
    tree.add("home/Downloads/note.txt text=\"mine\" age=1d");
    clean(downloads);
    EXPECT_TRUE(stands("home/Downloads/note.txt"));
    EXPECT_THAT(session->lastCleanResult()->failedItems, SizeIs(1));
    EXPECT_EQ(session->errorMessage(), kFailed);
}

TEST_F(MacInsightsViewModelCleaningTest, MayBeDestroyedAtAnyMomentOfAClean)
{
    const std::vector<void (MacInsightsViewModel::*)()> signals{&MacInsightsViewModel::resultsChanged,
        &MacInsightsViewModel::reportChanged, &MacInsightsViewModel::auditEntriesChanged,
        &MacInsightsViewModel::phaseChanged};
    for (std::size_t moment = 0; moment < 2 + signals.size(); ++moment) {
        restart();
        tree.add("home/Downloads/again" + std::to_string(moment) + " size=4K");
        scan();
        session->selectAll(downloads);
        session->cleanSelected(downloads);
        if (moment == 1) {
            executor.runOne();
        } else if (moment > 1) {
            QObject::connect(session.get(), signals[moment - 2], qApp, [&] { session.reset(); });
            settle();
            EXPECT_EQ(session, nullptr);
        }
        session.reset();
        settle();
    }
    // What was under way when the session had its result is in the log. The results change once more before it has it.
    EXPECT_THAT(auditStore.loadEntries(), SizeIs(3));
}

} // namespace MacInsightsViewModelTests
