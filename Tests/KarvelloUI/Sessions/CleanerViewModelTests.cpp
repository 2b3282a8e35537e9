#include "Tests/KarvelloUI/Sessions/CleanerViewModelFixture.h"

#include <utility>

namespace CleanerViewModelTests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

} // namespace

TEST_F(CleanerViewModelTest, StartsIdleAndEmpty)
{
    EXPECT_EQ(session->phase(), Phase::idle);
    EXPECT_FALSE(session->isBusy());
    EXPECT_THAT(session->report().candidates, IsEmpty());
    EXPECT_EQ(session->selectedCount(), 0);
    EXPECT_EQ(session->errorMessage(), std::nullopt);
    EXPECT_EQ(session->lastCleanResult(), std::nullopt);
    EXPECT_EQ(session->lastRestoreResult(), std::nullopt);
    EXPECT_TRUE(session->isAuditLogLoaded());
    EXPECT_FALSE(session->canUndoLastTrashClean());
    EXPECT_THAT(session->activeScan().locations, IsEmpty());
    EXPECT_EQ(session->filters(), CandidateListFilters());
}

TEST_F(CleanerViewModelTest, ShowsWhatAScanFoundWithItsDefaultsSelected)
{
    session->scan({location("home/Caches/"),
        location("home/Logs/", CleanerCore::CleanupCategory::userLogs, CleanerCore::CleanupSafety::caution)});
    EXPECT_EQ(session->phase(), Phase::scanning);
    EXPECT_TRUE(session->isBusy());
    settle();
    EXPECT_EQ(session->phase(), Phase::ready);
    EXPECT_THAT(names(), ElementsAre("large", "middle", "small", "old.log"));
    EXPECT_EQ(session->selectedCount(), 3);
    EXPECT_FALSE(session->isSelected(candidate("old.log")));
    EXPECT_FALSE(session->selectionContainsNonSafe());
    EXPECT_EQ(session->scanProgress(), CleanerCore::StorageScanProgress::empty());
    EXPECT_THAT(session->activeScan().locations, SizeIs(2));
    EXPECT_THAT(session->activeScan().cleanupEligibilityPolicy.roots(), SizeIs(2));
}

TEST_F(CleanerViewModelTest, IsReadyWithoutAFindingToo)
{
    session->setFilters({.searchText = "x", .groupingMode = CandidateListGroupingMode::category});
    scan({location("home/Empty/")});
    EXPECT_EQ(session->phase(), Phase::ready);
    EXPECT_THAT(session->report().candidates, IsEmpty());
    EXPECT_EQ(session->filters(), CandidateListFilters{.groupingMode = CandidateListGroupingMode::category});
}

TEST_F(CleanerViewModelTest, TellsWhereAScanIs)
{
    std::vector<std::int64_t> found;
    QObject::connect(session.get(), &CleanerViewModel::progressChanged, session.get(),
        [&] { found.push_back(session->scanProgress().foundCandidates); });
    scanCaches();
    // The last of the scan, and then none of it.
    ASSERT_GE(found.size(), 2U);
    EXPECT_EQ(found[found.size() - 2], 3);
    EXPECT_EQ(found.back(), 0);
}

TEST_F(CleanerViewModelTest, DropsAScanThatASecondOneReplaces)
{
    int reports = 0;
    QObject::connect(session.get(), &CleanerViewModel::reportChanged, session.get(), [&] { ++reports; });
    session->scan({location("home/Caches/")});
    executor.runAll();
    session->scan({location("home/Logs/")});
    settle();
    EXPECT_EQ(reports, 1);
    EXPECT_THAT(names(), ElementsAre("old.log"));
    EXPECT_EQ(session->phase(), Phase::ready);
    EXPECT_EQ(session->errorMessage(), std::nullopt);
}

TEST_F(CleanerViewModelTest, ReturnsToThePreviousReportWhenAScanIsCancelled)
{
    scanCaches();
    session->scan({location("home/Logs/")});
    session->cancelCurrentOperation();
    EXPECT_EQ(session->phase(), Phase::ready);
    settle();
    EXPECT_EQ(session->phase(), Phase::ready);
    EXPECT_THAT(names(), ElementsAre("large", "middle", "small"));
    EXPECT_THAT(session->activeScan().locations, ElementsAre(location("home/Caches/")));
}

TEST_F(CleanerViewModelTest, ReturnsToIdleWhenTheFirstScanIsCancelled)
{
    session->scan({location("home/Caches/")});
    executor.runOne();
    session->cancelCurrentOperation();
    EXPECT_EQ(session->phase(), Phase::idle);
    settle();
    EXPECT_EQ(session->phase(), Phase::idle);
    EXPECT_THAT(session->report().candidates, IsEmpty());
}

TEST_F(CleanerViewModelTest, KeepsReportAndSelectionUntilTheNextResult)
{
    scanCaches();
    session->setSelected(candidate("small"), false);
    session->scan({location("home/Logs/")});
    EXPECT_THAT(names(), SizeIs(3));
    EXPECT_EQ(session->selectedCount(), 2);
}

TEST_F(CleanerViewModelTest, ForgetsEverythingOfAScanWhenCleared)
{
    scanCaches();
    session->snoozeCandidate(candidate("small"), CleanupIgnoreDuration::oneDay);
    session->scan({location("home/Logs/")});
    session->clearScanResults();
    settle();
    EXPECT_EQ(session->phase(), Phase::idle);
    EXPECT_THAT(session->report().candidates, IsEmpty());
    EXPECT_EQ(session->selectedCount(), 0);
    EXPECT_EQ(session->ignoredCandidateCount(), 0);
    EXPECT_THAT(session->ignoredItems(), SizeIs(1));
    EXPECT_THAT(session->activeScan().locations, IsEmpty());
    EXPECT_THAT(session->activeScan().cleanupEligibilityPolicy.roots(), IsEmpty());
}

TEST_F(CleanerViewModelTest, AsksForRunningApplicationsOnlyWhereACacheHasAnOwner)
{
    scanCaches();
    EXPECT_EQ(runningApplicationQuestions, 0);
    auto owned = location("home/Caches/");
    owned.appCacheContext =
        CleanerCore::AppCacheContext::seed(CleanerCore::AppCacheContainerKind::appContainer, "org.example.Editor");
    runningApplications.emplace_back(CleanerCore::AppCacheRunningApplicationIdentity::Fields{
        .displayName = "Editor", .bundleIdentifier = "org.example.Editor", .processIdentifier = 7});
    scan({owned});
    EXPECT_EQ(runningApplicationQuestions, 1);
    EXPECT_EQ(candidate("large").appCacheContext->runningState, CleanerCore::AppCacheRunningState::running);
}

TEST_F(CleanerViewModelTest, MayBeDestroyedAtAnyMomentOfAScan)
{
    for (int moment = 0; moment < 3; ++moment) {
        restart();
        session->scan({location("home/Caches/")});
        if (moment == 1) {
            executor.runOne();
        } else if (moment == 2) {
            QObject::connect(session.get(), &CleanerViewModel::reportChanged, qApp, [&] { session.reset(); });
            settle();
            EXPECT_EQ(session, nullptr);
        }
        session.reset();
        settle();
    }
}

TEST_F(CleanerViewModelTest, TellsOfASkippedFolderWhereAccessCannotBeOpened)
{
    enterSandbox();
    auto folder = CustomScanFolder::make(tree.url("home/Logs/"), fileManager, bookmarks, now);
    ASSERT_TRUE(folder.has_value());
    tree.remove("home/Logs");
    session->scanMac(CleanerCore::CleanupScanMode::standard, tree.url("home/"), {*folder}, std::nullopt, false);
    settle();
    EXPECT_EQ(session->phase(), Phase::ready);
    EXPECT_EQ(session->errorMessage(), std::nullopt);
    const auto& skipped = session->report().skippedItems;
    ASSERT_FALSE(skipped.empty());
    EXPECT_EQ(skipped.front().url.path(), tree.path("home/Logs"));
}

TEST_F(CleanerViewModelTest, ScansTheHomeWithTheFoldersOfTheUserLast)
{
    tree.add("home/.cache/thumbnails/normal/\n    t.png size=4K");
    auto folder = CustomScanFolder::make(tree.url("home/Logs/"), fileManager, bookmarks, now);
    ASSERT_TRUE(folder.has_value());
    session->scanMac(CleanerCore::CleanupScanMode::standard, tree.url("home/"), {*folder}, std::nullopt, false);
    settle();
    const auto& locations = session->activeScan().locations;
    ASSERT_GE(locations.size(), 2U);
    EXPECT_EQ(locations.back().rootURL.path(), tree.path("home/Logs"));
    EXPECT_EQ(locations.back().category, CleanerCore::CleanupCategory::customFolder);
    EXPECT_FALSE(session->isSelected(candidate("old.log")));
    EXPECT_TRUE(session->isSelected(candidate("t.png")));
}

TEST_F(CleanerViewModelTest, SelectsHiddenCandidatesWithTheRest)
{
    scan({location("home/Caches/"),
        location("home/Logs/", CleanerCore::CleanupCategory::userLogs, CleanerCore::CleanupSafety::caution)});
    session->setFilters({.category = CleanerCore::CleanupCategory::userLogs});
    EXPECT_EQ(session->selectedCount(), 3);
    session->selectAllCandidates();
    EXPECT_TRUE(session->areAllCandidatesSelected());
    EXPECT_TRUE(session->selectionContainsNonSafe());
    const auto visible = session->visibleCandidateIDs(KarvelloCopy{{{AppLanguage::english}}});
    EXPECT_THAT(visible, UnorderedElementsAre(candidate("old.log").id));
    EXPECT_EQ(session->review().selectionSnapshot(&visible).hiddenSelectedCount, 3);
    EXPECT_EQ(session->review().selectionSnapshot().hiddenSelectedCount, 0);
    session->clearSelection();
    EXPECT_FALSE(session->hasSelection());
}

TEST_F(CleanerViewModelTest, TakesASnoozedCandidateOutOfReportAndSelection)
{
    scanCaches();
    session->snoozeCandidate(candidate("small"), CleanupIgnoreDuration::oneDay);
    EXPECT_THAT(names(), ElementsAre("large", "middle"));
    EXPECT_EQ(session->selectedCount(), 2);
    EXPECT_EQ(session->ignoredCandidateCount(), 1);
    ASSERT_THAT(session->ignoredItems(), SizeIs(1));
    EXPECT_TRUE(stands("home/Caches/small/data"));
    scanCaches();
    EXPECT_THAT(names(), ElementsAre("large", "middle"));
    EXPECT_EQ(session->ignoredCandidateCount(), 1);
    now = now.addingSeconds(86'400);
    scanCaches();
    EXPECT_THAT(names(), SizeIs(3));
    EXPECT_EQ(session->ignoredCandidateCount(), 0);
    EXPECT_THAT(session->ignoredItems(), IsEmpty());
}

TEST_F(CleanerViewModelTest, HidesWhatWasIgnoredWhileTheScanRan)
{
    scanCaches();
    const auto small = candidate("small");
    session->scan({location("home/Caches/")});
    executor.runOne();
    ignoreStore.ignore(small, CleanupIgnoreDuration::oneDay, now);
    settle();
    EXPECT_THAT(names(), ElementsAre("large", "middle"));
}

TEST_F(CleanerViewModelTest, BringsAnIgnoredCandidateBackWithTheNextScan)
{
    scanCaches();
    session->ignoreCandidate(candidate("small"));
    const auto id = session->ignoredItems().front().id;
    EXPECT_EQ(session->ignoredItems().front().duration, CleanupIgnoreDuration::untilShownAgain);
    EXPECT_FALSE(session->removeIgnoredItem("unknown"));
    EXPECT_TRUE(session->removeIgnoredItem(id));
    EXPECT_EQ(session->ignoredCandidateCount(), 0);
    EXPECT_THAT(names(), SizeIs(2));
    scanCaches();
    EXPECT_THAT(names(), SizeIs(3));
}

TEST_F(CleanerViewModelTest, ForgetsAllIgnoredItemsAtOnce)
{
    scanCaches();
    session->ignoreCandidate(candidate("small"));
    session->ignoreCandidate(candidate("large"));
    session->clearIgnoredItems();
    EXPECT_EQ(session->ignoredCandidateCount(), 0);
    EXPECT_THAT(session->ignoredItems(), IsEmpty());
}

TEST_F(CleanerViewModelTest, KeepsACandidateWhoseRuleCannotBeStored)
{
    scanCaches();
    defaults.failAllSaves();
    session->ignoreCandidate(candidate("small"));
    EXPECT_GT(defaults.failureCount(), 0U);
    EXPECT_THAT(names(), SizeIs(3));
    EXPECT_EQ(session->ignoredCandidateCount(), 0);
    ASSERT_TRUE(session->errorMessage().has_value());
    EXPECT_THAT(*session->errorMessage(), testing::StartsWith("Could not save ignored cleanup items: "));
    // The store's recovery takes its own message back.
    defaults.failNoSave();
    session->ignoreCandidate(candidate("small"));
    EXPECT_EQ(session->errorMessage(), std::nullopt);
    EXPECT_THAT(names(), SizeIs(2));
}

TEST_F(CleanerViewModelTest, TellsTheSameFailureOfTheStoreAnewOnceItWasDismissed)
{
    scanCaches();
    std::vector<bool> told;
    QObject::connect(session.get(), &CleanerViewModel::errorMessageChanged, session.get(),
        [&] { told.push_back(session->errorMessage().has_value()); });
    defaults.failAllSaves();
    session->ignoreCandidate(candidate("small"));
    session->dismissError();
    settle();
    EXPECT_THAT(told, ElementsAre(true, false));
    EXPECT_EQ(ignoreStore.lastErrorMessage(), std::nullopt);
    session->ignoreCandidate(candidate("small"));
    settle();
    EXPECT_THAT(told, ElementsAre(true, false, true));
}

TEST_F(CleanerViewModelTest, LeavesTheStoreItsErrorWhenAnotherIsDismissed)
{
    scanCaches();
    defaults.failAllSaves();
    session->ignoreCandidate(candidate("small"));
    trash.behaviour.failure = Platform::FileErrorKind::noTrash;
    session->cleanSelected(CleanerCore::CleaningMode::moveToTrash);
    settle();
    ASSERT_TRUE(session->errorMessage().has_value());
    ASSERT_NE(session->errorMessage(), ignoreStore.lastErrorMessage());
    session->dismissError();
    EXPECT_EQ(session->errorMessage(), std::nullopt);
    EXPECT_TRUE(ignoreStore.lastErrorMessage().has_value());
}

TEST_F(CleanerViewModelTest, LeavesTheErrorOfAnotherOperationToIt)
{
    scanCaches();
    trash.behaviour.failure = Platform::FileErrorKind::noTrash;
    session->cleanSelected(CleanerCore::CleaningMode::moveToTrash);
    settle();
    const auto message = session->errorMessage();
    ASSERT_TRUE(message.has_value());
    session->ignoreCandidate(candidate("small"));
    EXPECT_EQ(session->errorMessage(), message);
}

TEST_F(CleanerViewModelTest, HearsOfTheIgnoreStoresOwnErrors)
{
    defaults.failAllSaves();
    ignoreStore.ignore(CleanupCandidate(CleanupCandidate::Fields{.url = tree.url("home/Caches/small")}),
        CleanupIgnoreDuration::oneDay, now);
    EXPECT_EQ(session->errorMessage(), std::nullopt);
    settle();
    EXPECT_TRUE(session->errorMessage().has_value());
}

} // namespace CleanerViewModelTests
