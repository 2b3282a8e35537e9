#include "KarvelloUI/Controls/IconProvider.h"
#include "KarvelloUI/Shell/SidebarModel.h"
#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"

#include <QImage>
#include <gmock/gmock.h>

namespace DashboardTests {

using testing::ElementsAre;

class SidebarModelTest : public DashboardTest {
protected:
    [[nodiscard]] static std::vector<std::string> sectionsOf(const QVariantList& items)
    {
        std::vector<std::string> sections;
        for (const QVariant& item : items) {
            sections.push_back(item.value<SidebarItem>().section.toStdString());
        }
        return sections;
    }
    [[nodiscard]] static SidebarItem itemAt(const QVariantList& items, int place)
    {
        return items.at(place).value<SidebarItem>();
    }

    SidebarModel sidebar{*dashboard};
};

TEST_F(SidebarModelTest, HasThreeGroupsInTheirOrder)
{
    EXPECT_THAT(sectionsOf(sidebar.primaryItems()), ElementsAre("dashboard", "cleanup", "reviewEvidence"));
    EXPECT_THAT(sectionsOf(sidebar.advancedItems()),
        ElementsAre("heatmap", "largeFiles", "downloads", "duplicates", "security"));
    EXPECT_THAT(sectionsOf(sidebar.supportItems()), ElementsAre("system", "cpuAnalysis", "memoryAnalysis", "settings"));
}

TEST_F(SidebarModelTest, NamesTheSectionsInTheLanguageOfTheMoment)
{
    EXPECT_EQ(itemAt(sidebar.primaryItems(), 0).title, QStringLiteral("Live Dashboard"));
    ASSERT_TRUE(preferences->setLanguage(AppLanguage::korean));
    EXPECT_NE(itemAt(sidebar.primaryItems(), 0).title, QStringLiteral("Live Dashboard"));
    EXPECT_EQ(sidebar.advancedTitle(), QStringLiteral("고급"));
}

TEST_F(SidebarModelTest, HasAnIconOfItsOwnForEachSection)
{
    QStringList names;
    for (const auto& items : {sidebar.primaryItems(), sidebar.advancedItems(), sidebar.supportItems()}) {
        for (const QVariant& item : items) {
            names.append(item.value<SidebarItem>().iconName);
        }
    }
    EXPECT_EQ(names.size(), 12);
    EXPECT_EQ(names.removeDuplicates(), 0) << names.join(u' ').toStdString();
    for (const QString& name : names) {
        QSize size;
        EXPECT_FALSE(IconProvider().requestImage(name + QStringLiteral("/123456"), &size, {40, 40}).isNull())
            << name.toStdString();
    }
}

TEST_F(SidebarModelTest, CountsWhatThereIsToReview)
{
    EXPECT_TRUE(itemAt(sidebar.primaryItems(), 1).count.isEmpty());
    scanForCleanup();
    EXPECT_EQ(
        itemAt(sidebar.primaryItems(), 1).count, QString::number(dashboard->cleaner().report().candidates.size()));
}

TEST_F(SidebarModelTest, FoldsTheSecondGroupAwayUnlessItHoldsTheSelection)
{
    EXPECT_FALSE(sidebar.isAdvancedShown());
    dashboard->selectSection(MacDashboardSection::duplicates);
    EXPECT_TRUE(sidebar.isAdvancedShown());
    EXPECT_TRUE(sidebar.isAdvancedHeld());
    dashboard->selectSection(MacDashboardSection::dashboard);
    EXPECT_FALSE(sidebar.isAdvancedShown());
    sidebar.setAdvancedShown(true);
    EXPECT_TRUE(sidebar.isAdvancedShown());
    EXPECT_EQ(defaults.boolean("karvello.macAdvancedExpanded"), true);
}

TEST_F(SidebarModelTest, MovesTheSelectionOverWhatIsOnShow)
{
    dashboard->selectSection(MacDashboardSection::reviewEvidence);
    sidebar.selectStep(1);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::system);
    sidebar.selectStep(-1);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::reviewEvidence);
    sidebar.setAdvancedShown(true);
    sidebar.selectStep(1);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::heatmap);
    sidebar.selectStep(2);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::settings);
    sidebar.selectStep(1);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::settings);
    sidebar.selectStep(-2);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::dashboard);
    sidebar.selectStep(-1);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::dashboard);
}

TEST_F(SidebarModelTest, StopsInAGuideThatIsNotInItAtTheSectionBefore)
{
    EXPECT_EQ(sidebar.stopSection(), QStringLiteral("dashboard"));
    dashboard->selectSection(MacDashboardSection::reviewEvidence);
    EXPECT_EQ(sidebar.stopSection(), QStringLiteral("reviewEvidence"));
    int changes = 0;
    QObject::connect(&sidebar, &SidebarModel::advancedShownChanged, &sidebar, [&changes] { ++changes; });
    dashboard->openIOSGuide();
    EXPECT_GT(changes, 0);
    EXPECT_EQ(sidebar.selectedSection(), QStringLiteral("iosGuide"));
    EXPECT_EQ(sidebar.stopSection(), QStringLiteral("reviewEvidence"));
    sidebar.selectStep(-1);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::cleanup);
}

TEST_F(SidebarModelTest, StopsAtTheFirstSectionWhereTheOneBeforeIsFoldedAway)
{
    dashboard->selectSection(MacDashboardSection::heatmap);
    dashboard->openIOSGuide();
    EXPECT_EQ(sidebar.stopSection(), QStringLiteral("dashboard"));
    sidebar.setAdvancedShown(true);
    EXPECT_EQ(sidebar.stopSection(), QStringLiteral("heatmap"));
}

TEST_F(SidebarModelTest, SelectsByPlaceAcrossTheGroups)
{
    sidebar.selectAt(4);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::heatmap);
    sidebar.selectAt(9);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::system);
    sidebar.selectAt(0);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::system);
    sidebar.selectAt(13);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::system);
}

TEST_F(SidebarModelTest, ShowsTheDiskOnceItIsKnown)
{
    EXPECT_LT(sidebar.usedFraction(), 0);
    EXPECT_TRUE(sidebar.freeText().isEmpty());
    dashboard->refreshDiskSnapshot();
    settle();
    EXPECT_DOUBLE_EQ(sidebar.usedFraction(), 0.6);
    EXPECT_FALSE(sidebar.freeText().isEmpty());
    EXPECT_FALSE(sidebar.usedText().isEmpty());
}

} // namespace DashboardTests
