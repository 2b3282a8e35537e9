#include "KarvelloUI/Dashboard/ConfirmationModel.h"

#include "KarvelloUI/Dashboard/ConfidencePills.h"
#include "KarvelloUI/Design/KarvelloPill.h"
#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"

#include <gmock/gmock.h>

namespace DashboardTests {

using testing::ElementsAre;
using testing::IsEmpty;

class ConfirmationModelTest : public DashboardTest {
protected:
    static std::vector<std::string> pillsOf(const ConfirmationModel& model)
    {
        std::vector<std::string> texts;
        for (const auto& pill : model.pills()) {
            texts.push_back(pill.value<ConfidencePill>().text.toStdString());
        }
        return texts;
    }

    static std::vector<std::string> linesOf(const ConfirmationModel& model)
    {
        std::vector<std::string> texts;
        for (const auto& line : model.lines()) {
            const auto value = line.value<ConfirmationLine>();
            texts.push_back(
                (value.name.toStdString() + " | " + value.count.toStdString() + " | " + value.size.toStdString()));
        }
        return texts;
    }

    void askAboutClean()
    {
        scanForCleanup();
        dashboard->cleaner().selectAllCandidates();
        dashboard->requestCleanSelected();
    }

    void selectDownloads()
    {
        dashboard->scanInsights();
        settle();
        dashboard->insights().selectAll(MacInsightFileSection::downloads);
    }

    void selectApplication()
    {
        applications = {{.displayName = "Notes",
            .bundleIdentifier = "com.example.Notes",
            .processIdentifier = 77,
            .isUserVisible = true}};
        capability.canRequestQuitOtherApplications = true;
        dashboard->resourceRelief().refreshCandidates();
        settle();
        for (const auto& candidate : dashboard->resourceRelief().candidates()) {
            dashboard->resourceRelief().setSelected(candidate, true);
        }
    }
};

TEST_F(ConfirmationModelTest, AsksNothingAtFirst)
{
    ConfirmationModel model(*dashboard);
    EXPECT_FALSE(model.isOpen());
    model.accept();
    model.cancel();
    settle();
    EXPECT_EQ(trashedCount(), 0);
}

TEST_F(ConfirmationModelTest, TellsWhatACleanMoves)
{
    ConfirmationModel model(*dashboard);
    int openings = 0;
    QObject::connect(&model, &ConfirmationModel::openChanged, &model, [&openings] { ++openings; });
    askAboutClean();
    ASSERT_TRUE(model.isOpen());
    EXPECT_EQ(openings, 1);
    EXPECT_EQ(model.title().toStdString(), "Move selected items to Trash?");
    EXPECT_THAT(
        model.message().toStdString(), testing::StartsWith("This will move 2 selected items (80 KB) to Trash."));
    EXPECT_EQ(model.previewTitle().toStdString(), "Cleanup Preview");
    EXPECT_THAT(pillsOf(model), ElementsAre("Safe 2", "Review 0", "Manual 0"));
    EXPECT_EQ(model.pills()[0].value<ConfidencePill>().kind, static_cast<int>(KarvelloPillKind::safe));
    EXPECT_EQ(model.pills()[1].value<ConfidencePill>().kind, static_cast<int>(KarvelloPillKind::neutral));
    EXPECT_THAT(linesOf(model), ElementsAre("User Caches | 1 item | 64 KB", "User Logs | 1 item | 16 KB"));
    EXPECT_THAT(model.moreLines().toStdString(), IsEmpty());
    EXPECT_THAT(model.hiddenItemsWarning().toStdString(), IsEmpty());
    EXPECT_THAT(model.footnote().toStdString(), testing::StartsWith("After Trash is emptied"));
    EXPECT_EQ(model.acceptText().toStdString(), "Move Selected to Trash");
    EXPECT_EQ(model.cancelText().toStdString(), "Cancel");
    EXPECT_EQ(model.iconName().toStdString(), "trash");
}

TEST_F(ConfirmationModelTest, MovesWhatItAskedAboutWhateverIsSelectedByThen)
{
    ConfirmationModel model(*dashboard);
    askAboutClean();
    dashboard->cleaner().clearSelection();
    EXPECT_TRUE(model.isOpen());
    EXPECT_THAT(linesOf(model), testing::SizeIs(2));
    model.accept();
    EXPECT_FALSE(model.isOpen());
    settle();
    EXPECT_EQ(trashedCount(), 2);
}

TEST_F(ConfirmationModelTest, MovesNothingOnceCancelled)
{
    ConfirmationModel model(*dashboard);
    askAboutClean();
    model.cancel();
    EXPECT_FALSE(model.isOpen());
    model.accept();
    settle();
    EXPECT_EQ(trashedCount(), 0);
}

TEST_F(ConfirmationModelTest, WarnsOfSelectedItemsThatTheListDoesNotShow)
{
    ConfirmationModel model(*dashboard);
    scanForCleanup();
    dashboard->cleaner().selectAllCandidates();
    dashboard->cleaner().setFilters({.searchText = "pip"});
    dashboard->requestCleanSelected();
    EXPECT_THAT(model.hiddenItemsWarning().toStdString(), testing::StartsWith("1 hidden selected item is included"));
}

TEST_F(ConfirmationModelTest, FoldsMoreThanFiveCategories)
{
    tree.add("home/Library/Developer/Xcode/DerivedData/App/index size=8K age=90d\n"
             "home/Library/Developer/Xcode/\"iOS DeviceSupport\"/17/symbols size=9K age=400d\n"
             "home/Library/Developer/CoreSimulator/Caches/dyld/cache size=7K age=90d\n"
             "home/.npm/_cacache/index size=6K age=90d\n"
             "home/.gradle/caches/jar size=5K age=90d\n"
             "home/.cargo/registry/cache/crate size=5K age=90d\n");
    ASSERT_TRUE(preferences->setScanMode(CleanerCore::CleanupScanMode::direct));
    ConfirmationModel model(*dashboard);
    askAboutClean();
    ASSERT_EQ(dashboard->pendingCleanPreview().categorySummaries.size(), 6U);
    EXPECT_THAT(linesOf(model), testing::SizeIs(5));
    EXPECT_EQ(model.moreLines().toStdString(), "1 more category");
}

TEST_F(ConfirmationModelTest, FollowsTheLanguageAndKeepsItsFigures)
{
    ConfirmationModel model(*dashboard);
    askAboutClean();
    dashboard->cleaner().clearSelection();
    ASSERT_TRUE(preferences->setLanguage(AppLanguage::german));
    EXPECT_EQ(model.cancelText().toStdString(), "Abbrechen");
    EXPECT_THAT(model.message().toStdString(), testing::HasSubstr("2"));
    EXPECT_THAT(linesOf(model), testing::SizeIs(2));
}

TEST_F(ConfirmationModelTest, AsksAboutFilesOfAnInsightSection)
{
    ConfirmationModel model(*dashboard);
    selectDownloads();
    dashboard->requestInsightClean(MacInsightFileSection::downloads);
    ASSERT_TRUE(model.isOpen());
    EXPECT_EQ(model.title().toStdString(), "Move selected items to Trash?");
    EXPECT_THAT(model.message().toStdString(), testing::StartsWith("This will move 1 selected item (2 MB) to Trash."));
    EXPECT_TRUE(model.pills().isEmpty());
    EXPECT_TRUE(model.lines().isEmpty());
    model.accept();
    settle();
    EXPECT_EQ(trashedCount(), 1);
}

TEST_F(ConfirmationModelTest, HasItsOwnWordsForDuplicates)
{
    tree.add("home/Documents/a.bin size=30M sparse age=90d\nhome/Downloads/a.bin size=30M sparse age=90d\n");
    ConfirmationModel model(*dashboard);
    dashboard->scanInsights();
    settle();
    dashboard->insights().selectAll(MacInsightFileSection::duplicates);
    dashboard->requestInsightClean(MacInsightFileSection::duplicates);
    ASSERT_TRUE(model.isOpen());
    EXPECT_EQ(model.title().toStdString(), "Move selected duplicate extras to Trash?");
    EXPECT_THAT(model.message().toStdString(), testing::HasSubstr("Keeper files remain unselected"));
    EXPECT_EQ(model.acceptText().toStdString(), "Move selected extras to Trash");
}

TEST_F(ConfirmationModelTest, WithdrawsTheQuestionWhenOtherFilesAreSelected)
{
    ConfirmationModel model(*dashboard);
    selectDownloads();
    dashboard->requestInsightClean(MacInsightFileSection::downloads);
    ASSERT_TRUE(model.isOpen());
    dashboard->insights().clearSelection(MacInsightFileSection::downloads);
    EXPECT_FALSE(model.isOpen());
    model.accept();
    settle();
    EXPECT_EQ(trashedCount(), 0);
}

TEST_F(ConfirmationModelTest, AsksBeforeApplicationsAreAskedToQuit)
{
    ConfirmationModel model(*dashboard);
    selectApplication();
    dashboard->requestQuitSelected();
    ASSERT_TRUE(model.isOpen());
    EXPECT_EQ(model.title().toStdString(), "Request Quit for Selected Apps?");
    EXPECT_THAT(model.message().toStdString(), testing::HasSubstr("does not force quit"));
    EXPECT_THAT(model.footnote().toStdString(), IsEmpty());
    EXPECT_EQ(model.iconName().toStdString(), "quit");
    EXPECT_THAT(quitRequests, IsEmpty());
    model.accept();
    settle();
    EXPECT_THAT(quitRequests, ElementsAre(77));
}

TEST_F(ConfirmationModelTest, WithdrawsTheQuestionWhenOtherApplicationsAreSelected)
{
    ConfirmationModel model(*dashboard);
    selectApplication();
    dashboard->requestQuitSelected();
    ASSERT_TRUE(model.isOpen());
    dashboard->resourceRelief().clearSelection();
    EXPECT_FALSE(model.isOpen());
}

} // namespace DashboardTests
