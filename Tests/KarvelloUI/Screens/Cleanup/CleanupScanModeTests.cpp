#include "Tests/KarvelloUI/Screens/Cleanup/CleanupFixture.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

namespace CleanupTests {

using CleanerCore::CleanupScanMode;
using testing::HasSubstr;

using CleanupScanModeTest = CleanupTest;

TEST_F(CleanupScanModeTest, ClearsResultsWithAnotherModeAndWarnsOfIt)
{
    scanForCleanup();
    EXPECT_THAT(
        screen->texts()[QStringLiteral("scanModeHint")].toString().toStdString(), HasSubstr("clears the results"));
    screen->setScanMode(QStringLiteral("aggressive"));
    EXPECT_EQ(dashboard->scanMode(), CleanupScanMode::aggressive);
    EXPECT_EQ(screen->face(), Face::Idle);
    ASSERT_TRUE(hasBanner());
    EXPECT_EQ(banner().title.toStdString(), "Aggressive Scan Warning");
    EXPECT_FALSE(banner().canClose);
}

TEST_F(CleanupScanModeTest, WarnsOfNothingWhileAccessIsAskedFor)
{
    isDirectDistribution = false;
    restartAll();
    screen->setScanMode(QStringLiteral("aggressive"));
    ASSERT_EQ(dashboard->scanMode(), CleanupScanMode::aggressive);
    ASSERT_EQ(screen->face(), Face::Denied);
    EXPECT_FALSE(hasBanner());
    int changes = 0;
    QObject::connect(screen.get(), &CleanupScreenModel::bannerChanged, screen.get(), [&changes] { ++changes; });
    dashboard->requestHomeAccess();
    fileDialogs.answer(tree.url("home/"));
    EXPECT_GT(changes, 0);
    ASSERT_TRUE(hasBanner());
    EXPECT_EQ(banner().title.toStdString(), "Aggressive Scan Warning");
}

TEST_F(CleanupScanModeTest, OffersTheDirectModeWhereTheBuildHasIt)
{
    EXPECT_THAT(screen->scanModes(), testing::SizeIs(3));
    isDirectDistribution = false;
    EXPECT_THAT(screen->scanModes(), testing::SizeIs(2));
    screen->setScanMode(QStringLiteral("no such mode"));
    EXPECT_EQ(dashboard->scanMode(), CleanupScanMode::standard);
}

TEST_F(CleanupScanModeTest, KeepsTheModeWhileTheSessionIsBusy)
{
    screen->scan();
    screen->setScanMode(QStringLiteral("aggressive"));
    EXPECT_EQ(dashboard->scanMode(), CleanupScanMode::standard);
    screen->cancel();
    settle();
}

TEST_F(CleanupScanModeTest, KeepsTheModeWhileTheOtherSessionIsBusy)
{
    const QSignalSpy changes(screen.get(), &CleanupScreenModel::canChooseScanModeChanged);
    EXPECT_TRUE(screen->canChooseScanMode());
    dashboard->scanInsights();
    EXPECT_FALSE(screen->canChooseScanMode());
    EXPECT_EQ(changes.count(), 1);
    screen->setScanMode(QStringLiteral("aggressive"));
    EXPECT_EQ(dashboard->scanMode(), CleanupScanMode::standard);
    settle();
    EXPECT_TRUE(screen->canChooseScanMode());
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(CleanupScanModeTest, SaysWhenAnotherModeCouldNotBeStored)
{
    scanForCleanup();
    defaults.failAllSaves();
    screen->setScanMode(QStringLiteral("aggressive"));
    EXPECT_EQ(defaults.failureCount(), 1U);
    ASSERT_TRUE(dashboard->notice());
    EXPECT_EQ(dashboard->notice()->title.toStdString(), "Setting not saved");
    EXPECT_EQ(screen->scanMode(), QStringLiteral("standard"));
    EXPECT_EQ(screen->face(), Face::List);
}

} // namespace CleanupTests
