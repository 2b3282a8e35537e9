#include "KarvelloUI/Stores/HomeAccessSecurityScope.h"
#include "Tests/KarvelloUI/Sessions/MacInsightsViewModelFixture.h"
#include "Tests/Support/RecordingBookmarks.h"

#include <algorithm>
#include <stdexcept>

namespace MacInsightsViewModelTests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

} // namespace

TEST_F(MacInsightsViewModelTest, TellsHowFarItsScanIsUntilThatEnds)
{
    std::int64_t visited = 0;
    std::int64_t completed = 0;
    QObject::connect(session.get(), &MacInsightsViewModel::progressChanged, session.get(), [&] {
        const auto& progress = session->scanProgress();
        visited = std::max(visited, progress.visitedItems);
        completed = std::max(completed, progress.completedRoots);
        EXPECT_LE(progress.completedRoots, progress.totalRoots);
    });
    scan();
    EXPECT_GT(visited, 0);
    EXPECT_GE(completed, std::ssize(session->report().heatmapItems) - 1);
    EXPECT_EQ(session->scanProgress().totalRoots, 0);
}

TEST_F(MacInsightsViewModelTest, StartsIdleAndEmpty)
{
    EXPECT_EQ(session->phase(), Phase::idle);
    EXPECT_FALSE(session->isBusy());
    EXPECT_EQ(session->report(),
        CleanerCore::MacStorageInsightReport({.scannedAt = now, .systemSnapshot = session->currentSystemSnapshot()}));
    EXPECT_EQ(session->currentSystemSnapshot().uptime, 1);
    EXPECT_THAT(session->selectedIDs(), IsEmpty());
    EXPECT_EQ(session->selectedBytes(), 0);
    EXPECT_EQ(session->lastCleanResult(), std::nullopt);
    EXPECT_EQ(session->errorMessage(), std::nullopt);
    EXPECT_TRUE(session->isAuditLogLoaded());
    EXPECT_EQ(session->systemMetricHistory(), SystemMetricHistory());
    EXPECT_THAT(session->duplicateReviewGroups(), IsEmpty());
}

TEST_F(MacInsightsViewModelTest, ShowsWhatAScanFoundWithNothingSelected)
{
    session->scan(std::nullopt);
    EXPECT_EQ(session->phase(), Phase::scanning);
    EXPECT_TRUE(session->isBusy());
    settle();
    EXPECT_EQ(session->phase(), Phase::ready);
    EXPECT_THAT(paths(session->files(largeFiles)),
        ElementsAre("Downloads/film.mov", "Library/Application Support/engine.bin", "Documents/disc.img",
            "Downloads/disc.img", "Documents/thesis.pdf"));
    EXPECT_THAT(paths(session->files(downloads)),
        ElementsAre("Downloads/film.mov", "Downloads/disc.img", "Downloads/photo.jpg", "Downloads/setup.sh",
            "Downloads/note.txt"));
    EXPECT_THAT(paths(session->files(duplicates)),
        ElementsAre("Documents/photo.jpg", "Pictures/copy.jpg", "Downloads/photo.jpg", "Documents/disc.img",
            "Downloads/disc.img", "Library/Application Support/first.part", "Library/Application Support/second.part"));
    EXPECT_THAT(paths(session->files(security)), ElementsAre("Downloads/setup.sh"));
    EXPECT_THAT(session->selectedIDs(), IsEmpty());
    EXPECT_THAT(session->report().heatmapItems, SizeIs(4));
    EXPECT_THAT(session->activeScan().locations, SizeIs(3));
    EXPECT_EQ(session->activeScan().homeDirectory, tree.url("home/"));
}

TEST_F(MacInsightsViewModelTest, KeepsTheSelectionToFilesThatMayBeCleaned)
{
    scan();
    EXPECT_THAT(paths(session->selectableFiles(largeFiles)),
        ElementsAre("Downloads/film.mov", "Downloads/disc.img", "Documents/thesis.pdf"));
    EXPECT_THAT(paths(session->selectableFiles(downloads)),
        ElementsAre("Downloads/film.mov", "Downloads/disc.img", "Downloads/photo.jpg", "Downloads/note.txt"));
    EXPECT_THAT(paths(session->selectableFiles(duplicates)),
        ElementsAre("Pictures/copy.jpg", "Downloads/photo.jpg", "Downloads/disc.img"));
    EXPECT_THAT(session->selectableFiles(security), IsEmpty());
}

TEST_F(MacInsightsViewModelTest, NeverSelectsAKeeper)
{
    scan();
    for (const auto section : {duplicates, largeFiles}) {
        select(section, "Documents/disc.img");
        EXPECT_FALSE(session->isSelectable(file(section, "Documents/disc.img")));
    }
    EXPECT_THAT(session->selectedIDs(), IsEmpty());
    EXPECT_TRUE(session->isDuplicateKeeper(file(duplicates, "Documents/disc.img")));
    EXPECT_FALSE(session->isDuplicateKeeper(file(duplicates, "Downloads/disc.img")));
}

TEST_F(MacInsightsViewModelTest, NeverSelectsASecurityFinding)
{
    scan();
    for (const auto section : {security, downloads}) {
        select(section, "Downloads/setup.sh");
        EXPECT_FALSE(session->isSelectable(file(section, "Downloads/setup.sh")));
    }
    session->selectAll(security);
    EXPECT_THAT(session->selectedIDs(), IsEmpty());
}

TEST_F(MacInsightsViewModelTest, NeverSelectsWhatTheReportDoesNotHold)
{
    scan();
    session->setSelected(FileInsight({.url = tree.url("home/Downloads/other"), .detail = "Large file"}), true);
    EXPECT_THAT(session->selectedIDs(), IsEmpty());
}

TEST_F(MacInsightsViewModelTest, AddsUpWhatIsSelected)
{
    scan();
    select(largeFiles, "Downloads/film.mov");
    select(downloads, "Downloads/note.txt");
    EXPECT_EQ(session->selectedCount(), 2);
    EXPECT_EQ(session->selectedBytes(),
        file(largeFiles, "Downloads/film.mov").sizeBytes + file(downloads, "Downloads/note.txt").sizeBytes);
    session->setSelected(file(largeFiles, "Downloads/film.mov"), false);
    EXPECT_EQ(session->selectedCount(), 1);
    EXPECT_EQ(session->selectedBytes(), file(downloads, "Downloads/note.txt").sizeBytes);
}

TEST_F(MacInsightsViewModelTest, SelectsAndClearsSectionBySection)
{
    scan();
    session->selectAll(largeFiles);
    session->selectAll(downloads);
    EXPECT_EQ(session->selectedCount(), 7);
    // The same file in another list is another one.
    session->clearSelection(largeFiles);
    EXPECT_EQ(session->selectedCount(), 4);
    EXPECT_THAT(session->selectedFiles(largeFiles), IsEmpty());
    EXPECT_EQ(session->selectedFiles(downloads), session->selectableFiles(downloads));
    session->selectAll(duplicates);
    EXPECT_EQ(session->duplicateSelectedCount(), 3);
    EXPECT_EQ(session->duplicateSelectableCount(), 3);
    EXPECT_EQ(session->duplicateFileCount(), 7);
    session->clearSelection(duplicates);
    EXPECT_EQ(session->duplicateSelectedBytes(), 0);
    EXPECT_EQ(session->selectedCount(), 4);
}

TEST_F(MacInsightsViewModelTest, TellsOfAChangeOfTheSelectionAndOfNoneThatIsNone)
{
    scan();
    int changes = 0;
    QObject::connect(session.get(), &MacInsightsViewModel::selectionChanged, session.get(), [&] { ++changes; });
    select(largeFiles, "Downloads/film.mov");
    EXPECT_EQ(changes, 1);
    select(largeFiles, "Downloads/film.mov");
    select(security, "Downloads/setup.sh");
    session->clearSelection(downloads);
    EXPECT_EQ(changes, 1);
}

TEST_F(MacInsightsViewModelTest, DropsAScanThatASecondOneReplaces)
{
    int reports = 0;
    QObject::connect(session.get(), &MacInsightsViewModel::reportChanged, session.get(), [&] { ++reports; });
    session->scan(std::nullopt);
    executor.runAll();
    tree.remove("home/Downloads/film.mov");
    session->scan(std::nullopt);
    settle();
    EXPECT_EQ(reports, 1);
    EXPECT_THAT(session->files(largeFiles), SizeIs(4));
    EXPECT_EQ(session->phase(), Phase::ready);
    EXPECT_EQ(session->errorMessage(), std::nullopt);
    EXPECT_THAT(session->systemMetricHistory().cpuLoad(), SizeIs(1));
}

TEST_F(MacInsightsViewModelTest, KeepsTheSelectionOfWhatIsStillSelectable)
{
    scan();
    session->selectAll(largeFiles);
    session->selectAll(duplicates);
    // The one is gone, the other becomes a keeper.
    tree.remove("home/Downloads/film.mov");
    tree.remove("home/Documents/photo.jpg");
    scan();
    EXPECT_THAT(paths(session->selectedFiles(largeFiles)), ElementsAre("Downloads/disc.img", "Documents/thesis.pdf"));
    EXPECT_THAT(paths(session->selectedFiles(duplicates)), ElementsAre("Downloads/disc.img", "Downloads/photo.jpg"));
    EXPECT_EQ(session->selectedCount(), 4);
}

TEST_F(MacInsightsViewModelTest, KeepsWhatWasSelectedWhileTheScanRan)
{
    scan();
    session->selectAll(downloads);
    session->scan(std::nullopt);
    executor.runAll();
    session->clearSelection(downloads);
    select(duplicates, "Pictures/copy.jpg");
    select(largeFiles, "Downloads/film.mov");
    settle();
    EXPECT_THAT(session->selectedIDs(),
        UnorderedElementsAre(file(duplicates, "Pictures/copy.jpg").id, file(largeFiles, "Downloads/film.mov").id));
    EXPECT_EQ(session->duplicateSelectedCount(), 1);
    EXPECT_EQ(session->selectedBytes(),
        file(duplicates, "Pictures/copy.jpg").sizeBytes + file(largeFiles, "Downloads/film.mov").sizeBytes);
}

TEST_F(MacInsightsViewModelTest, ReturnsToThePreviousReportWhenAScanIsCancelled)
{
    scan();
    tree.remove("home/Downloads/film.mov");
    session->scan(std::nullopt);
    session->cancelCurrentOperation();
    EXPECT_EQ(session->phase(), Phase::ready);
    settle();
    EXPECT_EQ(session->phase(), Phase::ready);
    EXPECT_THAT(session->files(largeFiles), SizeIs(5));
}

TEST_F(MacInsightsViewModelTest, ReturnsToIdleWhenTheFirstScanIsCancelled)
{
    session->scan(std::nullopt);
    executor.runOne();
    session->cancelCurrentOperation();
    EXPECT_EQ(session->phase(), Phase::idle);
    settle();
    EXPECT_EQ(session->phase(), Phase::idle);
    EXPECT_THAT(session->report().heatmapItems, IsEmpty());
    EXPECT_EQ(session->systemMetricHistory(), SystemMetricHistory());
}

TEST_F(MacInsightsViewModelTest, IsReadyForAHomeWithNoneOfTheFolders)
{
    for (const auto* const folder : {"home/Library", "home/Documents", "home/Downloads", "home/Pictures"}) {
        tree.remove(folder);
    }
    scan();
    EXPECT_EQ(session->phase(), Phase::ready);
    // Without a bar on the map it has nothing to go back to.
    session->scan(std::nullopt);
    session->cancelCurrentOperation();
    EXPECT_EQ(session->phase(), Phase::idle);
}

TEST_F(MacInsightsViewModelTest, ForgetsEverythingOfAScanWhenCleared)
{
    scan();
    session->selectAll(largeFiles);
    trash.behaviour.failure = Platform::FileErrorKind::noTrash;
    clean(largeFiles);
    ASSERT_TRUE(session->errorMessage().has_value());
    session->scan(std::nullopt);
    session->clearScanResults();
    settle();
    EXPECT_EQ(session->phase(), Phase::idle);
    EXPECT_THAT(session->report().heatmapItems, IsEmpty());
    EXPECT_THAT(session->files(largeFiles), IsEmpty());
    EXPECT_THAT(session->selectedIDs(), IsEmpty());
    EXPECT_EQ(session->selectedBytes(), 0);
    EXPECT_THAT(session->duplicateReviewGroups(), IsEmpty());
    EXPECT_EQ(session->errorMessage(), std::nullopt);
    EXPECT_EQ(session->lastCleanResult(), std::nullopt);
    EXPECT_THAT(session->activeScan().locations, IsEmpty());
    EXPECT_THAT(session->auditEntries(), SizeIs(1));
}

TEST_F(MacInsightsViewModelTest, SaysWhyTheHomeCannotBeOpenedAndScansWhatItCan)
{
    enterSandbox();
    TestSupport::RecordingBookmarks refusing(bookmarks);
    refusing.refusesAccess = true;
    MacInsightsViewModel other(
        servicesWith(refusing), {.homeDirectory = tree.url("config/")}, auditStore, historyStore);
    other.scan(grantOfHome());
    settle();
    EXPECT_EQ(other.phase(), Phase::ready);
    EXPECT_EQ(other.errorMessage(), HomeAccessSecurityScope::unavailableReason);
    EXPECT_THAT(other.files(downloads), SizeIs(5));
    EXPECT_EQ(other.activeScan().homeDirectory, tree.url("home/"));

    // The next clean is held up by the same, item by item.
    other.selectAll(downloads);
    other.cleanSelected(downloads);
    settle();
    ASSERT_THAT(other.lastCleanResult()->failedItems, SizeIs(4));
    EXPECT_EQ(other.lastCleanResult()->failedItems.front().reason, HomeAccessSecurityScope::unavailableReason);
    EXPECT_THAT(trash.itemAnchors(), IsEmpty());
}

TEST_F(MacInsightsViewModelTest, OpensAccessToTheHomeForEachOperationAndClosesIt)
{
    TestSupport::RecordingBookmarks recording(bookmarks);
    MacInsightsViewModel other(
        servicesWith(recording), {.homeDirectory = tree.url("config/")}, auditStore, historyStore);
    other.scan(grantOfHome());
    settle();
    EXPECT_EQ(recording.startCount(), 1);
    EXPECT_EQ(recording.openCount(), 0);
    other.selectAll(downloads);
    other.cleanSelected(downloads);
    settle();
    EXPECT_EQ(recording.startCount(), 2);
    EXPECT_EQ(recording.openCount(), 0);
    EXPECT_EQ(other.errorMessage(), std::nullopt);
}

TEST_F(MacInsightsViewModelTest, MayBeDestroyedAtAnyMomentOfAScan)
{
    for (int moment = 0; moment < 4; ++moment) {
        restart();
        session->scan(std::nullopt);
        if (moment == 1) {
            executor.runOne();
        } else if (moment > 1) {
            const auto signal =
                moment == 2 ? &MacInsightsViewModel::reportChanged : &MacInsightsViewModel::systemMetricsChanged;
            QObject::connect(session.get(), signal, qApp, [&] { session.reset(); });
            settle();
            EXPECT_EQ(session, nullptr);
        }
        session.reset();
        settle();
    }
}

TEST_F(MacInsightsViewModelTest, AScanThatRunsOutOfMemoryIsAMessage)
{
    scan();
    MacInsightsViewModel other(services,
        {.homeDirectory = tree.url("home/"),
            .systemSnapshotProvider =
                [calls = 0]() mutable {
                    if (++calls > 1) {
                        throw std::runtime_error("no memory");
                    }
                    return CleanerCore::SystemResourceSnapshot();
                }},
        auditStore, historyStore);
    other.scan(std::nullopt);
    settle();
    EXPECT_EQ(other.phase(), Phase::idle);
    EXPECT_EQ(other.errorMessage(), "no memory");
}

} // namespace MacInsightsViewModelTests
