#include "KarvelloUI/Screens/StorageMap/StorageMapScreenModel.h"

#include "Tests/KarvelloUI/Screens/Insights/InsightScreenWindow.h"

#include <gmock/gmock.h>

namespace InsightScreenTests {

namespace {

using testing::ElementsAre;

class StorageMapScreenTest : public InsightScreenWindow {
protected:
    explicit StorageMapScreenTest(std::string_view layoutOfHome = kHome)
        : InsightScreenWindow(layoutOfHome)
    {
    }

    [[nodiscard]] static std::vector<StorageMapArea> read(const QVariantList& list)
    {
        std::vector<StorageMapArea> areas;
        for (const auto& entry : list) {
            areas.push_back(entry.value<StorageMapArea>());
        }
        return areas;
    }
    [[nodiscard]] static std::vector<std::string> names(const QVariantList& list)
    {
        std::vector<std::string> found;
        for (const auto& area : read(list)) {
            found.push_back(area.name.toStdString());
        }
        return found;
    }
};

} // namespace

TEST_F(StorageMapScreenTest, HasACellForEachFolderWithASizeAndARowForEach)
{
    StorageMapScreenModel screen(*dashboard);
    EXPECT_EQ(screen.content(), InsightScreenModel::Idle);
    scan();
    EXPECT_THAT(names(screen.areas()),
        ElementsAre("Downloads", "Application Support", "Documents", "Movies", "Pictures", "Music"));
    EXPECT_THAT(
        names(screen.cells()), ElementsAre("Downloads", "Application Support", "Documents", "Movies", "Pictures"));
    EXPECT_EQ(screen.count(), 6);
    const auto areas = read(screen.areas());
    EXPECT_EQ(areas[1].path.toStdString(), "~/Library/Application Support");
    EXPECT_EQ(areas[0].shareText.toStdString(), "100% of the largest area");
    EXPECT_EQ(areas[0].countText.toStdString(), "5 items");
    double covered = 0;
    for (const auto& cell : read(screen.cells())) {
        covered += cell.width * cell.height;
    }
    EXPECT_NEAR(covered, 1, 1e-9);
    EXPECT_TRUE(screen.tableSummary().endsWith(QStringLiteral("· 6 areas")));
}

/// The folder of the downloads, as the user has set it up: one line of a file names it.
class StorageMapScreenOfAHostileName : public StorageMapScreenTest {
protected:
    StorageMapScreenOfAHostileName()
        : StorageMapScreenTest("home/\"\\xE2\\x80\\xAEa\\xE2\\x80\\x8B<b>&amp;\\xFF\"/film size=128K age=40d\n"
                               "home/.config/user-dirs.dirs text=\"XDG_DOWNLOAD_DIR=\\\"$HOME/"
                               "\\xE2\\x80\\xAEa\\xE2\\x80\\x8B<b>&amp;\\xFF\\\"\"\n")
    {
    }
};

TEST_F(StorageMapScreenOfAHostileName, ShowsItWithEscapesAndOpensTheFolder)
{
    StorageMapScreenModel screen(*dashboard);
    scan();
    const auto areas = read(screen.areas());
    ASSERT_GE(areas.size(), 1U);
    EXPECT_EQ(areas[0].name.toStdString(), "\\u202ea\\u200b<b>&amp;\\xFF");
    EXPECT_EQ(areas[0].path.toStdString(), "~/\\u202ea\\u200b<b>&amp;\\xFF");
    screen.reveal(0);
    EXPECT_THAT(fileViewer.selected, ElementsAre(tree.path("home/\u202Ea\u200B<b>&amp;\xFF")));
}

TEST_F(StorageMapScreenTest, HasTheColoursOfTheSchemeOnShow)
{
    StorageMapScreenModel screen(*dashboard);
    scan();
    const auto& light = KarvelloDesign::lightPalette.review;
    EXPECT_EQ(read(screen.cells())[0].tint, QColor(light.red, light.green, light.blue));
    screen.setDark(true);
    const auto& dark = KarvelloDesign::darkPalette.review;
    EXPECT_EQ(read(screen.cells())[0].tint, QColor(dark.red, dark.green, dark.blue));
    EXPECT_EQ(screen.legend().size(), 4);
    EXPECT_EQ(screen.legend()[0].value<StorageMapLegendEntry>().text.toStdString(), "75%+");
}

TEST_F(StorageMapScreenTest, MarksWhatWasOnlyCountedInPart)
{
    auto limited = insightConfiguration;
    limited.maximumVisitedItemsPerRoot = 2;
    insightConfiguration = limited;
    restart();
    StorageMapScreenModel screen(*dashboard);
    scan();
    const auto areas = read(screen.areas());
    const auto downloaded = std::ranges::find(areas, QStringLiteral("Downloads"), &StorageMapArea::name);
    ASSERT_NE(downloaded, areas.end());
    EXPECT_EQ(downloaded->partialText.toStdString(), "partial");
    EXPECT_TRUE(screen.noticeText().contains(QStringLiteral("partially scanned")));
    const auto music = std::ranges::find(areas, QStringLiteral("Music"), &StorageMapArea::name);
    EXPECT_TRUE(music->partialText.isEmpty());
}

TEST_F(StorageMapScreenTest, KeepsTheSelectedFolderInTheNextReport)
{
    StorageMapScreenModel screen(*dashboard);
    scan();
    screen.select(2);
    EXPECT_EQ(screen.selectedId(), 2);
    tree.remove("home/Downloads/film.mov");
    tree.remove("home/Downloads/new.bin");
    scan();
    ASSERT_GE(screen.selectedId(), 0);
    EXPECT_EQ(read(screen.areas())[static_cast<std::size_t>(screen.selectedId())].name.toStdString(), "Documents");
    screen.select(99);
    EXPECT_EQ(screen.selectedId(), -1);
}

TEST_F(StorageMapScreenTest, IsOneSelectionForMapAndTable)
{
    auto& screen = show<StorageMapScreenModel>("Karvello.Screens.StorageMap", "StorageMapScreen");
    scan();
    m_window->grabWindow();
    focus("table");
    key(Qt::Key_Down);
    EXPECT_EQ(screen.selectedId(), 1);
    EXPECT_EQ(find("map")->property("selectedIndex").toInt(), 1);
    focus("map");
    key(Qt::Key_Home);
    EXPECT_EQ(screen.selectedId(), 0);
    EXPECT_EQ(find("table")->property("currentIndex").toInt(), 0);
    key(Qt::Key_Right);
    ASSERT_GT(screen.selectedId(), 0);
    EXPECT_TRUE(focused("visualFocus").toBool());
    const auto cells = read(screen.cells());
    const auto& reached = cells[static_cast<std::size_t>(screen.selectedId())];
    EXPECT_GE(reached.x, cells[0].x + cells[0].width) << "it lies at the right";
    EXPECT_EQ(find("table")->property("currentIndex").toInt(), screen.selectedId());
    key(Qt::Key_Return);
    ASSERT_EQ(fileViewer.selected.size(), 1U);
    EXPECT_TRUE(QString::fromStdString(fileViewer.selected[0]).endsWith(reached.name));
}

TEST_F(StorageMapScreenTest, MarksInTheTableWhatThePointerIsOverOnTheMap)
{
    show<StorageMapScreenModel>("Karvello.Screens.StorageMap", "StorageMapScreen");
    scan();
    m_window->grabWindow();
    QMetaObject::invokeMethod(find("map"), "hovered", Q_ARG(QVariant, 2));
    int marked = -1;
    for (const auto* const row : rowsOf("table")) {
        if (row->property("isMarked").toBool()) {
            marked = row->property("index").toInt();
        }
    }
    EXPECT_EQ(marked, 2);
}

TEST_F(StorageMapScreenTest, TellsOfTheAreaUnderThePointerOrElseOfTheSelectedOne)
{
    auto& screen = show<StorageMapScreenModel>("Karvello.Screens.StorageMap", "StorageMapScreen");
    scan();
    m_window->grabWindow();
    const auto shows = [this](const QString& text) {
        const auto texts = find("told")->childItems();
        return std::ranges::any_of(texts,
            [&](const QQuickItem* item) { return item->isVisible() && item->property("text").toString() == text; });
    };
    EXPECT_TRUE(shows(screen.detailHint()));
    screen.select(1);
    EXPECT_TRUE(shows(read(screen.areas())[1].name));
    EXPECT_TRUE(shows(read(screen.areas())[1].detailText));
    QMetaObject::invokeMethod(find("map"), "hovered", Q_ARG(QVariant, 2));
    EXPECT_TRUE(shows(read(screen.areas())[2].name));
    EXPECT_FALSE(shows(read(screen.areas())[1].name));
    EXPECT_FALSE(shows(screen.detailHint()));
}

TEST_F(StorageMapScreenTest, TellsAssistantsNameSizeCountAndShare)
{
    show<StorageMapScreenModel>("Karvello.Screens.StorageMap", "StorageMapScreen");
    scan();
    m_window->grabWindow();
    focus("table");
    key(Qt::Key_End);
    const auto* const row = QAccessible::queryAccessibleInterface(m_window->activeFocusItem());
    comeAgainAsAssistant();
    EXPECT_EQ(row->role(), QAccessible::ListItem);
    EXPECT_TRUE(row->state().selected);
    EXPECT_EQ(nameOf(m_window->activeFocusItem()), "Music, 0 bytes, 0 items, 0% of the largest area, ~/Music");
    focus("map");
    key(Qt::Key_Home);
    const auto* const cell = QAccessible::queryAccessibleInterface(m_window->activeFocusItem());
    EXPECT_EQ(cell->role(), QAccessible::ListItem);
    EXPECT_TRUE(cell->state().selected);
}

TEST_F(StorageMapScreenTest, HasRoomForAllTexts)
{
    auto& screen = show<StorageMapScreenModel>("Karvello.Screens.StorageMap", "StorageMapScreen");
    lookAtAllFaces("map-idle");
    scan();
    screen.select(1);
    lookAtAllFaces("map-results");
}

} // namespace InsightScreenTests
