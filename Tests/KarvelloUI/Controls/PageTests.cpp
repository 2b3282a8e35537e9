#include "Tests/KarvelloUI/Controls/ControlsFixture.h"

namespace KarvelloUI {

/// A page as a screen makes it.
class KarvelloPage : public Controls {
protected:
    void showPage(const std::string& content)
    {
        show(
            (std::string(
                 "KarvelloPage { objectName: 'page'; width: 1100; height: 480; title: 'Duplicates'; subtitle: 'A line';"
                 "\nactions: [ KarvelloButton { objectName: 'action'; text: 'Scan Again' } ]"
                 "\nfooter: [ KarvelloFooter { objectName: 'footer'; Layout.fillWidth: true; primaryText: 'Move' } ]\n")
                + content + " }")
                .c_str());
    }
};

TEST_F(KarvelloPage, GivesTheContentWhatHeadAndFooterLeave)
{
    showPage("Rectangle { objectName: 'fill'; Layout.fillWidth: true; Layout.fillHeight: true }");
    const auto* const fill = find("fill");
    EXPECT_EQ(fill->mapToScene({0, 0}), QPointF(32, 76));
    EXPECT_EQ(fill->width(), 1100 - 64);
    EXPECT_EQ(fill->height(), 480 - 76 - 72 - 24);
    EXPECT_EQ(find("footer")->mapToScene({0, 0}), QPointF(0, 480 - 72));
    EXPECT_EQ(find("action")->mapToScene({find("action")->width(), 0}).x(), 1100 - 32);
    find("page")->setWidth(990);
    EXPECT_TRUE(QTest::qWaitFor([fill] { return fill->width() == 990 - 48; })) << "a narrow page has thinner margins";
}

TEST_F(KarvelloPage, KeepsItsContentInTheMiddleOfAWideWindowButNotItsLists)
{
    showPage("Rectangle { objectName: 'fill'; Layout.fillWidth: true; Layout.fillHeight: true }");
    find("page")->setWidth(1600);
    const auto* const fill = find("fill");
    EXPECT_TRUE(QTest::qWaitFor([fill] { return fill->width() == 1240; }));
    EXPECT_EQ(fill->mapToScene({0, 0}).x(), 180);
    find("page")->setProperty("usesFullWidth", true);
    EXPECT_TRUE(QTest::qWaitFor([fill] { return fill->width() == 1600 - 64; }));
}

TEST_F(KarvelloPage, ScrollsToWhatHasTheFocus)
{
    showPage("Rectangle { Layout.fillWidth: true; implicitHeight: 900 }"
             "KarvelloButton { objectName: 'below'; text: 'Below' }");
    auto* const below = find("below");
    EXPECT_GT(below->mapToScene({0, 0}).y(), 480);
    below->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_TRUE(QTest::qWaitFor([below] { return below->mapToScene({0, below->height()}).y() <= 480 - 72; }));
    key(Qt::Key_Home);
    EXPECT_TRUE(QTest::qWaitFor([below] { return below->mapToScene({0, 0}).y() > 900; }));
    key(Qt::Key_PageDown);
    EXPECT_TRUE(QTest::qWaitFor([below] { return below->mapToScene({0, 0}).y() < 800; }));
}

TEST_F(KarvelloPage, GrowsItsHeadWithTheText)
{
    showPage("Rectangle { objectName: 'fill'; Layout.fillWidth: true; Layout.fillHeight: true }");
    m_design.setTextEnvironment(
        {.scale = KarvelloTextScale::extraLarge, .dynamicTypeSize = DynamicTypeSize::accessibility2});
    EXPECT_TRUE(QTest::qWaitFor([this] { return find("fill")->mapToScene({0, 0}).y() > 90; }));
}

/// A page with a list between two buttons, of which the last one loses the keyboard.
class KarvelloPageKeyboard : public KarvelloPage {
protected:
    void showPage(const char* landings, Qt::FocusReason reason)
    {
        const auto content = std::string("landings: [") + landings
            + "]\nKarvelloButton { id: cancel; objectName: 'cancel'; text: 'Cancel Operation'; visible: false }"
              "KarvelloButton { objectName: 'row'; text: 'Row' }"
              "KarvelloButton { objectName: 'move'; text: 'Move' }"
              "KarvelloButton { objectName: 'after'; text: 'After' }";
        KarvelloPage::showPage(content);
        find("move")->forceActiveFocus(reason);
        layOut();
        ASSERT_TRUE(find("move")->hasActiveFocus());
    }
};

TEST_F(KarvelloPageKeyboard, GoesToTheNearestStopFromWhatIsDisabled)
{
    showPage("", Qt::TabFocusReason);
    find("move")->setEnabled(false);
    EXPECT_TRUE(QTest::qWaitFor([this] { return find("row")->hasActiveFocus(); }));
    EXPECT_TRUE(find("row")->property("visualFocus").toBool());
    // Where nothing before it is left.
    find("action")->setVisible(false);
    find("row")->setVisible(false);
    EXPECT_TRUE(QTest::qWaitFor([this] { return find("after")->hasActiveFocus(); }));
}

TEST_F(KarvelloPageKeyboard, GoesFromWhatHidesItselfToWhatThePageNames)
{
    showPage("cancel", Qt::MouseFocusReason);
    find("cancel")->setVisible(true);
    find("move")->setVisible(false);
    EXPECT_TRUE(QTest::qWaitFor([this] { return find("cancel")->hasActiveFocus(); }));
    EXPECT_FALSE(find("cancel")->property("visualFocus").toBool()) << "the mouse shows no focus";
}

TEST_F(KarvelloPageKeyboard, StaysWhereItHasBeenTakenMeanwhile)
{
    showPage("cancel", Qt::TabFocusReason);
    find("cancel")->setVisible(true);
    find("move")->setVisible(false);
    find("after")->forceActiveFocus(Qt::TabFocusReason);
    layOut();
    EXPECT_TRUE(find("after")->hasActiveFocus());
}

TEST_F(KarvelloPageKeyboard, IsLeftAloneWhereItNeverWas)
{
    showPage("cancel", Qt::TabFocusReason);
    find("cancel")->setVisible(true);
    layOut();
    EXPECT_TRUE(find("move")->hasActiveFocus());
}

} // namespace KarvelloUI
