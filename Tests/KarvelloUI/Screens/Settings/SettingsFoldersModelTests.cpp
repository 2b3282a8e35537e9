#include "Tests/KarvelloUI/Screens/Settings/SettingsFixture.h"

#include <QAbstractItemModelTester>
#include <filesystem>
#include <gmock/gmock.h>

namespace DashboardTests {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

class SettingsFoldersModelTest : public SettingsTest {
protected:
    using Role = CustomFolderListModel::Role;

    SettingsFoldersModelTest() { tree.add("home/Projects/file size=1M age=90d\nhome/Render/\n"); }

    [[nodiscard]] SettingsFoldersModel& group() const { return *screen->customFolders(); }
    [[nodiscard]] std::string text(int row, Role role) const { return said(group().rows(), row, role); }
};

TEST_F(SettingsFoldersModelTest, AddsAFolderOfTheUsersChoice)
{
    const QAbstractItemModelTester tester(group().rows(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(group().count(), 0);
    EXPECT_EQ(group().emptyText(), QStringLiteral("No custom folders added."));
    addFolder("home/Render/");
    addFolder("home/Projects/");
    EXPECT_EQ(fileDialogs.folderRequests.back().message,
        "Add user-selected folders to the cleanup scan. Karvello remembers that it may read them.");
    EXPECT_EQ(fileDialogs.folderRequests.back().prompt, "Add Folder");
    ASSERT_EQ(group().count(), 2);
    EXPECT_EQ(text(0, Role::pathRole), "~/Projects");
    EXPECT_EQ(text(1, Role::pathRole), "~/Render");
    EXPECT_THAT(text(1, Role::addedRole), StartsWith("Added "));
    EXPECT_EQ(text(1, Role::problemRole), "");
}

TEST_F(SettingsFoldersModelTest, AddsNothingWhenNoneIsPicked)
{
    group().add();
    fileDialogs.answer(std::nullopt);
    EXPECT_EQ(group().count(), 0);
    EXPECT_EQ(group().errorText(), QString());
}

TEST_F(SettingsFoldersModelTest, ReplacesAFolderThatIsAddedAgain)
{
    addFolder("home/Projects/");
    addFolder("home/Projects/");
    EXPECT_EQ(group().count(), 1);
}

TEST_F(SettingsFoldersModelTest, TellsWhyAFolderIsRefused)
{
    addFolder("home/Projects/file");
    EXPECT_THAT(group().errorText().toStdString(),
        StartsWith("Could not save custom scan folders: Selected item is not an accessible folder: "));
    group().dismissError();
    EXPECT_EQ(group().errorText(), QString());
    group().add();
    fileDialogs.answer(Platform::FileURL::folder("/usr"));
    EXPECT_THAT(group().errorText().toStdString(), HasSubstr("too broad or protected"));
    EXPECT_EQ(group().count(), 0);
}

TEST_F(SettingsFoldersModelTest, RemovesAFolderAndLeavesItsFilesAlone)
{
    addFolder("home/Projects/");
    addFolder("home/Render/");
    group().remove(0);
    ASSERT_EQ(group().count(), 1);
    EXPECT_EQ(text(0, Role::pathRole), "~/Render");
    EXPECT_TRUE(stands("home/Projects/file"));
    group().remove(1);
    group().remove(-1);
    EXPECT_EQ(group().count(), 1);
}

TEST_F(SettingsFoldersModelTest, KeepsTheListThatCannotBeStored)
{
    addFolder("home/Projects/");
    defaults.failAllSaves();
    group().remove(0);
    addFolder("home/Render/");
    EXPECT_EQ(defaults.failureCount(), 2U);
    EXPECT_EQ(group().count(), 1);
    EXPECT_THAT(group().errorText().toStdString(), StartsWith("Could not save custom scan folders: "));
}

TEST_F(SettingsFoldersModelTest, ShowsAFolderInTheFileManager)
{
    addFolder("home/Projects/");
    group().reveal(0);
    group().reveal(1);
    EXPECT_THAT(fileViewer.selected, ElementsAre(tree.path("home/Projects")));
    std::filesystem::remove_all(tree.path("home/Projects"));
    group().reveal(0);
    EXPECT_THAT(fileViewer.opened, ElementsAre(tree.path("home")));
    EXPECT_EQ(noticeTitle(), "Opened Parent Folder");
}

TEST_F(SettingsFoldersModelTest, ShowsAndRevealsNamesThatAreNoText)
{
    tree.add("home/" + std::string(kHostileNameOfTree) + "/");
    addFolder("home/" + kHostileName + "/");
    ASSERT_EQ(group().count(), 1);
    EXPECT_EQ(text(0, Role::pathRole), "~/" + kShownHostileName);
    group().reveal(0);
    EXPECT_THAT(fileViewer.selected, ElementsAre(tree.path("home/" + kHostileName)));
    group().remove(0);
    EXPECT_EQ(group().count(), 0);
}

TEST_F(SettingsFoldersModelTest, SaysWhatToDoAboutAFolderThatTheScanSkipped)
{
    addFolder("home/Projects/");
    std::filesystem::rename(tree.path("home/Projects"), tree.path("home/Old"));
    std::filesystem::create_directory(tree.path("home/Projects"));
    dashboard->scanCleanup();
    settle();
    EXPECT_EQ(text(0, Role::problemRole), "Re-add the custom folder to renew its saved permission.");
    addFolder("home/Projects/");
    dashboard->scanCleanup();
    settle();
    EXPECT_EQ(text(0, Role::problemRole), "");
}

TEST_F(SettingsFoldersModelTest, ShowsWhatAnotherProcessHasStored)
{
    Platform::FileUserDefaults other(fileManager, stored.fileURL());
    CustomScanFolderStore elsewhere(other, bookmarks, [] { return AppLanguage::english; });
    ASSERT_TRUE(elsewhere.addFolder(tree.url("home/Projects/"), fileManager));
    stored.refresh();
    settle();
    EXPECT_EQ(group().count(), 1);
}

} // namespace DashboardTests
