#include "Tests/KarvelloUI/Screens/Cleanup/CleanupWindow.h"

#include <gmock/gmock.h>

namespace CleanupTests {

using testing::HasSubstr;
using testing::StartsWith;

class CleanupScreenTest : public CleanupWindowTest {
protected:
    void showReview()
    {
        scanForCleanup();
        screen->setGrouping(QStringLiteral("category"));
        show();
        key(Qt::Key_F, Qt::ControlModifier);
        key(Qt::Key_Escape);
    }
};

TEST_F(CleanupScreenTest, ShowsEachFaceWithoutAWarning)
{
    show();
    EXPECT_TRUE(find("placeholder")->isVisible());
    dashboard->selectSection(MacDashboardSection::cleanup);
    screen->scan();
    layOut();
    EXPECT_TRUE(find("progress")->isVisible());
    EXPECT_FALSE(find("placeholder")->isVisible());
    settle();
    layOut();
    EXPECT_TRUE(find("candidateList")->isVisible());
    screen->setSearchText(QStringLiteral("nothing of the kind"));
    layOut();
    EXPECT_FALSE(find("candidateList")->isVisible());
    screen->clearFilters();
    for (const auto language : Platform::allCases<AppLanguage>()) {
        ASSERT_TRUE(preferences->setLanguage(language));
        layOut();
    }
}

TEST_F(CleanupScreenTest, LocksTheModeWhileEitherSessionIsBusy)
{
    show();
    EXPECT_TRUE(find("modes")->isEnabled());
    dashboard->scanInsights();
    EXPECT_FALSE(find("modes")->isEnabled());
    settle();
    EXPECT_TRUE(find("modes")->isEnabled());
    screen->scan();
    EXPECT_FALSE(find("modes")->isEnabled());
}

TEST_F(CleanupScreenTest, MovesThroughHeadsAndRowsByTheArrows)
{
    showReview();
    EXPECT_EQ(currentRow(), 0);
    EXPECT_THAT(focusedName(), StartsWith("User Caches, 2 items"));
    key(Qt::Key_Down);
    EXPECT_EQ(currentRow(), 1);
    EXPECT_THAT(focusedName(), StartsWith("Cleanup candidate "));
    key(Qt::Key_End);
    EXPECT_EQ(currentRow(), 4);
    key(Qt::Key_Home);
    EXPECT_EQ(currentRow(), 0);
    key(Qt::Key_PageDown);
    EXPECT_EQ(currentRow(), 4);
    key(Qt::Key_PageUp);
    EXPECT_EQ(currentRow(), 0);
}

TEST_F(CleanupScreenTest, TogglesARowAndASectionBySpace)
{
    showReview();
    key(Qt::Key_Space);
    EXPECT_EQ(session().selectedCount(), 1);
    key(Qt::Key_Down);
    key(Qt::Key_Space);
    EXPECT_EQ(session().selectedCount(), 2);
}

TEST_F(CleanupScreenTest, OpensAndClosesByRightAndLeft)
{
    showReview();
    key(Qt::Key_Left);
    EXPECT_EQ(screen->list()->count(), 3);
    key(Qt::Key_Right);
    EXPECT_EQ(screen->list()->count(), 5);
    key(Qt::Key_Down);
    key(Qt::Key_Right);
    EXPECT_TRUE(screen->isRowOpen(1));
    layOut();
    key(Qt::Key_Left);
    EXPECT_FALSE(screen->isRowOpen(1));
    key(Qt::Key_Left);
    EXPECT_EQ(currentRow(), 0);
}

TEST_F(CleanupScreenTest, OpensTheMenuOfARow)
{
    showReview();
    key(Qt::Key_Down);
    const auto name = screen->list()->candidate(1)->displayName;
    key(Qt::Key_Menu);
    layOut();
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    layOut();
    EXPECT_THAT(fileViewer.selected, testing::ElementsAre(HasSubstr(name)));
    EXPECT_THAT(focusedName(), StartsWith("Cleanup candidate "));
}

TEST_F(CleanupScreenTest, SnoozesFromTheMenu)
{
    showReview();
    key(Qt::Key_Down);
    key(Qt::Key_F10, Qt::ShiftModifier);
    layOut();
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    layOut();
    EXPECT_EQ(session().ignoredItems().size(), 1U);
    EXPECT_EQ(screen->list()->count(), 4);
}

TEST_F(CleanupScreenTest, SelectsAndClearsAllByShortcuts)
{
    showReview();
    key(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(session().selectedCount(), 0);
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(session().selectedCount(), 3);
}

TEST_F(CleanupScreenTest, FiltersAsOneTypesAndLeavesByEscape)
{
    showReview();
    key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(focused(), find("search"));
    type("yarn");
    EXPECT_EQ(screen->list()->count(), 2);
    key(Qt::Key_Escape);
    EXPECT_EQ(screen->list()->count(), 5);
    EXPECT_EQ(focused(), find("search"));
    key(Qt::Key_Escape);
    EXPECT_THAT(focusedName(), StartsWith("User Caches"));
}

TEST_F(CleanupScreenTest, CtrlReturnOnlyAsks)
{
    showReview();
    key(Qt::Key_Return, Qt::ControlModifier);
    layOut();
    EXPECT_TRUE(confirmation->isOpen());
    settle();
    EXPECT_EQ(trashedCount(), 0);
    EXPECT_EQ(focusedName(), "Cancel");
    // A stray one presses Cancel.
    key(Qt::Key_Return);
    layOut();
    settle();
    EXPECT_FALSE(confirmation->isOpen());
    EXPECT_FALSE(dashboard->isShowingCleanConfirmation());
    EXPECT_EQ(trashedCount(), 0);
}

TEST_F(CleanupScreenTest, EscapeAnswersTheDialogWithNo)
{
    showReview();
    screen->askToClean();
    layOut();
    key(Qt::Key_Escape);
    layOut();
    EXPECT_FALSE(dashboard->isShowingCleanConfirmation());
    EXPECT_EQ(trashedCount(), 0);
}

TEST_F(CleanupScreenTest, TheDialogsOwnButtonMoves)
{
    showReview();
    screen->askToClean();
    layOut();
    key(Qt::Key_Tab);
    EXPECT_EQ(focusedName(), "Move Selected to Trash");
    key(Qt::Key_Return);
    layOut();
    settle();
    EXPECT_EQ(trashedCount(), 3);
    EXPECT_FALSE(confirmation->isOpen());
}

TEST_F(CleanupScreenTest, TheKeyboardStaysInThePageAfterAMove)
{
    showReview();
    screen->clearSelection();
    screen->toggle(1);
    auto* const opener = find("footer")->findChild<QQuickItem*>(QStringLiteral("primary"));
    ASSERT_TRUE(opener);
    opener->forceActiveFocus(Qt::TabFocusReason);
    layOut();
    key(Qt::Key_Return);
    layOut();
    key(Qt::Key_Tab);
    ASSERT_EQ(focusedName(), "Move Selected to Trash");
    key(Qt::Key_Return);
    layOut();
    EXPECT_FALSE(opener->isEnabled());
    EXPECT_EQ(focusedName(), "Cancel Operation");
    EXPECT_TRUE(focused()->property("visualFocus").toBool());
    settle();
    layOut();
    ASSERT_EQ(trashedCount(), 1);
    EXPECT_TRUE(find("candidateList")->isAncestorOf(focused())) << focusedName();
}

TEST_F(CleanupScreenTest, TheKeyboardGoesFromTheScanToItsEndAndToWhatWasFound)
{
    show();
    find("scan")->forceActiveFocus(Qt::TabFocusReason);
    layOut();
    key(Qt::Key_Return);
    layOut();
    EXPECT_FALSE(find("scan")->isVisible());
    EXPECT_EQ(focusedName(), "Cancel Operation");
    settle();
    layOut();
    ASSERT_TRUE(find("candidateList")->isVisible());
    EXPECT_TRUE(find("candidateList")->isAncestorOf(focused())) << focusedName();
}

TEST_F(CleanupScreenTest, AClosedQuestionLeavesNoDialogBehind)
{
    showReview();
    screen->askToClean();
    layOut();
    dashboard->cancelConfirmation();
    layOut();
    EXPECT_FALSE(find<QObject>("dialog")->property("visible").toBool());
}

TEST_F(CleanupScreenTest, NothingIsToBeMovedWhileAScanRuns)
{
    showReview();
    EXPECT_TRUE(find("footer")->property("canAct").toBool());
    screen->scan();
    layOut();
    EXPECT_FALSE(find("footer")->property("canAct").toBool());
    EXPECT_FALSE(find("footer")->property("canClear").toBool());
    // The parts of the progress stand together.
    const auto* const progress = find("progress");
    EXPECT_LT(find("scanFlow")->y() - progress->y() - progress->height(), 24);
    settle();
    layOut();
    EXPECT_TRUE(find("footer")->property("canAct").toBool());
}

TEST_F(CleanupScreenTest, EscapeGoesToCancelWhileAScanRuns)
{
    dashboard->selectSection(MacDashboardSection::cleanup);
    show();
    screen->scan();
    layOut();
    key(Qt::Key_Escape);
    EXPECT_EQ(focusedName(), "Cancel Operation");
    key(Qt::Key_Return);
    settle();
    EXPECT_EQ(screen->face(), Face::Idle);
}

TEST_F(CleanupScreenTest, LooksUpWhatWasSkippedAndComesBack)
{
    showReview();
    QMetaObject::invokeMethod(find("page"), "showPanel", Q_ARG(QString, QStringLiteral("skipped")));
    layOut();
    EXPECT_FALSE(find("candidateList")->isVisible());
    key(Qt::Key_Escape);
    layOut();
    EXPECT_TRUE(find("candidateList")->isVisible());
}

TEST_F(CleanupScreenTest, KeepsItsFiltersInAWindowOfTheUsualSize)
{
    scanForCleanup();
    show(1240, 820);
    for (const auto language : {AppLanguage::english, AppLanguage::german, AppLanguage::japanese}) {
        ASSERT_TRUE(preferences->setLanguage(language));
        layOut();
        EXPECT_FALSE(find("folded")->isVisible()) << Platform::rawValue(language);
        EXPECT_GE(find("search")->width(), 144) << Platform::rawValue(language);
    }
    m_design.setTextEnvironment({.scale = KarvelloTextScale::extraLarge});
    layOut();
    EXPECT_TRUE(find("folded")->isVisible());
}

TEST_F(CleanupScreenTest, AShortListLeavesNoEmptySheet)
{
    scanForCleanup();
    screen->setSearchText(QStringLiteral("yarn"));
    show(1240, 1200);
    EXPECT_LT(find("sheet")->height(), 400);
    screen->clearFilters();
    layOut();
    const auto listEnd = find("candidates")->property("contentHeight").toDouble();
    EXPECT_NEAR(find("sheet")->height(), std::max(320.0, listEnd + 2), 2);
}

TEST_F(CleanupScreenTest, HasOneStopInThePanelOfWhatIsHidden)
{
    showReview();
    screen->snooze(1, QStringLiteral("oneDay"));
    screen->snooze(1, QStringLiteral("oneDay"));
    QMetaObject::invokeMethod(find("page"), "showPanel", Q_ARG(QString, QStringLiteral("ignored")));
    layOut();
    const std::string first = focusedName();
    EXPECT_THAT(first, StartsWith("Show Again, "));
    key(Qt::Key_Down);
    const std::string second = focusedName();
    EXPECT_THAT(second, testing::AllOf(StartsWith("Show Again, "), testing::Ne(first)));
    key(Qt::Key_Home);
    EXPECT_EQ(focusedName(), first);
    key(Qt::Key_Tab);
    EXPECT_THAT(focusedName(), testing::Not(StartsWith("Show Again")));
    key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(focusedName(), first);
    key(Qt::Key_Space);
    layOut();
    EXPECT_EQ(focusedName(), second) << "the place stays when its row goes";
}

TEST_F(CleanupScreenTest, IsOneStopForTab)
{
    showReview();
    key(Qt::Key_Tab);
    EXPECT_THAT(focusedName(), testing::Not(StartsWith("Cleanup candidate")));
    key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_THAT(focusedName(), StartsWith("User Caches"));
}

} // namespace CleanupTests
