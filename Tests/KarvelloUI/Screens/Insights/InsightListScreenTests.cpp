#include "KarvelloUI/Screens/Insights/InsightListScreenModel.h"

#include "Tests/KarvelloUI/Screens/Insights/InsightScreenWindow.h"

namespace InsightScreenTests {

namespace {

class InsightListScreenTest : public InsightScreenWindow {
protected:
    using InsightScreenWindow::InsightScreenWindow;

    InsightListScreenModel& showScreen(MacInsightFileSection section)
    {
        return show<InsightListScreenModel>("Karvello.Screens.Insights", "InsightListScreen", section);
    }
};

} // namespace

TEST_F(InsightListScreenTest, IsUsedFromTheKeyboard)
{
    auto& screen = showScreen(downloads);
    key(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(screen.content(), InsightScreenModel::Scanning);
    key(Qt::Key_Escape);
    EXPECT_EQ(focused("text").toString().toStdString(), "Cancel Operation");
    settle();
    m_window->grabWindow();
    focus("rows");
    EXPECT_EQ(focused("name").toString().toStdString(), "film.mov");
    key(Qt::Key_Down);
    EXPECT_EQ(focused("name").toString().toStdString(), "disc.img");
    EXPECT_TRUE(focused("visualFocus").toBool());
    key(Qt::Key_Space);
    EXPECT_EQ(session().selectedCount(), 1);
    EXPECT_EQ(focused("name").toString().toStdString(), "disc.img") << "a click leaves the focus where it is";
    key(Qt::Key_End);
    EXPECT_EQ(focused("name").toString().toStdString(), "setup.sh");
    key(Qt::Key_Right);
    EXPECT_TRUE(focused("isOpen").toBool());
    key(Qt::Key_Left);
    EXPECT_FALSE(focused("isOpen").toBool());
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(screen.selectionState(), Qt::Checked);
    key(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(session().selectedCount(), 0);
    key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(dashboard->isShowingInsightCleanConfirmation());
    key(Qt::Key_Home);
    key(Qt::Key_Space);
    key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(dashboard->isShowingInsightCleanConfirmation());
}

TEST_F(InsightListScreenTest, TellsAssistantsWhatARowIs)
{
    showScreen(largeFiles);
    scan();
    m_window->grabWindow();
    focus("rows");
    comeAgainAsAssistant();
    auto* const row = QAccessible::queryAccessibleInterface(m_window->activeFocusItem());
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->role(), QAccessible::CheckBox);
    EXPECT_EQ(row->text(QAccessible::Name).toStdString(),
        "film.mov, 128 KB, Large file · modified 1 month ago, ~/Downloads/film.mov");
    EXPECT_FALSE(row->state().checked);
    row->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(row->state().checked);
    key(Qt::Key_Down);
    auto* const locked = QAccessible::queryAccessibleInterface(m_window->activeFocusItem());
    EXPECT_FALSE(locked->state().checkable);
    EXPECT_FALSE(locked->text(QAccessible::Description).isEmpty());
}

TEST_F(InsightListScreenTest, HasNeitherBoxesNorAFooterForTheInstallerReview)
{
    showScreen(security);
    scan();
    m_window->grabWindow();
    focus("rows");
    EXPECT_FALSE(focused("hasCheckBox").toBool());
    comeAgainAsAssistant();
    const auto* const row = QAccessible::queryAccessibleInterface(m_window->activeFocusItem());
    EXPECT_EQ(row->role(), QAccessible::ListItem);
    EXPECT_FALSE(row->state().checkable);
    EXPECT_EQ(row->text(QAccessible::Name).toStdString(),
        "setup.sh, Review only, Shell script, 8 KB, 2 months, ~/Downloads/setup.sh");
    EXPECT_FALSE(find("footer")->isVisible());
    key(Qt::Key_Space);
    EXPECT_EQ(session().selectedCount(), 0);
}

TEST_F(InsightListScreenTest, HasRoomForAllTextsInEveryState)
{
    isDirectDistribution = false;
    auto& screen = showScreen(largeFiles);
    lookAtAllFaces("large-denied");
    isDirectDistribution = true;
    screen.scan();
    lookAtAllFaces("large-scanning");
    settle();
    screen.selectAll();
    lookAtAllFaces("large-results");
    screen.requestClean();
    dashboard->cleanSelectedInsight();
    lookAtAllFaces("large-cleaning");
    settle();
    lookAtAllFaces("large-done");
}

TEST_F(InsightListScreenTest, HasRoomForTheReasonsOfTheInstallerReview)
{
    auto& screen = showScreen(security);
    lookAtAllFaces("security-idle");
    scan();
    screen.setOpen(screen.rows()->index(0, 0).data(InsightListModel::keyRole).toInt(), true);
    lookAtAllFaces("security-results");
}

} // namespace InsightScreenTests
