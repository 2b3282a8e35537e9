#include "Tests/KarvelloUI/Screens/Settings/SettingsFixture.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

namespace DashboardTests {

using testing::StartsWith;

class AccessGuidanceModelTest : public SettingsTest {
protected:
    [[nodiscard]] AccessGuidanceModel& group() const { return *screen->accessGuidance(); }
};

TEST_F(AccessGuidanceModelTest, HasNoStepsWithoutADiagnosis)
{
    EXPECT_TRUE(group().steps().isEmpty());
    EXPECT_EQ(group().title().toStdString(), "Access Guidance");
    EXPECT_THAT(group().text().toStdString(), StartsWith("No latest-scan access diagnosis is available."));
    EXPECT_EQ(group().stepsTitle(), QString());
    EXPECT_EQ(group().stepsText(), QString());
    tree.add("home/Projects/");
    addFolder("home/Projects/");
    EXPECT_TRUE(group().steps().isEmpty());
    EXPECT_EQ(group().title().toStdString(), "Custom Folder Access Guidance");
    EXPECT_THAT(group().text().toStdString(), StartsWith("Custom folders depend on saved permissions"));
}

TEST_F(AccessGuidanceModelTest, CountsOverTheStepsWhatTheLatestScansCouldNotRead)
{
    skipFolders(1);
    EXPECT_EQ(group().title().toStdString(), "Latest Scan Access Evidence");
    EXPECT_THAT(group().text().toStdString(), StartsWith("The latest scans found 1 permission-related skipped item. "));
    EXPECT_EQ(group().stepsTitle().toStdString(), "Access Guidance");
    EXPECT_THAT(group().stepsText().toStdString(), StartsWith("Review skipped paths, update the needed permission"));
    dashboard->cleaner().clearScanResults();
    EXPECT_EQ(group().title().toStdString(), "Custom Folder Access Guidance");
    EXPECT_EQ(group().stepsTitle(), QString());
}

TEST_F(AccessGuidanceModelTest, CountsMoreThanOneAsMany)
{
    skipFolders(4);
    EXPECT_THAT(
        group().text().toStdString(), StartsWith("The latest scans found 4 permission-related skipped items. "));
}

TEST_F(AccessGuidanceModelTest, GuidesStepByStepPastWhatAScanCouldNotRead)
{
    const QSignalSpy changes(&group(), &AccessGuidanceModel::changed);
    skipFolders(4);
    EXPECT_GT(changes.count(), 0);
    ASSERT_EQ(group().steps().size(), 4);
    EXPECT_EQ(step(0).label.toStdString(), "Step 1 of 4");
    EXPECT_EQ(step(0).title.toStdString(), "Review skipped items");
    EXPECT_EQ(step(0).diagnosis.toStdString(), "Saved folder permission needs review · 4");
    EXPECT_EQ(step(0).samplesTitle.toStdString(), "Sample paths (3)");
    EXPECT_EQ(step(0).samples, QStringList({QStringLiteral("~/f1"), QStringLiteral("~/f2"), QStringLiteral("~/f3")}));
    EXPECT_EQ(step(1).title.toStdString(), "Refresh custom folders");
    EXPECT_EQ(step(2).title.toStdString(), "Check who may read the folders");
    EXPECT_EQ(step(3).title.toStdString(), "Rescan to verify");
    EXPECT_EQ(step(3).number, 4);
    EXPECT_TRUE(step(3).samples.isEmpty());
}

TEST_F(AccessGuidanceModelTest, IsWithoutStepsAgainOnceResultsAreCleared)
{
    skipFolders(1);
    ASSERT_FALSE(group().steps().isEmpty());
    dashboard->cleaner().clearScanResults();
    EXPECT_TRUE(group().steps().isEmpty());
}

TEST_F(AccessGuidanceModelTest, TellsOfAReportThatCameWhileAnotherSectionWasOnShow)
{
    dashboard->selectSection(MacDashboardSection::cleanup);
    const QSignalSpy changes(&group(), &AccessGuidanceModel::changed);
    skipFolders(1);
    EXPECT_EQ(changes.count(), 0);
    dashboard->selectSection(MacDashboardSection::settings);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_FALSE(group().steps().isEmpty());
}

TEST_F(AccessGuidanceModelTest, CopiesWholePathsOneALine)
{
    skipFolders(2);
    group().copySamples(1);
    for (const int noSamples : {0, 2, 4, 5, -1}) {
        group().copySamples(noSamples);
    }
    EXPECT_THAT(tools.copied, testing::ElementsAre(tree.path("home/f1") + "\n" + tree.path("home/f2")));
}

TEST_F(AccessGuidanceModelTest, OffersPrivacySettingsWhereThereAreAny)
{
    EXPECT_TRUE(group().hasPrivacySettings());
    group().openPrivacySettings();
    EXPECT_EQ(tools.privacySettingsRequests, 1);
    EXPECT_EQ(noticeTitle(), "");
    tools.isPrivacyOffered = false;
    EXPECT_FALSE(group().hasPrivacySettings());
}

TEST_F(AccessGuidanceModelTest, SaysWhenNoPrivacySettingsOpened)
{
    tools.hasTools = false;
    group().openPrivacySettings();
    EXPECT_EQ(noticeTitle(), "Privacy settings not found");
}

TEST_F(AccessGuidanceModelTest, SpeaksAnotherLanguageAtOnce)
{
    skipFolders(1);
    ASSERT_TRUE(preferences->setLanguage(AppLanguage::german));
    EXPECT_EQ(step(2).title, QStringLiteral("Prüfen, wer die Ordner lesen darf"));
}

} // namespace DashboardTests
