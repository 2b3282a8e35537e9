#include "Tests/KarvelloUI/Screens/Cleanup/CleanupFixture.h"

#include <gmock/gmock.h>

namespace CleanupTests {

using testing::UnorderedElementsAre;

class CleanupHostileNamesTest : public CleanupTest {
protected:
    CleanupHostileNamesTest()
        : CleanupTest("home/Library/Caches/\"not \\xFF utf\"/a size=8K age=90d\n"
                      "home/Library/Caches/\"two\\nlines\"/a size=4K age=90d\n"
                      "home/Library/Caches/\"x\"*255/a size=2K age=90d\n"
                      "home/Library/Caches/\"a\\xE2\\x80\\xAEb\"/a size=1K age=90d\n")
    {
    }
};

TEST_F(CleanupHostileNamesTest, ActsOnWhatARowStandsForAndNotOnItsName)
{
    scanForCleanup();
    ASSERT_THAT(rows(), testing::SizeIs(4));
    for (int row = 0; row < 4; ++row) {
        screen->reveal(row);
        screen->toggle(row);
    }
    EXPECT_THAT(fileViewer.selected, testing::Contains(tree.path("home/Library/Caches/not \xFF utf")));
    EXPECT_FALSE(screen->hasSelection());
    screen->selectAll();
    screen->askToClean();
    dashboard->cleanSelected();
    settle();
    EXPECT_EQ(trashedCount(), 4);
}

TEST_F(CleanupHostileNamesTest, ShowsWhatCouldHideOrReorderAsEscapes)
{
    scanForCleanup();
    EXPECT_THAT(rows(), UnorderedElementsAre("not \\xFF utf", "two\\nlines", std::string(255, 'x'), "a\\u202eb"));
}

TEST_F(CleanupHostileNamesTest, SpeaksOfThemAndOffersTheirMenuWithEscapes)
{
    scanForCleanup();
    const auto& list = *screen->list();
    ASSERT_GE(list.rowCount(), 4);
    for (int row = 0; row < list.rowCount(); ++row) {
        const QString spoken = list.index(row, 0).data(CleanupListModel::spokenRole).toString();
        for (const QString& told : {spoken, screen->menuNameOf(row)}) {
            EXPECT_FALSE(told.contains(u'\n') || told.contains(QChar(0x202E)) || told.contains(QChar(0xFFFD)))
                << told.toStdString();
        }
    }
}

} // namespace CleanupTests
