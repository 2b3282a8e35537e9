#include "Tests/KarvelloUI/Screens/Home/HomeFixture.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

namespace HomeTests {

using testing::HasSubstr;

class ReviewLoopModelTest : public HomeTest {
protected:
    ReviewLoopModel& loop() { return *home->reviewLoop(); }
};

TEST_F(ReviewLoopModelTest, OffersEachCadenceAndProfileInItsOrder)
{
    ASSERT_EQ(loop().cadences().size(), 3);
    EXPECT_EQ(loop().cadences().at(2).toMap().value(QStringLiteral("value")), QStringLiteral("monthly"));
    EXPECT_EQ(loop().cadences().at(2).toMap().value(QStringLiteral("text")), QStringLiteral("Every 30 days"));
    ASSERT_EQ(loop().profiles().size(), 3);
    EXPECT_EQ(loop().profiles().at(0).toMap().value(QStringLiteral("text")), QStringLiteral("Balanced review"));
    EXPECT_EQ(loop().cadence(), QStringLiteral("off"));
    EXPECT_EQ(loop().profileIndex(), 0);
    EXPECT_EQ(loop().statusText(), QStringLiteral("Review cadence is off."));
}

TEST_F(ReviewLoopModelTest, StoresWhatIsChosen)
{
    loop().chooseCadence(QStringLiteral("weekly"));
    loop().chooseProfile(QStringLiteral("developerCaches"));
    EXPECT_EQ(loop().cadence(), QStringLiteral("weekly"));
    EXPECT_EQ(loop().profileIndex(), 2);
    EXPECT_EQ(loop().statusText(), QStringLiteral("Complete one review to calculate the next reminder."));
    EXPECT_EQ(loop().guardrail(), QStringLiteral("Aggressive review still does not auto-select items."));
    EXPECT_THAT(loop().profileSummary().toStdString(), HasSubstr("Aggressive scan"));
    EXPECT_EQ(defaults.string("karvello.cleanupReviewLoop.cadence"), "weekly");
    EXPECT_EQ(defaults.string("karvello.cleanupReviewLoop.selectedProfileID"), "developerCaches");
    loop().chooseCadence(QStringLiteral("hourly"));
    EXPECT_EQ(loop().cadence(), QStringLiteral("weekly"));
}

TEST_F(ReviewLoopModelTest, BecomesDueWhileSomebodyLooks)
{
    loop().chooseCadence(QStringLiteral("weekly"));
    loop().markReviewed();
    now = now.addingSeconds(1);
    sample();
    EXPECT_EQ(loop().statusText(), QStringLiteral("Next review in 7 days."));
    EXPECT_THAT(loop().lastReviewText().toStdString(), HasSubstr("Last reviewed: "));
    EXPECT_FALSE(loop().isDue());
    now = now.addingSeconds(6 * 86400.0);
    sample();
    EXPECT_EQ(loop().statusText(), QStringLiteral("Next review in 1 day."));
    now = now.addingSeconds(86400);
    sample();
    EXPECT_TRUE(loop().isDue());
    EXPECT_THAT(loop().statusText().toStdString(), HasSubstr("Safety review is due."));
}

TEST_F(ReviewLoopModelTest, IsUpToDateWhenItComesBackOnShow)
{
    loop().chooseCadence(QStringLiteral("weekly"));
    loop().markReviewed();
    dashboard->selectSection(MacDashboardSection::settings);
    now = now.addingSeconds(8 * 86400.0);
    dashboard->selectSection(MacDashboardSection::reviewEvidence);
    EXPECT_TRUE(loop().isDue());
}

TEST_F(ReviewLoopModelTest, SaysThatAChoiceCouldNotBeSavedAndKeepsTheOldOne)
{
    defaults.failAllSaves();
    loop().chooseCadence(QStringLiteral("weekly"));
    EXPECT_EQ(loop().cadence(), QStringLiteral("off"));
    EXPECT_EQ(loop().failureText(), QStringLiteral("The choice could not be saved."));
    EXPECT_EQ(defaults.failureCount(), 1);
    loop().markReviewed();
    EXPECT_EQ(loop().lastReviewText(), QString());
    defaults.failNoSave();
    loop().chooseCadence(QStringLiteral("monthly"));
    EXPECT_EQ(loop().cadence(), QStringLiteral("monthly"));
    EXPECT_EQ(loop().failureText(), QString());
}

TEST_F(ReviewLoopModelTest, TakesOverWhatAnotherPanelOrProcessHasStored)
{
    const QSignalSpy changes(&loop(), &ReviewLoopModel::changed);
    ASSERT_TRUE(dashboard->reviewPreferences().setCadence(CleanupReviewCadence::monthly));
    EXPECT_EQ(loop().cadence(), QStringLiteral("monthly"));
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(ReviewLoopModelTest, CountsTheRulesThatItRespects)
{
    scan();
    dashboard->cleaner().ignoreCandidate(dashboard->cleaner().report().candidates.front());
    settle();
    EXPECT_THAT(loop().profileSummary().toStdString(), HasSubstr("respects 1 ignored/snoozed item"));
}

class ProjectPanelModelTest : public HomeTest {
protected:
    ProjectPanelModel& panel() { return *home->projects(); }
};

TEST_F(ProjectPanelModelTest, SaysHowToGetThereWithoutAProject)
{
    EXPECT_FALSE(panel().hasProjects());
    EXPECT_EQ(panel().emptyTitle(), QStringLiteral("No project scan evidence yet"));
    EXPECT_THAT(panel().emptyText().toStdString(), HasSubstr("Add a project folder in Settings"));
    addProjects();
    EXPECT_THAT(panel().emptyText().toStdString(), HasSubstr("Run a manual scan for the added folder"));
}

TEST_F(ProjectPanelModelTest, ShowsWhatAScanOfTheAddedFoldersFound)
{
    addProjects();
    scan();
    ASSERT_TRUE(panel().hasProjects());
    EXPECT_EQ(figure(0).value, QStringLiteral("1"));
    EXPECT_EQ(figure(0).name, QStringLiteral("Projects"));
    EXPECT_EQ(figure(1).value, QStringLiteral("1"));
    ASSERT_EQ(panel().projects()->count(), 1);
    EXPECT_EQ(project(0).name, QStringLiteral("node_modules"));
    EXPECT_EQ(project(0).path, QStringLiteral("~/Projects/atlas"));
    EXPECT_THAT(project(0).detail.toStdString(), testing::StartsWith("Local dependency folder · Last changed about"));
    EXPECT_THAT(project(0).note.toStdString(), HasSubstr("Verify lockfiles"));
}

TEST_F(ProjectPanelModelTest, ShowsThreeFoldersAndCountsAll)
{
    tree.add("home/Projects/beta/target/x size=8K age=100d\n"
             "home/Projects/gamma/build/x size=8K age=40d\n"
             "home/Projects/delta/dist/x size=8K age=100d\n"
             "home/Projects/delta/.next/x size=8K age=100d\n");
    addProjects();
    for (const auto* const name : {"home/Projects/beta/", "home/Projects/gamma/", "home/Projects/delta/"}) {
        ASSERT_TRUE(dashboard->customFolders().addFolder(tree.url(name), fileManager, now));
    }
    scan();
    EXPECT_EQ(panel().projects()->count(), 3);
    EXPECT_EQ(figure(0).value, QStringLiteral("4"));
}

TEST_F(ProjectPanelModelTest, ShowsHostileNamesAsTextAlone)
{
    tree.add("home/" + std::string(DashboardTests::kHostileNameOfTree) + "/node_modules/x size=8K age=100d\n");
    ASSERT_TRUE(
        dashboard->customFolders().addFolder(tree.url("home/" + DashboardTests::kHostileName + "/"), fileManager, now));
    scan();
    ASSERT_EQ(panel().projects()->count(), 1);
    EXPECT_THAT(project(0).path.toStdString(), testing::StartsWith("~/" + DashboardTests::kShownHostileName));
    EXPECT_EQ(project(0).name.toStdString().find('\n'), std::string::npos);
}

TEST_F(ProjectPanelModelTest, LeadsToReviewAndSettings)
{
    panel().openReview();
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::cleanup);
    panel().openSettings();
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::settings);
}

TEST(RowList, TouchesOnlyTheRowsThatChange)
{
    RowList list;
    list.show(std::vector<NamedValue>{{.value = QStringLiteral("1")}, {.value = QStringLiteral("2")}});
    const QSignalSpy changes(&list, &QAbstractItemModel::dataChanged);
    const QSignalSpy resets(&list, &QAbstractItemModel::modelReset);
    const QSignalSpy insertions(&list, &QAbstractItemModel::rowsInserted);
    const QSignalSpy removals(&list, &QAbstractItemModel::rowsRemoved);
    list.show(std::vector<NamedValue>{
        {.value = QStringLiteral("1")}, {.value = QStringLiteral("3")}, {.value = QStringLiteral("4")}});
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes.at(0).at(0).toModelIndex().row(), 1);
    EXPECT_EQ(insertions.count(), 1);
    list.show(std::vector<NamedValue>{{.value = QStringLiteral("1")}});
    EXPECT_EQ(removals.count(), 1);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(resets.count(), 0);
    EXPECT_EQ(list.count(), 1);
}

} // namespace HomeTests
