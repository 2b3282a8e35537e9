#include "Tests/KarvelloUI/Screens/Settings/SettingsFixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <gmock/gmock.h>

namespace DashboardTests {

using testing::HasSubstr;

class SettingsIgnoreModelTest : public SettingsTest {
protected:
    using Role = IgnoredItemList::Role;

    [[nodiscard]] SettingsIgnoreModel& group() const { return *screen->ignoreList(); }
    [[nodiscard]] std::string text(int row, Role role) const { return said(group().rows(), row, role); }
};

TEST_F(SettingsIgnoreModelTest, SaysWhatIsHiddenAndForHowLong)
{
    const QAbstractItemModelTester tester(group().rows(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(group().count(), 0);
    EXPECT_EQ(group().emptyText(), QStringLiteral("No ignored cleanup candidates."));
    ignore("home/.cache/a", CleanupIgnoreDuration::untilShownAgain, 2'048);
    now = now.addingSeconds(1);
    ignore("home/.cache/b", CleanupIgnoreDuration::oneDay);
    ASSERT_EQ(group().count(), 2);
    EXPECT_EQ(text(0, Role::pathRole), "~/.cache/b");
    EXPECT_THAT(text(0, Role::durationRole), HasSubstr("Locally hidden from cleanup review until "));
    EXPECT_EQ(text(1, Role::sizeRole), "2 KB");
    EXPECT_EQ(text(1, Role::durationRole), "Locally hidden from cleanup review until you show it again.");
    EXPECT_EQ(group().countText(), QStringLiteral("2 hidden items"));
}

TEST_F(SettingsIgnoreModelTest, ShowsOnlyRulesThatHold)
{
    ignore("home/.cache/a", CleanupIgnoreDuration::oneDay);
    ignore("home/.cache/b");
    now = now.addingSeconds(86'400);
    dashboard->selectSection(MacDashboardSection::cleanup);
    dashboard->selectSection(MacDashboardSection::settings);
    ASSERT_EQ(group().count(), 1);
    EXPECT_EQ(text(0, Role::pathRole), "~/.cache/b");
}

TEST_F(SettingsIgnoreModelTest, ShowsACandidateAgainAndLeavesTheOtherRowsWhereTheyAre)
{
    for (const char* const path : {"home/a", "home/b", "home/c"}) {
        ignore(path);
        now = now.addingSeconds(1);
    }
    const QSignalSpy resets(group().rows(), &QAbstractItemModel::modelReset);
    const QSignalSpy removals(group().rows(), &QAbstractItemModel::rowsRemoved);
    group().showAgain(1);
    EXPECT_EQ(removals.count(), 1);
    EXPECT_EQ(resets.count(), 0);
    ASSERT_EQ(group().count(), 2);
    EXPECT_EQ(text(0, Role::pathRole), "~/c");
    EXPECT_EQ(text(1, Role::pathRole), "~/a");
    EXPECT_EQ(dashboard->cleaner().ignoredItems().size(), 2U);
    group().showAgain(2);
    group().showAgain(-1);
    EXPECT_EQ(group().count(), 2);
}

TEST_F(SettingsIgnoreModelTest, ClearsTheList)
{
    ignore("home/a");
    ignore("home/b");
    group().clear();
    EXPECT_EQ(group().count(), 0);
    reopen();
    EXPECT_EQ(group().count(), 0);
}

TEST_F(SettingsIgnoreModelTest, KeepsARuleThatCannotBeRemovedAndSaysWhy)
{
    ignore("home/a");
    defaults.failAllSaves();
    group().showAgain(0);
    group().clear();
    EXPECT_EQ(defaults.failureCount(), 2U);
    EXPECT_EQ(group().count(), 1);
    EXPECT_THAT(group().errorText().toStdString(), HasSubstr("Could not save ignored cleanup items: "));
    group().dismissError();
    EXPECT_EQ(group().errorText(), QString());
}

TEST_F(SettingsIgnoreModelTest, ShowsNamesThatAreNoText)
{
    ignore("home/" + kHostileName);
    ignore("home/" + kShownHostileName);
    ASSERT_EQ(group().count(), 2);
    EXPECT_EQ(text(0, Role::pathRole), text(1, Role::pathRole));
    EXPECT_EQ(text(0, Role::pathRole), "~/" + kShownHostileName);
    const bool isFirst = dashboard->ignoreStore().items().front().path == tree.path("home/" + kHostileName);
    group().showAgain(isFirst ? 0 : 1);
    ASSERT_EQ(group().count(), 1);
    EXPECT_EQ(dashboard->ignoreStore().items().front().path, tree.path("home/" + kShownHostileName));
}

TEST_F(SettingsIgnoreModelTest, ShowsWhatAnotherProcessHasStored)
{
    ignore("home/a");
    Platform::FileUserDefaults other(fileManager, stored.fileURL());
    CleanupIgnoreStore elsewhere(other, [] { return AppLanguage::english; });
    ASSERT_TRUE(
        elsewhere.ignore(made({.path = tree.path("home/b")}), CleanupIgnoreDuration::oneWeek, now.addingSeconds(5)));
    stored.refresh();
    settle();
    ASSERT_EQ(group().count(), 2);
    EXPECT_EQ(text(0, Role::pathRole), "~/b");
}

TEST_F(SettingsIgnoreModelTest, SpeaksAnotherLanguageAtOnce)
{
    ignore("home/a");
    ASSERT_TRUE(preferences->setLanguage(AppLanguage::german));
    EXPECT_EQ(group().showAgainText(), QStringLiteral("Einblenden"));
    EXPECT_NE(text(0, Role::durationRole), "Locally hidden from cleanup review until you show it again.");
}

} // namespace DashboardTests
