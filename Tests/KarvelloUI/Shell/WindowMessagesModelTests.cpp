#include "KarvelloUI/Shell/WindowMessagesModel.h"
#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"

#include <filesystem>

namespace DashboardTests {

class WindowMessagesModelTest : public DashboardTest {
protected:
    WindowMessagesModel messages{*dashboard};
};

TEST_F(WindowMessagesModelTest, AsksForAccessOnlyWhereItIsMissing)
{
    EXPECT_FALSE(messages.isAccessMissing());
    isDirectDistribution = false;
    EXPECT_TRUE(messages.isAccessMissing());
    int changes = 0;
    QObject::connect(&messages, &WindowMessagesModel::accessChanged, &messages, [&changes] { ++changes; });
    messages.grantAccess();
    ASSERT_TRUE(fileDialogs.isOpen());
    EXPECT_EQ(fileDialogs.folderRequests.front().prompt, "Select Home Folder");
    fileDialogs.answer(tree.url("home/"));
    EXPECT_FALSE(messages.isAccessMissing());
    EXPECT_GT(changes, 0);
}

TEST_F(WindowMessagesModelTest, SaysWhyAGrantWasNotTaken)
{
    isDirectDistribution = false;
    const QString usual = messages.accessText();
    messages.grantAccess();
    fileDialogs.answer(tree.url("config/"));
    EXPECT_TRUE(messages.isAccessMissing());
    EXPECT_NE(messages.accessText(), usual);
}

TEST_F(WindowMessagesModelTest, TurnsAGrantThatCannotBeResolvedIntoTheBanner)
{
    isDirectDistribution = false;
    messages.grantAccess();
    fileDialogs.answer(tree.url("home/"));
    ASSERT_FALSE(messages.isAccessMissing());
    std::filesystem::rename(tree.path("home"), tree.path("elsewhere"));
    std::filesystem::create_directory(tree.path("home"));
    dashboard->scanCleanup();
    EXPECT_TRUE(messages.isAccessMissing());
    EXPECT_FALSE(messages.hasAlert());
    EXPECT_FALSE(messages.accessText().isEmpty());
}

TEST_F(WindowMessagesModelTest, TellsOfAFailureUntilItIsDismissed)
{
    fileViewer.canSelect = false;
    fileViewer.canOpen = false;
    dashboard->revealInFinder(tree.url("home/Downloads/report.pdf"));
    EXPECT_TRUE(messages.hasAlert());
    EXPECT_FALSE(messages.alertTitle().isEmpty());
    messages.dismissAlert();
    EXPECT_FALSE(messages.hasAlert());
    EXPECT_TRUE(messages.alertTitle().isEmpty());
}

TEST_F(WindowMessagesModelTest, TellsSoftlyOfAParentThatWasOpened)
{
    std::filesystem::remove(tree.path("home/Downloads/report.pdf"));
    dashboard->revealInFinder(tree.url("home/Downloads/report.pdf"));
    EXPECT_FALSE(messages.hasAlert());
    EXPECT_TRUE(messages.hasNotice());
    EXPECT_EQ(messages.noticeTitle(), QStringLiteral("Opened Parent Folder"));
    messages.dismissNotice();
    EXPECT_FALSE(messages.hasNotice());
}

} // namespace DashboardTests
