#include "Tests/KarvelloUI/Screens/Evidence/EvidenceFixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <filesystem>
#include <gmock/gmock.h>

namespace EvidenceTests {

using CleanerCore::CleaningMode;
using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupAuditOperation;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;
using History = CleanupHistoryList;

class EvidenceScreenModelTest : public EvidenceTest {
protected:
    /// Entries of the log, which the application finds when it is started again.
    void startOverWith(std::vector<CleanupAuditEntry> entries)
    {
        const CleanerCore::CleanupAuditStore store(
            fileManager, CleanerCore::CleanupAuditStore::defaultFileURL(environment));
        store.replaceEntries(std::move(entries), CleanerCore::CleanupAuditStore::defaultLimit);
        reopen();
    }
    [[nodiscard]] CleanupAuditEntry entryAt(double seconds) const
    {
        return {.id = Platform::UUID::random(),
            .occurredAt = now.addingSeconds(seconds),
            .mode = CleaningMode::moveToTrash,
            .requestedItemCount = 4,
            .requestedBytes = 4 * 1'048'576,
            .succeededItemCount = 3,
            .failedItemCount = 1,
            .affectedBytes = 3 * 1'048'576};
    }
};

TEST_F(EvidenceScreenModelTest, TellsMovedBytesFromRecoveredOnes)
{
    EXPECT_THAT(evidence->notice().toStdString(), StartsWith("Bytes moved to Trash are not the same as recovered"));
    EXPECT_EQ(evidence->title().toStdString(), "Review & Evidence");
}

TEST_F(EvidenceScreenModelTest, HasAnEmptyHistoryAtFirst)
{
    EXPECT_EQ(evidence->history()->rows()->rowCount(), 0);
    EXPECT_EQ(evidence->history()->emptyText().toStdString(), "No cleanup activity has been recorded yet.");
    EXPECT_FALSE(evidence->impactReport()->hasReport());
}

TEST_F(EvidenceScreenModelTest, SaysThatTheHistoryIsBeingRead)
{
    evidence.reset();
    dashboard.reset();
    restartWithoutSettling(fileManager);
    dashboard->selectSection(MacDashboardSection::reviewEvidence);
    evidence = std::make_unique<EvidenceScreenModel>(*dashboard);
    EXPECT_TRUE(evidence->history()->isLoading());
    EXPECT_EQ(evidence->history()->emptyText().toStdString(), "Loading cleanup history…");
    EXPECT_FALSE(evidence->history()->exportMenu()->isEnabled());
    settle();
    EXPECT_FALSE(evidence->history()->isLoading());
    EXPECT_TRUE(evidence->history()->exportMenu()->isEnabled());
}

TEST_F(EvidenceScreenModelTest, ShowsTheNewestEntryFirstAndKeepsTheOthers)
{
    startOverWith({entryAt(-1000), entryAt(-2000)});
    const QAbstractItemModelTester tester(
        evidence->history()->rows(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    evidence->history()->setOpen(0, true);
    const QSignalSpy resets(evidence->history()->rows(), &QAbstractItemModel::modelReset);
    clean();
    ASSERT_EQ(evidence->history()->rows()->rowCount(), 3);
    EXPECT_EQ(resets.count(), 0);
    EXPECT_THAT(entry(0, History::summaryRole), StartsWith("Cleanup dashboard · 3 succeeded, 0 failed · "));
    EXPECT_THAT(entry(1, History::summaryRole), StartsWith("Cleanup dashboard · 3 succeeded, 1 failed · 3 MB"));
}

TEST_F(EvidenceScreenModelTest, SaysWhatBecameOfTheBytesOfEachEntry)
{
    auto cancelled = entryAt(-300);
    cancelled.succeededItemCount = 0;
    cancelled.wasCancelled = true;
    auto deleted = entryAt(-400);
    deleted.mode = CleaningMode::deletePermanently;
    auto restored = entryAt(-500);
    restored.operation = CleanupAuditOperation::restore;
    restored.mode.reset();
    startOverWith({entryAt(-200), cancelled, deleted, restored});
    EXPECT_EQ(entry(0, History::pillRole), "Moved to Trash");
    EXPECT_EQ(entry(1, History::pillRole), "");
    EXPECT_THAT(entry(1, History::summaryRole), HasSubstr("cancelled"));
    EXPECT_EQ(entry(2, History::pillRole), "Recovered");
    EXPECT_EQ(entry(3, History::pillRole), "Restored");
    EXPECT_EQ(entry(3, History::titleRole), "Restore");
    EXPECT_EQ(entry(0, History::pillKindRole), std::to_string(static_cast<int>(KarvelloPillKind::caution)));
}

TEST_F(EvidenceScreenModelTest, ReadsAnEntryAsTheCatalogueDoes)
{
    startOverWith({entryAt(-200)});
    EXPECT_THAT(entry(0, History::accessibleNameRole),
        AllOf(StartsWith("Clean, Cleanup dashboard, "), HasSubstr("3 succeeded, 1 failed")));
}

TEST_F(EvidenceScreenModelTest, TellsTheReasonsOfAnEntryAndWhatTheLogDidNotKeep)
{
    auto old = entryAt(-200);
    old.succeededItemCount = 30;
    old.failureReasons = {"The item is in use.", "/home/ada/secret cannot be moved"};
    old.cleanedItems = {{.candidate = CleanerCore::CleanupCandidate(
                             {.url = tree.url("home/.cache/" + DashboardTests::kHostileName), .sizeBytes = 5}),
        .destinationURL = tree.url("Trash/a")}};
    old = old.storageSafeForAuditPersistence();
    History history(*dashboard);
    history.show({old});
    history.setOpen(0, true);
    EXPECT_TRUE(history.index(0).data(History::isOpenRole).toBool());
    const auto details = history.index(0).data(History::detailsRole).toStringList();
    ASSERT_EQ(details.size(), 4);
    EXPECT_EQ(details[0].toStdString(), "The item is in use.");
    EXPECT_EQ(details[1].toStdString(), "The history keeps no reason that names a path.");
    EXPECT_THAT(details[2].toStdString(),
        AllOf(StartsWith("~/.cache/" + DashboardTests::kShownHostileName), HasSubstr("5 bytes")));
    EXPECT_EQ(details[3].toStdString(), "The history keeps no list of 29 more items.");
}

TEST_F(EvidenceScreenModelTest, OpensNoEntryWithoutDetails)
{
    startOverWith({entryAt(-200)});
    evidence->history()->setOpen(0, true);
    EXPECT_FALSE(evidence->history()->rows()->index(0, 0).data(History::isOpenRole).toBool());
}

TEST_F(EvidenceScreenModelTest, ClaimsNoRecoveryForAMoveToTheTrash)
{
    startOverWith({entryAt(-200)});
    ASSERT_TRUE(evidence->impactReport()->hasReport());
    EXPECT_EQ(bar(0).label.toStdString(), "Expected move");
    EXPECT_DOUBLE_EQ(bar(0).fraction, 1);
    EXPECT_EQ(bar(1).label.toStdString(), "Moved to Trash");
    EXPECT_DOUBLE_EQ(bar(1).fraction, 0.75);
    EXPECT_EQ(bar(1).kind, ImpactBar::pending);
    EXPECT_EQ(bar(2).label.toStdString(), "Actually recovered");
    EXPECT_EQ(bar(2).value.toStdString(), "Not reclaimed yet");
    EXPECT_DOUBLE_EQ(bar(2).fraction, 0);
    EXPECT_THAT(evidence->impactReport()->summary().toStdString(), StartsWith("3 of 4 requested items moved to Trash"));
    EXPECT_THAT(evidence->impactReport()->accessibleName().toStdString(), StartsWith("Before / After Report, "));
}

TEST_F(EvidenceScreenModelTest, CountsADeletionAsRecoveredAndTellsWhatIsLeft)
{
    auto deleted = entryAt(-200);
    deleted.mode = CleaningMode::deletePermanently;
    startOverWith({deleted});
    EXPECT_EQ(bar(1).kind, ImpactBar::recovered);
    EXPECT_EQ(bar(2).label.toStdString(), "Not reclaimed");
    EXPECT_EQ(bar(2).value.toStdString(), "1 MB");
    EXPECT_DOUBLE_EQ(bar(2).fraction, 0.25);
}

TEST_F(EvidenceScreenModelTest, HasNoBarWhereNothingWasExpected)
{
    auto none = entryAt(-200);
    none.requestedBytes = 0;
    startOverWith({none});
    for (int index = 0; index < 3; ++index) {
        EXPECT_DOUBLE_EQ(bar(index).fraction, 0) << index;
    }
    EXPECT_THAT(evidence->impactReport()->summary().toStdString(), HasSubstr("Move percentage unavailable"));
}

TEST_F(EvidenceScreenModelTest, ReportsTheNewestCleanAndNoRestore)
{
    auto restored = entryAt(-100);
    restored.operation = CleanupAuditOperation::restore;
    restored.mode.reset();
    startOverWith({restored});
    EXPECT_FALSE(evidence->impactReport()->hasReport());
    startOverWith({restored, entryAt(-200)});
    EXPECT_TRUE(evidence->impactReport()->hasReport());
}

TEST_F(EvidenceScreenModelTest, TellsWhatTheLastRunsLeftAloneAndWhy)
{
    EXPECT_FALSE(evidence->lastClean()->hasResult());
    scan();
    // One of them changes between the scan and the clean.
    tree.add("home/.cache/pip/newer size=1K");
    dashboard->selectSection(MacDashboardSection::cleanup);
    dashboard->cleaner().selectAllCandidates();
    dashboard->requestCleanSelected();
    dashboard->cleanSelected();
    settle();
    dashboard->selectSection(MacDashboardSection::reviewEvidence);
    ASSERT_TRUE(evidence->lastClean()->hasResult());
    EXPECT_EQ(evidence->lastClean()->title().toStdString(), "Last Cleanup: Trash Move");
    const auto failed = dashboard->cleaner().lastCleanResult()->failedItems.size();
    EXPECT_EQ(evidence->lastClean()->failedItems()->rowCount(), static_cast<int>(failed));
}

TEST_F(EvidenceScreenModelTest, TellsTheReasonOfEachItemThatWasNotRestored)
{
    clean();
    // Something has taken an item's old place.
    const std::string path = dashboard->cleaner().lastCleanResult()->cleanedItems[0].candidate.url.path();
    std::filesystem::create_directories(path);
    center->selectAll();
    center->restore();
    settle();
    auto* const result = evidence->lastRestore();
    ASSERT_TRUE(result->hasResult());
    EXPECT_EQ(result->title().toStdString(), "Last Restore");
    EXPECT_EQ(result->subtitle().toStdString(), "2 restored, 1 failed");
    EXPECT_EQ(result->failedTitle().toStdString(), "Not restored");
    ASSERT_EQ(result->failedItems()->rowCount(), 1);
    const auto row = result->failedItems()->index(0, 0);
    EXPECT_THAT(row.data(FailedItemList::pathRole).toString().toStdString(), StartsWith("~/.cache/"));
    EXPECT_FALSE(row.data(FailedItemList::reasonRole).toString().isEmpty());
    EXPECT_EQ(
        evidence->errorText().toStdString(), "Some items could not be restored from Trash. Review the result details.");
    evidence->closeError();
    EXPECT_TRUE(evidence->errorText().isEmpty());
}

TEST_F(EvidenceScreenModelTest, ShowsTheSameFailureAgainThoughItWasClosed)
{
    scan();
    const auto pip = dashboard->cleaner().report().candidates.front();
    defaults.failAllSaves();
    for (int time = 0; time < 2; ++time) {
        dashboard->cleaner().ignoreCandidate(pip);
        EXPECT_THAT(evidence->errorText().toStdString(), StartsWith("Could not save ignored cleanup items"));
        evidence->closeError();
        settle();
        EXPECT_TRUE(evidence->errorText().isEmpty());
    }
    EXPECT_EQ(defaults.failureCount(), 2U);
}

TEST_F(EvidenceScreenModelTest, TellsHowFarARestoreIsAndStopsIt)
{
    clean();
    center->selectAll();
    EXPECT_TRUE(evidence->workTitle().isEmpty());
    center->restore();
    EXPECT_EQ(evidence->workTitle().toStdString(), "Restoring items from Trash…");
    evidence->cancelWork();
    settle();
    EXPECT_TRUE(evidence->workTitle().isEmpty());
    EXPECT_TRUE(dashboard->cleaner().lastRestoreResult()->wasCancelled);
    EXPECT_EQ(trashedCount(), 3);
}

TEST_F(EvidenceScreenModelTest, FollowsTheLanguageAtOnce)
{
    clean();
    const QSignalSpy words(evidence.get(), &EvidenceScreenModel::wordsChanged);
    ASSERT_TRUE(preferences->setLanguage(AppLanguage::german));
    EXPECT_EQ(words.count(), 1);
    EXPECT_EQ(evidence->title().toStdString(), "Überprüfung & Befunde");
    EXPECT_EQ(bar(1).label.toStdString(), "In den Papierkorb gelegt");
    EXPECT_EQ(entry(0, History::pillRole), "In den Papierkorb gelegt");
}

} // namespace EvidenceTests
