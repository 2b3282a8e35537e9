#include "KarvelloUI/Controls/NamedValue.h"
#include "Tests/KarvelloUI/Screens/Cleanup/CleanupFixture.h"

#include <gmock/gmock.h>

namespace CleanupTests {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using testing::UnorderedElementsAre;

class CleanupScreenModelTest : public CleanupTest {
protected:
    std::string placeholder(const char* name) const
    {
        return screen->placeholder()[QString::fromLatin1(name)].toString().toStdString();
    }
};

TEST_F(CleanupScreenModelTest, WaitsForAScan)
{
    EXPECT_EQ(screen->face(), Face::Idle);
    EXPECT_EQ(placeholder("title"), "Ready to scan");
    EXPECT_EQ(screen->scanText().toStdString(), "Start New Scan");
    EXPECT_TRUE(screen->canScan());
    EXPECT_FALSE(screen->canFilter());
    EXPECT_EQ(screen->selectionTitle().toStdString(), "No items selected");
}

TEST_F(CleanupScreenModelTest, AsksForTheHomeFolderWithoutAccess)
{
    isDirectDistribution = false;
    restartAll();
    EXPECT_EQ(screen->face(), Face::Denied);
    EXPECT_FALSE(screen->canScan());
    EXPECT_EQ(placeholder("action"), "Grant Access to Scan");
    screen->followPlaceholder();
    ASSERT_TRUE(fileDialogs.isOpen());
    fileDialogs.answer(tree.url("home/"));
    EXPECT_EQ(screen->face(), Face::Scanning) << "the button says that it is for a scan";
    settle();
    EXPECT_EQ(screen->face(), Face::List);
}

TEST_F(CleanupScreenModelTest, ScansNothingWhenTheHomeFolderIsNotGranted)
{
    isDirectDistribution = false;
    restartAll();
    screen->grantAccess();
    fileDialogs.answer(std::nullopt);
    EXPECT_EQ(screen->face(), Face::Denied);
    screen->grantAccess();
    screen.reset();
    fileDialogs.answer(tree.url("home/"));
    EXPECT_EQ(session().phase(), CleanerViewModel::Phase::idle);
}

TEST_F(CleanupScreenModelTest, TellsHowFarAScanIs)
{
    dashboard->selectSection(MacDashboardSection::cleanup);
    screen->scan();
    EXPECT_EQ(screen->face(), Face::Scanning);
    EXPECT_TRUE(screen->isBusy());
    EXPECT_EQ(screen->progressTitle().toStdString(), "Scanning safe default locations…");
    EXPECT_LT(screen->progress(), 0);
    EXPECT_THAT(screen->figures(), testing::SizeIs(4));
    EXPECT_FALSE(hasBanner());
    screen->cancel();
    settle();
    EXPECT_EQ(screen->face(), Face::Idle);
}

TEST_F(CleanupScreenModelTest, ListsWhatWasFound)
{
    scanForCleanup();
    EXPECT_EQ(screen->face(), Face::List);
    EXPECT_THAT(rows(), UnorderedElementsAre("pip", "yarn", "old.log"));
    EXPECT_EQ(screen->scanText().toStdString(), "Scan Again");
    EXPECT_EQ(screen->summary().toStdString(), "3 items · 112 KB");
    EXPECT_THAT(screen->scannedAt().toStdString(), StartsWith("Last scan · current session · "));
    EXPECT_EQ(screen->skippedText().toStdString(), "3 skipped");
    EXPECT_THAT(screen->ignoredText().toStdString(), IsEmpty());
}

TEST_F(CleanupScreenModelTest, TellsOfEachCandidate)
{
    scanForCleanup();
    const auto row = content(rowOf("pip"));
    EXPECT_EQ(row.path.toStdString(), "~/Library/Caches/pip");
    EXPECT_EQ(row.size.toStdString(), "64 KB");
    EXPECT_EQ(content(rowOf("old.log")).age.toStdString(), "20 days");
    EXPECT_EQ(row.pillText.toStdString(), "Safe");
    EXPECT_THAT(row.reason.toStdString(), HasSubstr("regenerate"));
    EXPECT_THAT(row.warning.toStdString(), IsEmpty());
    EXPECT_THAT(value<QString>(rowOf("pip"), CleanupListModel::spokenRole).toStdString(),
        StartsWith("Cleanup candidate pip. Safety: Safe. Size: 64 KB."));
}

TEST_F(CleanupScreenModelTest, PutsSectionsUnderHeads)
{
    scanForCleanup();
    screen->setGrouping(QStringLiteral("category"));
    EXPECT_THAT(rows(), ElementsAre("[User Caches]", "pip", "yarn", "[User Logs]", "old.log"));
    const auto caches = head(0);
    EXPECT_EQ(caches.count.toStdString(), "2 items");
    EXPECT_EQ(caches.total.toStdString(), "96 KB");
    EXPECT_EQ(caches.note.toStdString(), "Auto-selected");
    EXPECT_EQ(caches.checkState, Qt::Checked);
    EXPECT_EQ(screen->list()->headOf(2).value<CleanupSectionHead>().name.toStdString(), "User Caches");
}

TEST_F(CleanupScreenModelTest, TogglesOneCandidateAndItsHead)
{
    scanForCleanup();
    screen->setGrouping(QStringLiteral("category"));
    screen->toggle(rowOf("pip"));
    EXPECT_THAT(selectedNames(), UnorderedElementsAre("yarn", "old.log"));
    EXPECT_EQ(head(0).checkState, Qt::PartiallyChecked);
    EXPECT_EQ(screen->selectionTitle().toStdString(), "2 selected · 48 KB");
    EXPECT_EQ(screen->selectionState(), Qt::PartiallyChecked);
    screen->toggle(rowOf("pip"));
    EXPECT_EQ(head(0).checkState, Qt::Checked);
    EXPECT_EQ(screen->selectionState(), Qt::Checked);
}

TEST_F(CleanupScreenModelTest, TogglesTheVisibleRowsOfASection)
{
    scanForCleanup();
    screen->setGrouping(QStringLiteral("category"));
    screen->setSearchText(QStringLiteral("yarn"));
    const auto id = head(0).id;
    screen->toggleSection(id);
    EXPECT_THAT(selectedNames(), UnorderedElementsAre("pip", "old.log"));
    screen->toggleSection(id);
    EXPECT_THAT(selectedNames(), UnorderedElementsAre("pip", "yarn", "old.log"));
}

TEST_F(CleanupScreenModelTest, ChecksAllOfAHalfCheckedSection)
{
    scanForCleanup();
    screen->setGrouping(QStringLiteral("category"));
    screen->toggle(rowOf("pip"));
    screen->toggleSection(head(0).id);
    EXPECT_EQ(head(0).checkState, Qt::Checked);
}

TEST_F(CleanupScreenModelTest, ClosesASectionWithoutHidingItFromTheSelection)
{
    scanForCleanup();
    screen->setGrouping(QStringLiteral("category"));
    screen->setSectionOpen(head(0).id, false);
    EXPECT_THAT(rows(), ElementsAre("[User Caches]", "[User Logs]", "old.log"));
    EXPECT_FALSE(head(0).isOpen);
    EXPECT_EQ(screen->selectionTitle().toStdString(), "3 selected · 112 KB");
    EXPECT_EQ(screen->summary().toStdString(), "3 items · 112 KB");
    screen->clearSelection();
    EXPECT_EQ(head(0).checkState, Qt::Unchecked);
    screen->setSectionOpen(head(0).id, true);
    EXPECT_THAT(rows(), ElementsAre("[User Caches]", "pip", "yarn", "[User Logs]", "old.log"));
}

TEST_F(CleanupScreenModelTest, CountsSelectedItemsThatAFilterHides)
{
    scanForCleanup();
    screen->setSearchText(QStringLiteral("pip"));
    EXPECT_THAT(rows(), ElementsAre("pip"));
    EXPECT_EQ(screen->selectionTitle().toStdString(), "3 selected · 112 KB · includes 2 hidden items");
    screen->toggle(0);
    EXPECT_EQ(screen->selectionTitle().toStdString(), "2 selected · 48 KB · includes 2 hidden items");
    EXPECT_EQ(screen->summary().toStdString(), "1 / 3 items · 112 KB");
}

TEST_F(CleanupScreenModelTest, SaysSoWhenNothingPassesTheFilters)
{
    scanForCleanup();
    screen->setSearchText(QStringLiteral("nothing of the kind"));
    EXPECT_TRUE(screen->isEverythingFiltered());
    EXPECT_EQ(screen->face(), Face::List);
    screen->clearFilters();
    EXPECT_FALSE(screen->isEverythingFiltered());
    EXPECT_THAT(screen->searchText().toStdString(), IsEmpty());
}

TEST_F(CleanupScreenModelTest, FiltersByCategoryAndSafety)
{
    scanForCleanup();
    ASSERT_THAT(screen->categories(), testing::SizeIs(3));
    screen->setCategory(QStringLiteral("userLogs"));
    EXPECT_THAT(rows(), ElementsAre("old.log"));
    EXPECT_EQ(screen->category().toStdString(), "userLogs");
    screen->setCategory({});
    screen->setSafety(QStringLiteral("safe"));
    EXPECT_THAT(rows(), testing::SizeIs(3));
    EXPECT_EQ(screen->safety().toStdString(), "safe");
}

TEST_F(CleanupScreenModelTest, SelectsAndClearsAllHiddenOnesToo)
{
    scanForCleanup();
    screen->setSearchText(QStringLiteral("pip"));
    screen->clearSelection();
    EXPECT_FALSE(screen->hasSelection());
    screen->selectAll();
    EXPECT_THAT(selectedNames(), testing::SizeIs(3));
    EXPECT_FALSE(screen->canSelectAll());
    screen->toggleAll();
    EXPECT_FALSE(screen->hasSelection());
    screen->toggleAll();
    EXPECT_EQ(screen->selectionState(), Qt::Checked);
}

TEST_F(CleanupScreenModelTest, MovesNothingWithoutAConfirmation)
{
    scanForCleanup();
    screen->askToClean();
    settle();
    EXPECT_TRUE(dashboard->isShowingCleanConfirmation());
    EXPECT_EQ(trashedCount(), 0);
}

TEST_F(CleanupScreenModelTest, TellsWhatACleanDidAndLeadsToTheEvidence)
{
    scanForCleanup();
    screen->askToClean();
    dashboard->cleanSelected();
    EXPECT_TRUE(screen->isMoving());
    EXPECT_EQ(screen->face(), Face::List);
    screen->toggle(0);
    screen->clearSelection();
    EXPECT_TRUE(screen->hasSelection());
    settle();
    EXPECT_EQ(trashedCount(), 3);
    ASSERT_TRUE(hasBanner());
    EXPECT_EQ(banner().kind, CleanupBanner::accent);
    EXPECT_THAT(banner().text.toStdString(), StartsWith("3 moved to Trash, 0 failed"));
    screen->followBanner();
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::reviewEvidence);
    screen->closeBanner();
    EXPECT_FALSE(hasBanner());
}

TEST_F(CleanupScreenModelTest, SaysGoodNewsWhenThereIsNothingToClean)
{
    std::filesystem::remove_all(tree.path("home/Library/Caches/pip"));
    std::filesystem::remove_all(tree.path("home/Library/Caches/yarn"));
    std::filesystem::remove_all(tree.path("home/Library/Logs/old.log"));
    scanForCleanup();
    EXPECT_EQ(screen->face(), Face::Empty);
    EXPECT_EQ(placeholder("title"), "No cleanup candidates");
    std::vector<std::string> skipped;
    for (int row = 0; row < screen->skipped()->rowCount(); ++row) {
        const auto index = screen->skipped()->index(row);
        skipped.push_back(screen->skipped()->data(index, SkippedListModel::pathRole).toString().toStdString() + ": "
            + screen->skipped()->data(index, SkippedListModel::reasonRole).toString().toStdString());
    }
    EXPECT_THAT(skipped, testing::Contains("~/Library/Caches/fresh: Recently modified"));
}

TEST_F(CleanupScreenModelTest, ShowsAFailureUntilItIsClosed)
{
    scanForCleanup();
    screen->askToClean();
    std::filesystem::remove_all(tree.path("home/Library/Caches/pip"));
    dashboard->cleanSelected();
    settle();
    ASSERT_TRUE(hasBanner());
    EXPECT_EQ(banner().kind, CleanupBanner::review);
    EXPECT_EQ(banner().text.toStdString(), "Some items could not be cleaned. Review the result details.");
    EXPECT_TRUE(banner().canClose);
    screen->closeBanner();
    ASSERT_TRUE(hasBanner());
    EXPECT_EQ(banner().kind, CleanupBanner::accent);
}

TEST_F(CleanupScreenModelTest, ShowsTheSameFailureAgainThoughItWasClosed)
{
    scanForCleanup();
    defaults.failAllSaves();
    for (int time = 0; time < 2; ++time) {
        screen->snooze(rowOf("pip"), QStringLiteral("oneDay"));
        ASSERT_TRUE(hasBanner());
        EXPECT_THAT(banner().text.toStdString(), StartsWith("Could not save ignored cleanup items"));
        screen->closeBanner();
        EXPECT_FALSE(hasBanner());
        settle();
        EXPECT_FALSE(hasBanner());
    }
    EXPECT_EQ(defaults.failureCount(), 2U);
}

TEST_F(CleanupScreenModelTest, TellsOfPermissionsThatAreMissing)
{
    tree.add("home/Projects/lantern/build/a size=1K age=90d\n");
    ASSERT_TRUE(dashboard->customFolders().addFolder(tree.url("home/Projects/lantern/"), fileManager, now));
    std::filesystem::remove_all(tree.path("home/Projects/lantern"));
    scanForCleanup();
    ASSERT_TRUE(hasBanner());
    EXPECT_EQ(banner().kind, CleanupBanner::caution);
    screen->followBanner();
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::settings);
    screen->closeBanner();
    EXPECT_FALSE(hasBanner());
}

TEST_F(CleanupScreenModelTest, HidesACandidateForAsLongAsItAllows)
{
    scanForCleanup();
    const auto choices = screen->snoozesOf(rowOf("pip"));
    ASSERT_THAT(choices, testing::SizeIs(3));
    screen->snooze(rowOf("pip"), QStringLiteral("oneDay"));
    EXPECT_THAT(rows(), UnorderedElementsAre("yarn", "old.log"));
    EXPECT_THAT(selectedNames(), UnorderedElementsAre("yarn", "old.log"));
    EXPECT_EQ(screen->ignoredText().toStdString(), "1 hidden");
    ASSERT_EQ(screen->ignored()->rowCount(), 1);
    EXPECT_EQ(screen->ignored()->data(screen->ignored()->index(0), IgnoredItemList::nameRole).toString().toStdString(),
        "pip");
    screen->showAgain(0);
    EXPECT_EQ(screen->ignored()->rowCount(), 0);
    EXPECT_THAT(screen->ignoredText().toStdString(), IsEmpty());
}

TEST_F(CleanupScreenModelTest, TellsWhyACandidateIsListed)
{
    scanForCleanup();
    const auto facts = screen->factsOf(rowOf("pip"));
    ASSERT_GE(facts.size(), 2);
    EXPECT_EQ(facts[0].value<NamedValue>().value.toStdString(), tree.path("home/Library/Caches/pip"));
    EXPECT_EQ(facts[1].value<NamedValue>().name.toStdString(), "Why is this listed?");
    EXPECT_THAT(screen->factsOf(99), IsEmpty());
}

TEST_F(CleanupScreenModelTest, ShowsAnItemInTheFileManager)
{
    scanForCleanup();
    screen->reveal(rowOf("pip"));
    EXPECT_THAT(fileViewer.selected, ElementsAre(tree.path("home/Library/Caches/pip")));
}

TEST_F(CleanupScreenModelTest, OpensDetailsOfACandidateThatStays)
{
    scanForCleanup();
    screen->setOpen(rowOf("yarn"), true);
    screen->snooze(rowOf("pip"), QStringLiteral("oneDay"));
    EXPECT_TRUE(screen->isRowOpen(rowOf("yarn")));
    screen->setOpen(rowOf("yarn"), false);
    EXPECT_FALSE(screen->isRowOpen(rowOf("yarn")));
}

TEST_F(CleanupScreenModelTest, FollowsTheLanguage)
{
    scanForCleanup();
    ASSERT_TRUE(preferences->setLanguage(AppLanguage::german));
    EXPECT_EQ(content(rowOf("pip")).pillText.toStdString(), "Sicher");
    EXPECT_EQ(screen->skippedText().toStdString(), "3 übersprungen");
    EXPECT_EQ(screen->scanText().toStdString(), "Erneut scannen");
}

TEST_F(CleanupScreenModelTest, IgnoresRowsThatAreNone)
{
    scanForCleanup();
    screen->toggle(-1);
    screen->toggle(99);
    screen->setOpen(99, true);
    screen->snooze(99, QStringLiteral("oneDay"));
    screen->snooze(0, QStringLiteral("forever"));
    screen->reveal(99);
    screen->showAgain(5);
    screen->toggleSection(QStringLiteral("no such section"));
    EXPECT_THAT(rows(), testing::SizeIs(3));
    EXPECT_THAT(selectedNames(), testing::SizeIs(3));
}

} // namespace CleanupTests
