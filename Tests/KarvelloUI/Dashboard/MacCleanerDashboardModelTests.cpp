#include "KarvelloUI/Stores/KarvelloDashboardLaunchRequestStore.h"
#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"

#include <chrono>
#include <filesystem>
#include <gmock/gmock.h>

namespace DashboardTests {

using CleanerCore::CleanupScanMode;
using testing::ElementsAre;
using testing::IsEmpty;

class MacCleanerDashboardModelTest : public DashboardTest {};

TEST_F(MacCleanerDashboardModelTest, StartsOnTheDashboard)
{
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::dashboard);
}

TEST_F(MacCleanerDashboardModelTest, GivesUpAStoredModeThatTheBuildDoesNotOffer)
{
    isDirectDistribution = false;
    ASSERT_TRUE(preferences->setScanMode(CleanupScanMode::direct));
    restart();
    dashboard->dashboardLifecycle();
    settle();
    EXPECT_EQ(preferences->scanMode(), CleanupScanMode::standard);
    EXPECT_EQ(defaults.string("karvello.macScanMode"), "standard");
}

TEST_F(MacCleanerDashboardModelTest, GivesUpAModeOnceItIsNotOfferedAnyMore)
{
    ASSERT_TRUE(preferences->setScanMode(CleanupScanMode::direct));
    dashboard->dashboardLifecycle();
    settle();
    ASSERT_EQ(preferences->scanMode(), CleanupScanMode::direct);
    isDirectDistribution = false;
    capability.canRequestQuitOtherApplications = true;
    dashboard->resourceRelief().refreshCandidates();
    settle();
    EXPECT_EQ(preferences->scanMode(), CleanupScanMode::standard);
}

TEST_F(MacCleanerDashboardModelTest, KeepsADirectModeWhereTheBuildOffersIt)
{
    ASSERT_TRUE(preferences->setScanMode(CleanupScanMode::direct));
    dashboard->dashboardLifecycle();
    settle();
    EXPECT_EQ(preferences->scanMode(), CleanupScanMode::direct);
}

TEST_F(MacCleanerDashboardModelTest, ClearsTheResultsOfBothSessionsWithAnotherMode)
{
    scanForCleanup();
    ASSERT_FALSE(dashboard->cleaner().report().candidates.empty());
    dashboard->scanInsights();
    settle();
    ASSERT_EQ(dashboard->insights().phase(), MacInsightsViewModel::Phase::ready);
    ASSERT_TRUE(preferences->setScanMode(CleanupScanMode::aggressive));
    EXPECT_EQ(dashboard->cleaner().phase(), CleanerViewModel::Phase::idle);
    EXPECT_TRUE(dashboard->cleaner().report().candidates.empty());
    EXPECT_EQ(dashboard->insights().phase(), MacInsightsViewModel::Phase::idle);
}

TEST_F(MacCleanerDashboardModelTest, TakesALaunchRequestFromBeforeItStarted)
{
    ASSERT_TRUE(
        KarvelloDashboardLaunchRequestStore::request(KarvelloDashboardLaunchDestination::memoryReview, defaults));
    restart();
    dashboard->dashboardLifecycle();
    settle();
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::memoryAnalysis);
    EXPECT_FALSE(KarvelloDashboardLaunchRequestStore::pendingRequest(defaults));
}

TEST_F(MacCleanerDashboardModelTest, FollowsALaunchRequestWhileItIsOpen)
{
    dashboard->dashboardLifecycle();
    ASSERT_TRUE(
        KarvelloDashboardLaunchRequestStore::request(KarvelloDashboardLaunchDestination::cleanupReview, defaults));
    settle();
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::cleanup);
}

TEST_F(MacCleanerDashboardModelTest, FollowsARepeatedRequestForTheSameSection)
{
    dashboard->dashboardLifecycle();
    ASSERT_TRUE(
        KarvelloDashboardLaunchRequestStore::request(KarvelloDashboardLaunchDestination::systemReview, defaults));
    settle();
    dashboard->selectSection(MacDashboardSection::settings);
    ASSERT_TRUE(
        KarvelloDashboardLaunchRequestStore::request(KarvelloDashboardLaunchDestination::systemReview, defaults));
    settle();
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::system);
}

TEST_F(MacCleanerDashboardModelTest, StaysWhereItIsWithoutALaunchRequest)
{
    dashboard->selectSection(MacDashboardSection::settings);
    dashboard->dashboardLifecycle();
    settle();
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::settings);
}

TEST_F(MacCleanerDashboardModelTest, StaysWhereItIsWithARequestThatLeadsNowhere)
{
    dashboard->dashboardLifecycle();
    dashboard->selectSection(MacDashboardSection::settings);
    ASSERT_TRUE(defaults.set(KarvelloDashboardLaunchRequestStore::destinationDefaultsKey, std::string("nowhere")));
    ASSERT_TRUE(defaults.set(KarvelloDashboardLaunchRequestStore::requestIDDefaultsKey, std::string("1")));
    settle();
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::settings);
}

TEST_F(MacCleanerDashboardModelTest, LooksForApplicationsWhereTheyAreShown)
{
    for (const auto section : {MacDashboardSection::cpuAnalysis, MacDashboardSection::memoryAnalysis}) {
        applications.clear();
        restart();
        applications = {{.displayName = "Notes",
            .bundleIdentifier = "com.example.Notes",
            .processIdentifier = 77,
            .isUserVisible = true}};
        dashboard->selectSection(MacDashboardSection::settings);
        settle();
        EXPECT_THAT(dashboard->resourceRelief().candidates(), IsEmpty());
        dashboard->selectSection(section);
        settle();
        EXPECT_THAT(dashboard->resourceRelief().candidates(), testing::SizeIs(1));
    }
}

TEST_F(MacCleanerDashboardModelTest, SamplesTheMachineForEachOtherSectionButThoseOfInsights)
{
    const auto samplesOf = [this](MacDashboardSection section) {
        const int before = systemSnapshotsTaken;
        dashboard->selectSection(section);
        settle();
        return systemSnapshotsTaken - before;
    };
    EXPECT_EQ(samplesOf(MacDashboardSection::settings), 1);
    EXPECT_EQ(samplesOf(MacDashboardSection::downloads), 0);
    EXPECT_EQ(samplesOf(MacDashboardSection::heatmap), 0);
    EXPECT_EQ(samplesOf(MacDashboardSection::dashboard), 1);
}

TEST_F(MacCleanerDashboardModelTest, TurnsAStaleSelectionOfTheIOSGuideIntoTheDashboard)
{
    dashboard->selectSection(MacDashboardSection::settings);
    dashboard->selectSectionText(QStringLiteral("iosGuide"));
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::dashboard);
    dashboard->selectSectionText(QStringLiteral("nothing of the kind"));
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::dashboard);
}

TEST_F(MacCleanerDashboardModelTest, LeadsToTheIOSGuideFromInside)
{
    dashboard->openIOSGuide();
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::iosGuide);
}

TEST_F(MacCleanerDashboardModelTest, ScansNothingWithoutAccess)
{
    isDirectDistribution = false;
    EXPECT_FALSE(dashboard->canStartCleanupScan());
    dashboard->scanCleanup();
    dashboard->scanInsights();
    EXPECT_EQ(dashboard->cleaner().phase(), CleanerViewModel::Phase::idle);
    EXPECT_EQ(dashboard->insights().phase(), MacInsightsViewModel::Phase::idle);
}

TEST_F(MacCleanerDashboardModelTest, ClearsBothResultsWhereNothingCanBeScannedAnyMore)
{
    scanForCleanup();
    ASSERT_FALSE(dashboard->cleaner().report().candidates.empty());
    isDirectDistribution = false;
    dashboard->scanInsights();
    EXPECT_TRUE(dashboard->cleaner().report().candidates.empty());
    EXPECT_EQ(dashboard->cleaner().phase(), CleanerViewModel::Phase::idle);
}

TEST_F(MacCleanerDashboardModelTest, ScansWithAGrantedHome)
{
    isDirectDistribution = false;
    bool isGranted = false;
    dashboard->requestHomeAccess([&isGranted](bool granted) { isGranted = granted; });
    ASSERT_TRUE(fileDialogs.isOpen());
    fileDialogs.answer(tree.url("home/"));
    EXPECT_TRUE(isGranted);
    EXPECT_TRUE(dashboard->canStartCleanupScan());
    dashboard->scanCleanup();
    EXPECT_EQ(dashboard->cleaner().phase(), CleanerViewModel::Phase::scanning);
    settle();
    EXPECT_FALSE(dashboard->cleaner().report().candidates.empty());
}

TEST_F(MacCleanerDashboardModelTest, IsNotGrantedAnythingByADialogThatWasCancelled)
{
    isDirectDistribution = false;
    bool isGranted = true;
    dashboard->requestHomeAccess([&isGranted](bool granted) { isGranted = granted; });
    fileDialogs.answer(std::nullopt);
    EXPECT_FALSE(isGranted);
    EXPECT_FALSE(dashboard->hasHomeAccess());
}

TEST_F(MacCleanerDashboardModelTest, IsNotMissedByADialogThatOutlivesIt)
{
    isDirectDistribution = false;
    bool isAnswered = false;
    dashboard->requestHomeAccess([&isAnswered](bool) { isAnswered = true; });
    dashboard.reset();
    fileDialogs.answer(tree.url("home/"));
    EXPECT_FALSE(isAnswered);
    restart();
    EXPECT_FALSE(dashboard->hasHomeAccess());
}

TEST_F(MacCleanerDashboardModelTest, AsksBeforeItCleansAndMovesWhatWasAskedAbout)
{
    scanForCleanup();
    dashboard->cleaner().selectAllCandidates();
    const auto selected = dashboard->cleaner().selectedCount();
    ASSERT_GT(selected, 1);
    dashboard->requestCleanSelected();
    ASSERT_TRUE(dashboard->isShowingCleanConfirmation());
    EXPECT_EQ(trashedCount(), 0);
    EXPECT_EQ(dashboard->pendingCleanPreview().count, selected);
    dashboard->cleaner().clearSelection();
    dashboard->cleanSelected();
    settle();
    EXPECT_EQ(trashedCount(), selected);
    EXPECT_FALSE(dashboard->isShowingCleanConfirmation());
}

TEST_F(MacCleanerDashboardModelTest, MovesNothingWithoutAQuestionOrAfterACancelledOne)
{
    scanForCleanup();
    dashboard->cleaner().selectAllCandidates();
    dashboard->cleanSelected();
    settle();
    EXPECT_EQ(trashedCount(), 0);
    dashboard->requestCleanSelected();
    ASSERT_GT(dashboard->pendingCleanPreview().count, 0);
    dashboard->cancelConfirmation();
    EXPECT_FALSE(dashboard->pendingCleanSelection());
    EXPECT_EQ(dashboard->pendingCleanPreview(), CleanerCore::CleanupSelectionPreview());
    dashboard->cleanSelected();
    settle();
    EXPECT_EQ(trashedCount(), 0);
}

TEST_F(MacCleanerDashboardModelTest, AsksOnlyOnTheReviewScreen)
{
    scanForCleanup();
    dashboard->cleaner().selectAllCandidates();
    dashboard->requestCleanSelected();
    ASSERT_TRUE(dashboard->isShowingCleanConfirmation());
    dashboard->selectSection(MacDashboardSection::dashboard);
    dashboard->requestCleanSelected();
    EXPECT_FALSE(dashboard->isShowingCleanConfirmation());
    dashboard->cleanSelected();
    settle();
    EXPECT_EQ(trashedCount(), 0);
}

TEST_F(MacCleanerDashboardModelTest, AsksNothingWithoutASelection)
{
    scanForCleanup();
    dashboard->cleaner().clearSelection();
    dashboard->requestCleanSelected();
    EXPECT_FALSE(dashboard->isShowingCleanConfirmation());
    dashboard->requestInsightClean(MacInsightFileSection::downloads);
    EXPECT_FALSE(dashboard->isShowingInsightCleanConfirmation());
    dashboard->requestQuitSelected();
    EXPECT_FALSE(dashboard->isShowingResourceReliefConfirmation());
}

TEST_F(MacCleanerDashboardModelTest, RevealsWhatStands)
{
    dashboard->revealInFinder(tree.url("home/Downloads/report.pdf"));
    EXPECT_THAT(fileViewer.selected, ElementsAre(tree.path("home/Downloads/report.pdf")));
    EXPECT_FALSE(dashboard->alert());
    EXPECT_FALSE(dashboard->notice());
}

TEST_F(MacCleanerDashboardModelTest, OpensTheFolderOfWhatHasGone)
{
    std::filesystem::remove(tree.path("home/Downloads/report.pdf"));
    dashboard->revealInFinder(tree.url("home/Downloads/report.pdf"));
    EXPECT_THAT(fileViewer.selected, IsEmpty());
    EXPECT_THAT(fileViewer.opened, ElementsAre(tree.path("home/Downloads")));
    ASSERT_TRUE(dashboard->notice());
    EXPECT_EQ(dashboard->notice()->title, QStringLiteral("Opened Parent Folder"));
    EXPECT_EQ(dashboard->notice()->message,
        QStringLiteral("The item no longer exists, so the parent folder was opened.\n~/Downloads"));
}

TEST_F(MacCleanerDashboardModelTest, SaysSoWhenTheFolderHasGoneToo)
{
    std::filesystem::remove_all(tree.path("home/Downloads"));
    dashboard->revealInFinder(tree.url("home/Downloads/report.pdf"));
    EXPECT_THAT(fileViewer.opened, IsEmpty());
    ASSERT_TRUE(dashboard->alert());
    EXPECT_EQ(dashboard->alert()->title, QStringLiteral("Could Not Open in the File Manager"));
    EXPECT_EQ(dashboard->alert()->message,
        QStringLiteral("Neither the item nor its folder exists any more.\n~/Downloads/report.pdf"));
    dashboard->dismissAlert();
    EXPECT_FALSE(dashboard->alert());
}

TEST_F(MacCleanerDashboardModelTest, SaysSoWhenNothingCanBeOpened)
{
    fileViewer.canSelect = false;
    fileViewer.canOpen = false;
    dashboard->revealInFinder(tree.url("home/Downloads/report.pdf"));
    ASSERT_TRUE(dashboard->alert());
    EXPECT_EQ(dashboard->alert()->title, QStringLiteral("Could Not Open in the File Manager"));
    EXPECT_EQ(dashboard->alert()->message,
        QStringLiteral("The file manager could not open this item.\n~/Downloads/report.pdf"));
}

TEST_F(MacCleanerDashboardModelTest, TakesANewRevealAsTheEndOfTheLastMessage)
{
    std::filesystem::remove(tree.path("home/Downloads/report.pdf"));
    dashboard->revealInFinder(tree.url("home/Downloads/report.pdf"));
    ASSERT_TRUE(dashboard->notice());
    dashboard->revealInFinder(tree.url("home/Downloads"));
    EXPECT_FALSE(dashboard->notice());
}

TEST_F(MacCleanerDashboardModelTest, SaysSoWhenNoSystemMonitorOpened)
{
    dashboard->openActivityMonitor();
    EXPECT_FALSE(dashboard->notice());
    tools.hasTools = false;
    dashboard->openActivityMonitor();
    EXPECT_EQ(tools.systemMonitorRequests, 2);
    ASSERT_TRUE(dashboard->notice());
    EXPECT_EQ(dashboard->notice()->title, QStringLiteral("System monitor not found"));
    EXPECT_FALSE(dashboard->alert());
}

TEST_F(MacCleanerDashboardModelTest, PollsOnlyWhereAndWhileSomebodySees)
{
    const auto isPolling = [this] {
        const int before = systemSnapshotsTaken;
        return loop.runUntil(
            [&] {
                settle();
                return systemSnapshotsTaken > before;
            },
            std::chrono::seconds(2));
    };
    EXPECT_FALSE(isPolling());
    dashboard->setWindowVisible(true);
    EXPECT_TRUE(isPolling());
    EXPECT_TRUE(isPolling());
    dashboard->selectSection(MacDashboardSection::settings);
    settle();
    EXPECT_FALSE(isPolling());
    dashboard->selectSection(MacDashboardSection::cpuAnalysis);
    settle();
    EXPECT_TRUE(isPolling());
    dashboard->setWindowVisible(false);
    settle();
    EXPECT_FALSE(isPolling());
}

TEST_F(MacCleanerDashboardModelTest, ReadsTheDiskInTheBackground)
{
    dashboard->refreshDiskSnapshot();
    EXPECT_EQ(dashboard->diskSnapshot(), DiskCapacitySnapshot());
    settle();
    EXPECT_EQ(dashboard->diskSnapshot(), disk);
}

TEST_F(MacCleanerDashboardModelTest, ForgetsTheRestoreSelectionWithTheRestore)
{
    dashboard->setRestoreCenterSelectedIDs({"a", "b"});
    dashboard->restoreSelectedTrashMoves();
    EXPECT_THAT(dashboard->restoreCenterSelectedIDs(), IsEmpty());
}

} // namespace DashboardTests
