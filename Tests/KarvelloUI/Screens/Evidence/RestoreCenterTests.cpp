#include "Tests/KarvelloUI/Screens/Evidence/EvidenceFixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <filesystem>
#include <gmock/gmock.h>

namespace EvidenceTests {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using List = RestoreCenterList;

class RestoreCenter : public EvidenceTest {
protected:
    void SetUp() override
    {
        m_tester = std::make_unique<QAbstractItemModelTester>(
            center->rows(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    }
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

TEST_F(RestoreCenter, IsEmptyBeforeAnythingWasMoved)
{
    EXPECT_TRUE(center->isEmpty());
    EXPECT_EQ(center->emptyTitle().toStdString(), "Nothing to restore");
    EXPECT_FALSE(center->offersRestore());
    EXPECT_FALSE(center->canRestore());
    EXPECT_TRUE(center->ledgerNote().isEmpty());
}

TEST_F(RestoreCenter, ListsWhatACleanMovedAndSelectsNothing)
{
    clean();
    ASSERT_EQ(count(), 3);
    EXPECT_EQ(center->eligibleText().toStdString(), "3 eligible items");
    EXPECT_THAT(center->summary().toStdString(), StartsWith("3 recently cleaned · 3 recorded Trash moves"));
    for (int row = 0; row < 3; ++row) {
        EXPECT_TRUE(value(row, List::isSelectableRole).toBool());
        EXPECT_FALSE(value(row, List::isSelectedRole).toBool());
        EXPECT_EQ(text(row, List::statusRole), "Restore details recorded — select to try restoring");
        EXPECT_THAT(text(row, List::pathRole), StartsWith("~/.cache/"));
        EXPECT_THAT(text(row, List::trashLocationRole), StartsWith("Trash location: "));
    }
}

TEST_F(RestoreCenter, ReadsARowAsNameSizePlaceAndStatus)
{
    clean();
    EXPECT_THAT(text(0, List::accessibleNameRole),
        AllOf(StartsWith(text(0, List::nameRole) + ", " + text(0, List::sizeRole) + " · Trash location: "),
            HasSubstr(text(0, List::pathRole)), testing::EndsWith("select to try restoring")));
}

TEST_F(RestoreCenter, CountsWhatIsSelected)
{
    clean();
    const QSignalSpy changes(center->rows(), &QAbstractItemModel::dataChanged);
    center->toggle(keyOf(1));
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 1);
    EXPECT_EQ(changes[0][1].toModelIndex().row(), 1);
    EXPECT_EQ(center->checkState(), Qt::PartiallyChecked);
    EXPECT_THAT(center->selectionHint().toStdString(), StartsWith("1 of 3 eligible items selected."));
    EXPECT_EQ(center->restoreTitle().toStdString(), "Try Restoring 1 Selected Item");
    EXPECT_TRUE(center->canRestore());
    center->toggle(keyOf(1));
    EXPECT_EQ(center->checkState(), Qt::Unchecked);
    EXPECT_FALSE(center->canRestore());
}

TEST_F(RestoreCenter, SelectsAllAndNone)
{
    clean();
    center->toggleAll();
    EXPECT_EQ(center->checkState(), Qt::Checked);
    EXPECT_EQ(dashboard->restoreCenterSelectedIDs().size(), 3U);
    center->toggleAll();
    EXPECT_EQ(center->checkState(), Qt::Unchecked);
    center->selectAll();
    center->clearSelection();
    EXPECT_THAT(dashboard->restoreCenterSelectedIDs(), IsEmpty());
}

TEST_F(RestoreCenter, PutsTheSelectedItemsBackAndKeepsTheOthers)
{
    clean();
    const int staying = keyOf(2);
    const std::string name = text(2, List::nameRole);
    center->toggle(keyOf(0));
    center->toggle(keyOf(1));
    const QSignalSpy resets(center->rows(), &QAbstractItemModel::modelReset);
    center->restore();
    EXPECT_TRUE(center->isRestoring());
    settle();
    ASSERT_EQ(count(), 1);
    EXPECT_EQ(keyOf(0), staying);
    EXPECT_EQ(text(0, List::nameRole), name);
    EXPECT_EQ(resets.count(), 0);
    EXPECT_EQ(trashedCount(), 1);
    EXPECT_THAT(dashboard->restoreCenterSelectedIDs(), IsEmpty());
    EXPECT_FALSE(center->canRestore());
}

TEST_F(RestoreCenter, IsEmptyOnceEverythingIsBack)
{
    clean();
    center->selectAll();
    center->restore();
    settle();
    EXPECT_TRUE(center->isEmpty());
    EXPECT_EQ(trashedCount(), 0);
    EXPECT_TRUE(stands("home/.cache/pip/wheel"));
}

TEST_F(RestoreCenter, SelectsNothingWhileTheSessionWorks)
{
    clean();
    dashboard->scanCleanup();
    EXPECT_FALSE(center->canSelect());
    center->toggle(keyOf(0));
    center->selectAll();
    EXPECT_THAT(dashboard->restoreCenterSelectedIDs(), IsEmpty());
    settle();
}

TEST_F(RestoreCenter, ShowsTheLogAfterANewStartAndRestoresNothingOfIt)
{
    clean();
    reopen();
    SetUp();
    ASSERT_EQ(count(), 3);
    EXPECT_FALSE(center->offersRestore());
    EXPECT_TRUE(center->eligibleText().isEmpty());
    EXPECT_TRUE(center->selectionHint().isEmpty());
    EXPECT_THAT(center->ledgerNote().toStdString(), StartsWith("Loaded from Cleanup dashboard history on "));
    EXPECT_EQ(text(0, List::statusRole), "History record — reveal-only; current-session restore is disabled");
    center->toggle(keyOf(0));
    center->selectAll();
    center->restore();
    settle();
    EXPECT_EQ(trashedCount(), 3);
}

TEST_F(RestoreCenter, ForgetsASelectionAmongOtherRows)
{
    scan();
    dashboard->cleaner().clearSelection();
    dashboard->cleaner().setSelected(dashboard->cleaner().report().candidates.front(), true);
    cleanSelected();
    ASSERT_EQ(count(), 1);
    center->selectAll();
    dashboard->cleaner().selectAllCandidates();
    cleanSelected();
    ASSERT_EQ(count(), 2);
    EXPECT_EQ(center->checkState(), Qt::Unchecked);
    EXPECT_THAT(dashboard->restoreCenterSelectedIDs(), IsEmpty());
}

TEST_F(RestoreCenter, DisablesARowWithoutRestoreDetails)
{
    clean();
    auto result = *dashboard->cleaner().lastCleanResult();
    result.cleanedItems[0].restoreSourceIdentity.reset();
    result.cleanedItems[1].destinationURL.reset();
    List list(*dashboard);
    list.show(CleanerCore::CleanupRestoreCenterSnapshot(result));
    list.setSelected({result.cleanedItems[0].candidate.id, result.cleanedItems[2].candidate.id});
    EXPECT_EQ(list.selectableCount(), 1);
    EXPECT_EQ(list.selectedCount(), 1);
    EXPECT_EQ(list.index(0).data(List::statusRole).toString().toStdString(),
        "Restore details missing — visible for review but disabled");
    EXPECT_FALSE(list.index(1).data(List::hasTrashLocationRole).toBool());
    EXPECT_EQ(list.index(1).data(List::trashLocationRole).toString().toStdString(), "Trash location unavailable");
    EXPECT_FALSE(list.row(list.index(0).data(List::keyRole).toInt())->isSelected);
}

TEST_F(RestoreCenter, RemovesRowsFromAnyPlace)
{
    clean();
    auto result = *dashboard->cleaner().lastCleanResult();
    const auto one = result.cleanedItems.front();
    result.cleanedItems.clear();
    for (int number = 0; number < 8; ++number) {
        result.cleanedItems.push_back(one);
        result.cleanedItems.back().candidate.id = std::to_string(number);
    }
    List list(*dashboard);
    const QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::Fatal);
    list.show(CleanerCore::CleanupRestoreCenterSnapshot(result));
    list.setSelected({"0", "5", "7"});
    EXPECT_EQ(list.selectedCount(), 3);
    auto fewer = result;
    std::erase_if(fewer.cleanedItems, [](const auto& item) {
        return item.candidate.id != "1" && item.candidate.id != "2" && item.candidate.id != "5";
    });
    EXPECT_EQ(list.show(CleanerCore::CleanupRestoreCenterSnapshot(fewer)), List::Outcome::fewer);
    ASSERT_EQ(list.rowCount(), 3);
    EXPECT_EQ(list.rows()[2].item.candidate.id, "5");
    EXPECT_EQ(list.selectedCount(), 1);
    EXPECT_EQ(list.selectableCount(), 3);
    EXPECT_EQ(list.row(0), nullptr);
}

TEST_F(RestoreCenter, RevealsTheOldPlaceAndThePlaceInTheTrash)
{
    clean();
    center->revealTrashLocation(keyOf(0));
    ASSERT_EQ(fileViewer.selected.size(), 1U);
    EXPECT_THAT(fileViewer.selected[0], StartsWith(tree.path("Trash")));
    // It has gone from there, so the folder is opened.
    center->revealOriginal(keyOf(0));
    ASSERT_EQ(fileViewer.opened.size(), 1U);
    EXPECT_THAT(fileViewer.opened[0], HasSubstr(".cache"));
    center->revealOriginal(12'345);
    EXPECT_EQ(fileViewer.opened.size(), 1U);
}

TEST_F(RestoreCenter, FollowsTheLanguageAtOnce)
{
    clean();
    ASSERT_TRUE(preferences->setLanguage(AppLanguage::german));
    EXPECT_EQ(center->title().toStdString(), dashboard->words().restoreCenterTitle());
    EXPECT_EQ(text(0, List::statusRole), dashboard->words().restoreCenterReadyStatus());
    EXPECT_EQ(center->eligibleText().toStdString(), "3 wiederherstellbare Objekte");
    EXPECT_EQ(center->summary().toStdString(),
        dashboard->words().restoreCenterSummary(dashboard->cleaner().restoreCenterSnapshot()));
}

TEST_F(RestoreCenter, ShowsHostileNamesAndActsOnTheirBytes)
{
    clean();
    auto result = *dashboard->cleaner().lastCleanResult();
    auto& candidate = result.cleanedItems[0].candidate;
    const std::string name = DashboardTests::kHostileName + std::string(200, 'x');
    const std::string shownName = DashboardTests::kShownHostileName + std::string(200, 'x');
    candidate.url = tree.url("home/.cache/" + name);
    candidate.displayName = name;
    candidate.id = "temporaryFiles:" + candidate.url.path();
    List list(*dashboard);
    list.show(CleanerCore::CleanupRestoreCenterSnapshot(result));
    list.setSelected({candidate.id});
    EXPECT_EQ(list.selectedCount(), 1);
    EXPECT_EQ(list.index(0).data(List::nameRole).toString().toStdString(), shownName);
    EXPECT_EQ(list.index(0).data(List::pathRole).toString().toStdString(), "~/.cache/" + shownName);
    EXPECT_THAT(list.index(0).data(List::accessibleNameRole).toString().toStdString(), StartsWith(shownName));
    EXPECT_EQ(list.row(0)->item.candidate.url.path(), candidate.url.path());
}

} // namespace EvidenceTests
