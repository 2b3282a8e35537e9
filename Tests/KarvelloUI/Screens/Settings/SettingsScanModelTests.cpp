#include "Tests/KarvelloUI/Screens/Settings/SettingsFixture.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

namespace DashboardTests {

using CleanerCore::CleanupScanMode;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class SettingsScanModelTest : public SettingsTest {
protected:
    [[nodiscard]] SettingsScanModel& group() const { return *screen->scan(); }
    [[nodiscard]] std::string modeText() const { return group().modeText().toStdString(); }
    [[nodiscard]] std::string accessText() const { return group().accessText().toStdString(); }
};

TEST_F(SettingsScanModelTest, SaysWhichModesTheBuildOffers)
{
    EXPECT_THAT(valuesOf(group().modes()), ElementsAre("standard", "aggressive", "direct"));
    EXPECT_THAT(modeText(),
        HasSubstr("Choose Standard, Aggressive, or Direct distribution scans. Broader results still require manual "
                  "review before cleanup."));
    isDirectDistribution = false;
    EXPECT_THAT(valuesOf(group().modes()), ElementsAre("standard", "aggressive"));
    EXPECT_THAT(modeText(),
        HasSubstr("Choose Standard or Aggressive scans. Broader results still require manual review before cleanup."));
}

TEST_F(SettingsScanModelTest, NotesThatResultsGo)
{
    EXPECT_THAT(modeText(), HasSubstr("Changing the mode clears the results on show."));
    dashboard->scanCleanup();
    settle();
    ASSERT_FALSE(dashboard->cleaner().report().candidates.empty());
    group().chooseMode(QStringLiteral("aggressive"));
    EXPECT_EQ(group().mode(), QStringLiteral("aggressive"));
    EXPECT_TRUE(dashboard->cleaner().report().candidates.empty());
}

TEST_F(SettingsScanModelTest, ShowsTheModeThatScansUseWhereTheStoredOneIsNotOffered)
{
    ASSERT_TRUE(preferences->setScanMode(CleanupScanMode::direct));
    EXPECT_EQ(group().mode(), QStringLiteral("direct"));
    isDirectDistribution = false;
    EXPECT_EQ(group().mode(), QStringLiteral("standard"));
}

TEST_F(SettingsScanModelTest, TakesNoModeThatTheBuildDoesNotOffer)
{
    isDirectDistribution = false;
    group().chooseMode(QStringLiteral("direct"));
    group().chooseMode(QStringLiteral("deep"));
    EXPECT_EQ(preferences->scanMode(), CleanupScanMode::standard);
    EXPECT_EQ(noticeTitle(), "");
}

TEST_F(SettingsScanModelTest, KeepsTheModeWhileASessionIsBusy)
{
    const QSignalSpy changes(&group(), &SettingsScanModel::changed);
    dashboard->scanCleanup();
    EXPECT_GT(changes.count(), 0);
    EXPECT_FALSE(group().isModeEnabled());
    group().chooseMode(QStringLiteral("aggressive"));
    EXPECT_EQ(group().mode(), QStringLiteral("standard"));
    settle();
    EXPECT_TRUE(group().isModeEnabled());
    dashboard->scanInsights();
    EXPECT_FALSE(group().isModeEnabled());
    settle();
    EXPECT_TRUE(group().isModeEnabled());
}

TEST_F(SettingsScanModelTest, KeepsModeAndResultsWhenItCannotBeStored)
{
    dashboard->scanCleanup();
    settle();
    defaults.failAllSaves();
    group().chooseMode(QStringLiteral("aggressive"));
    EXPECT_EQ(defaults.failureCount(), 1U);
    EXPECT_EQ(noticeTitle(), "Setting not saved");
    EXPECT_EQ(group().mode(), QStringLiteral("standard"));
    EXPECT_FALSE(dashboard->cleaner().report().candidates.empty());
}

TEST_F(SettingsScanModelTest, GrantsAndRevokesTheHome)
{
    isDirectDistribution = false;
    EXPECT_TRUE(group().isGrantNeeded());
    EXPECT_EQ(group().grantText(), QStringLiteral("Grant Home Folder Access"));
    group().grant();
    ASSERT_TRUE(fileDialogs.isOpen());
    EXPECT_EQ(fileDialogs.folderRequests.back().prompt, "Select Home Folder");
    fileDialogs.answer(tree.url("home/"));
    EXPECT_TRUE(group().isGranted());
    EXPECT_FALSE(group().isGrantNeeded());
    EXPECT_EQ(group().grantText(), QStringLiteral("Change Access"));
    EXPECT_THAT(accessText(), HasSubstr("\n~ · Granted "));
    group().revoke();
    EXPECT_FALSE(group().isGranted());
    EXPECT_THAT(accessText(), Not(HasSubstr("Granted")));
}

TEST_F(SettingsScanModelTest, TellsWhyAFolderIsNoGrantUntilItIsDismissed)
{
    const QSignalSpy changes(&group(), &SettingsScanModel::changed);
    group().grant();
    fileDialogs.answer(tree.url("config/"));
    EXPECT_THAT(group().errorText().toStdString(), HasSubstr("Could not save home folder access bookmark: "));
    EXPECT_GT(changes.count(), 0);
    EXPECT_FALSE(group().isGranted());
    group().dismissError();
    EXPECT_EQ(group().errorText(), QString());
}

TEST_F(SettingsScanModelTest, KeepsAGrantThatCannotBeRemoved)
{
    group().grant();
    fileDialogs.answer(tree.url("home/"));
    defaults.failAllSaves();
    group().revoke();
    EXPECT_EQ(defaults.failureCount(), 1U);
    EXPECT_TRUE(group().isGranted());
    EXPECT_NE(group().errorText(), QString());
}

TEST_F(SettingsScanModelTest, NeedsNoGrantInABuildThatReadsByItself)
{
    EXPECT_FALSE(group().isGrantNeeded());
    EXPECT_THAT(accessText(), HasSubstr("with your own permissions"));
    isDirectDistribution = false;
    EXPECT_THAT(accessText(), HasSubstr("Karvello needs access to your home folder"));
}

} // namespace DashboardTests
