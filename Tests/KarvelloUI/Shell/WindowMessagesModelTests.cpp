#include "KarvelloUI/Shell/WindowMessagesModel.h"
#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"
#include "Tests/KarvelloUI/Dashboard/HostileName.h"

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

TEST_F(WindowMessagesModelTest, ScansWhatTheScreenWaitsForOnceAccessIsGranted)
{
    struct Case {
        MacDashboardSection section;
        bool scansCleanup;
        bool scansInsights;
    };
    using Section = MacDashboardSection;
    for (const auto& [section, scansCleanup, scansInsights] :
        {Case{Section::dashboard, false, false}, Case{Section::cleanup, true, false},
            Case{Section::reviewEvidence, false, false}, Case{Section::heatmap, false, true},
            Case{Section::largeFiles, false, true}, Case{Section::downloads, false, true},
            Case{Section::duplicates, false, true}, Case{Section::security, false, true},
            Case{Section::system, false, false}, Case{Section::settings, false, false}}) {
        SCOPED_TRACE(Platform::rawValue(section));
        isDirectDistribution = false;
        dashboard->homeAccess().clearBookmark();
        dashboard->cleaner().clearScanResults();
        dashboard->insights().clearScanResults();
        dashboard->selectSection(section);
        messages.grantAccess();
        fileDialogs.answer(std::nullopt);
        EXPECT_FALSE(dashboard->cleaner().isBusy() || dashboard->insights().isBusy());
        messages.grantAccess();
        fileDialogs.answer(tree.url("home/"));
        EXPECT_EQ(dashboard->cleaner().isBusy(), scansCleanup);
        EXPECT_EQ(dashboard->insights().isBusy(), scansInsights);
        settle();
    }
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

TEST_F(WindowMessagesModelTest, TellsOfEachFailureInTurnAndOfNoneTwice)
{
    const auto fail = [this](const char* title, const char* message) {
        dashboard->showAlert({.title = QString::fromLatin1(title), .message = QString::fromLatin1(message)});
    };
    fail("First", "one");
    fail("Second", "two");
    fail("First", "one");
    fail("Second", "two");
    fail("Second", "three");
    int changes = 0;
    QObject::connect(&messages, &WindowMessagesModel::alertChanged, &messages, [&changes] { ++changes; });
    EXPECT_EQ(messages.alertText(), QStringLiteral("one"));
    messages.dismissAlert();
    EXPECT_EQ(messages.alertTitle(), QStringLiteral("Second"));
    EXPECT_EQ(messages.alertText(), QStringLiteral("two"));
    messages.dismissAlert();
    EXPECT_EQ(messages.alertText(), QStringLiteral("three"));
    messages.dismissAlert();
    EXPECT_FALSE(messages.hasAlert());
    EXPECT_EQ(changes, 3);
    fail("First", "one");
    EXPECT_EQ(messages.alertText(), QStringLiteral("one")) << "what was dismissed may happen again";
}

TEST_F(WindowMessagesModelTest, TellsOfHostileNamesOnOneLineEach)
{
    const std::string path = "home/Downloads/" + kHostileName + "/";
    tree.add("home/Downloads/" + std::string(kHostileNameOfTree) + "/");
    dashboard->revealInFinder(tree.url(path + kHostileName));
    EXPECT_EQ(fileViewer.opened, std::vector<std::string>{tree.path("home/Downloads/" + kHostileName)});
    ASSERT_TRUE(messages.hasNotice());
    EXPECT_EQ(messages.noticeText().toStdString(),
        "The item no longer exists, so the parent folder was opened.\n~/Downloads/" + kShownHostileName);
    fileViewer.canOpen = false;
    dashboard->revealInFinder(tree.url(path + kHostileName));
    ASSERT_TRUE(messages.hasAlert());
    EXPECT_EQ(messages.alertText().count(QLatin1Char('\n')), 1);
    EXPECT_TRUE(messages.alertText().endsWith(QString::fromStdString("/" + kShownHostileName)));
}

TEST_F(WindowMessagesModelTest, LeavesItToTheSettingsToTellTheirFailure)
{
    isDirectDistribution = false;
    EXPECT_TRUE(messages.asksForAccess());
    dashboard->selectSection(MacDashboardSection::settings);
    EXPECT_TRUE(messages.asksForAccess());
    messages.grantAccess();
    int changes = 0;
    QObject::connect(&messages, &WindowMessagesModel::accessChanged, &messages, [&changes] { ++changes; });
    fileDialogs.answer(tree.url("config/"));
    EXPECT_FALSE(messages.asksForAccess());
    EXPECT_GT(changes, 0);
    changes = 0;
    dashboard->selectSection(MacDashboardSection::cleanup);
    EXPECT_TRUE(messages.asksForAccess());
    EXPECT_GT(changes, 0);
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
