#include "KarvelloUI/Screens/IOSGuide/IOSGuideScreenModel.h"

#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <gmock/gmock.h>

namespace DashboardTests {

using Role = IOSGuideStepList::Role;

class IOSGuideScreenModelTest : public DashboardTest {
protected:
    [[nodiscard]] static QString said(IOSGuideScreenModel& guide, int row, Role role)
    {
        return guide.steps()->index(row, 0).data(role).toString();
    }
    [[nodiscard]] static std::string text(IOSGuideScreenModel& guide, int row, Role role)
    {
        return said(guide, row, role).toStdString();
    }
};

TEST_F(IOSGuideScreenModelTest, ShowsSevenStepsInTheirOrder)
{
    IOSGuideScreenModel guide(*dashboard);
    const QAbstractItemModelTester tester(guide.steps(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    ASSERT_EQ(guide.steps()->rowCount(), 7);
    EXPECT_EQ(text(guide, 0, Role::titleRole), "iPhone Storage recommendations");
    EXPECT_EQ(text(guide, 0, Role::numberRole), "1");
    EXPECT_EQ(text(guide, 0, Role::pathRole), "Settings > General > iPhone Storage");
    EXPECT_EQ(text(guide, 0, Role::statusRole), "notStarted");
    EXPECT_EQ(text(guide, 2, Role::actorRole), "Apple app");
    EXPECT_EQ(text(guide, 6, Role::stepRole), "karvelloSandbox");
    EXPECT_EQ(text(guide, 6, Role::pickerNameRole), "Karvello sandbox cache status");
}

TEST_F(IOSGuideScreenModelTest, TellsWhatIsDoneElsewhere)
{
    IOSGuideScreenModel guide(*dashboard);
    for (int row = 0; row < 7; ++row) {
        EXPECT_EQ(guide.steps()->index(row, 0).data(Role::isElsewhereRole).toBool(), row != 6) << row;
    }
}

TEST_F(IOSGuideScreenModelTest, OffersThreeStatuses)
{
    const IOSGuideScreenModel guide(*dashboard);
    ASSERT_EQ(guide.statuses().size(), 3);
    EXPECT_EQ(guide.statuses()[1].toMap()[QStringLiteral("value")].toString().toStdString(), "reviewed");
    EXPECT_EQ(guide.statuses()[1].toMap()[QStringLiteral("text")].toString().toStdString(), "Reviewed");
}

TEST_F(IOSGuideScreenModelTest, StoresAStatusAndChangesThatRowAlone)
{
    IOSGuideScreenModel guide(*dashboard);
    const QSignalSpy changes(guide.steps(), &QAbstractItemModel::dataChanged);
    guide.setStatus(QStringLiteral("photosReview"), QStringLiteral("done"));
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 2);
    EXPECT_EQ(changes[0][1].toModelIndex().row(), 2);
    EXPECT_TRUE(guide.steps()->index(2, 0).data(Role::isDoneRole).toBool());

    IOSGuideScreenModel other(*dashboard);
    EXPECT_EQ(text(other, 2, Role::statusRole), "done");
}

TEST_F(IOSGuideScreenModelTest, CountsWhatIsReviewedOrDone)
{
    IOSGuideScreenModel guide(*dashboard);
    EXPECT_EQ(guide.progressText().toStdString(), "0 of 7 reviewed");
    EXPECT_FALSE(guide.canReset());
    guide.setStatus(QStringLiteral("photosReview"), QStringLiteral("done"));
    guide.setStatus(QStringLiteral("safariWebsiteData"), QStringLiteral("reviewed"));
    EXPECT_EQ(guide.progressText().toStdString(), "2 of 7 reviewed");
    EXPECT_DOUBLE_EQ(guide.progress(), 2.0 / 7.0);
    guide.setStatus(QStringLiteral("photosReview"), QStringLiteral("notStarted"));
    EXPECT_EQ(guide.progressText().toStdString(), "1 of 7 reviewed");
}

TEST_F(IOSGuideScreenModelTest, StartsOverAfterAReset)
{
    IOSGuideScreenModel guide(*dashboard);
    guide.setStatus(QStringLiteral("photosReview"), QStringLiteral("done"));
    ASSERT_TRUE(guide.canReset());
    guide.reset();
    EXPECT_FALSE(guide.canReset());
    EXPECT_EQ(text(guide, 2, Role::statusRole), "notStarted");
}

TEST_F(IOSGuideScreenModelTest, IgnoresStepsAndStatusesThatItDoesNotKnow)
{
    IOSGuideScreenModel guide(*dashboard);
    guide.setStatus(QStringLiteral("emptyTheTrash"), QStringLiteral("done"));
    guide.setStatus(QStringLiteral("photosReview"), QStringLiteral("undone"));
    EXPECT_EQ(guide.progressText().toStdString(), "0 of 7 reviewed");
    EXPECT_TRUE(guide.failureText().isEmpty());
}

TEST_F(IOSGuideScreenModelTest, SaysWhenAStatusCannotBeStoredAndStaysAsItWas)
{
    IOSGuideScreenModel guide(*dashboard);
    defaults.failAllSaves();
    guide.setStatus(QStringLiteral("photosReview"), QStringLiteral("done"));
    EXPECT_EQ(text(guide, 2, Role::statusRole), "notStarted");
    EXPECT_EQ(guide.failureText().toStdString(), "The status of the step could not be saved.");
    defaults.failNoSave();
    guide.setStatus(QStringLiteral("photosReview"), QStringLiteral("done"));
    EXPECT_TRUE(guide.failureText().isEmpty());
}

TEST_F(IOSGuideScreenModelTest, LeadsBackToTheSectionThatLedHere)
{
    IOSGuideScreenModel guide(*dashboard);
    dashboard->selectSection(MacDashboardSection::settings);
    dashboard->openIOSGuide();
    EXPECT_EQ(guide.backName().toStdString(), "Back to Settings");
    guide.goBack();
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::settings);
}

TEST_F(IOSGuideScreenModelTest, FollowsTheLanguageAtOnce)
{
    IOSGuideScreenModel guide(*dashboard);
    const QSignalSpy words(&guide, &IOSGuideScreenModel::wordsChanged);
    ASSERT_TRUE(preferences->setLanguage(AppLanguage::german));
    EXPECT_EQ(words.count(), 1);
    EXPECT_EQ(guide.backTitle().toStdString(), "Zurück");
    EXPECT_NE(text(guide, 1, Role::titleRole), "Offload unused apps");
}

} // namespace DashboardTests
