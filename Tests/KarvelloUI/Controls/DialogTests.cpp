#include "Tests/KarvelloUI/Controls/ControlsFixture.h"

namespace KarvelloUI {

/// A button that opens a dialog.
class KarvelloDialog : public Controls {
protected:
    void beginToOpen()
    {
        show("KarvelloButton { objectName: 'opener'; text: 'Move'; onClicked: dialog.open();"
             " KarvelloDialog { id: dialog; objectName: 'dialog'; title: 'Move selected items to Trash?';"
             " message: 'This will move 2 items.'; acceptText: 'Move Selected to Trash'; cancelText: 'Cancel';"
             " KarvelloText { text: 'Cleanup Preview' } } }");
        m_dialog = find<QObject>("dialog");
        m_accepted = std::make_unique<QSignalSpy>(m_dialog, SIGNAL(accepted()));
        m_rejected = std::make_unique<QSignalSpy>(m_dialog, SIGNAL(rejected()));
        find("opener")->forceActiveFocus(Qt::TabFocusReason);
        key(Qt::Key_Return);
    }
    void open()
    {
        beginToOpen();
        ASSERT_TRUE(QTest::qWaitFor([this] { return m_dialog->property("opened").toBool(); }));
    }

    [[nodiscard]] std::string focused() const
    {
        return m_window->activeFocusItem()->property("text").toString().toStdString();
    }
    [[nodiscard]] bool isOpen() const { return m_dialog->property("visible").toBool(); }

    QObject* m_dialog = nullptr;
    std::unique_ptr<QSignalSpy> m_accepted;
    std::unique_ptr<QSignalSpy> m_rejected;
};

TEST_F(KarvelloDialog, HasTheFocusOnCancelWhereItCanBeSeen)
{
    open();
    EXPECT_EQ(focused(), "Cancel");
    EXPECT_TRUE(m_window->activeFocusItem()->property("visualFocus").toBool());
    // At the next opening as well.
    key(Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    key(Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_dialog->property("opened").toBool(); }));
    EXPECT_EQ(focused(), "Cancel");
    EXPECT_TRUE(m_window->activeFocusItem()->property("visualFocus").toBool());
}

TEST_F(KarvelloDialog, HasTheKeyboardBeforeItIsWhollyInSight)
{
    m_design.setReducedMotion(false);
    beginToOpen();
    ASSERT_TRUE(isOpen());
    ASSERT_FALSE(m_dialog->property("opened").toBool());
    EXPECT_EQ(focused(), "Cancel");
    key(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    EXPECT_EQ(m_accepted->count(), 0);
    EXPECT_EQ(m_rejected->count(), 1);
    EXPECT_TRUE(find("opener")->hasActiveFocus());
}

TEST_F(KarvelloDialog, MovesNothingByAStrayReturn)
{
    open();
    key(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    EXPECT_EQ(m_accepted->count(), 0);
    EXPECT_EQ(m_rejected->count(), 1);
}

TEST_F(KarvelloDialog, IsCancelledOnceByEscape)
{
    open();
    key(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    EXPECT_EQ(m_accepted->count(), 0);
    EXPECT_EQ(m_rejected->count(), 1);
}

TEST_F(KarvelloDialog, KeepsTheKeyboardInsideAndIsAcceptedByItsButton)
{
    open();
    key(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Move Selected to Trash");
    key(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Cancel");
    key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), "Move Selected to Trash");
    key(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    EXPECT_EQ(m_accepted->count(), 1);
    EXPECT_EQ(m_rejected->count(), 0);
}

TEST_F(KarvelloDialog, CannotBeAcceptedBeforeItMayBe)
{
    open();
    m_dialog->setProperty("canAccept", false);
    key(Qt::Key_Tab);
    key(Qt::Key_Return);
    EXPECT_EQ(m_accepted->count(), 0);
}

TEST_F(KarvelloDialog, GivesTheFocusBackToWhatOpenedIt)
{
    open();
    key(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([this] { return find("opener")->hasActiveFocus(); }));
}

/// Two pages, one of them shown; the button of the first opens the dialog.
class KarvelloDialogOfAPage : public KarvelloDialog {
protected:
    void open()
    {
        show("FocusScope { focus: true; width: 640; height: 240\n"
             "KarvelloPage { id: first; focus: visible; objectName: 'first'; width: 640; height: 240; title: 'First';"
             " KarvelloButton { objectName: 'row'; text: 'Row' }"
             " KarvelloButton { objectName: 'opener'; text: 'Move'; onClicked: dialog.open() } }\n"
             "KarvelloPage { objectName: 'second'; width: 640; height: 240; title: 'Second';"
             " visible: !first.visible; focus: visible; KarvelloButton { objectName: 'other'; text: 'Other' } } }\n"
             "KarvelloDialog { id: dialog; objectName: 'dialog'; title: 'Move?';"
             " acceptText: 'Move to Trash'; cancelText: 'Cancel' }");
        m_dialog = find<QObject>("dialog");
        find("opener")->forceActiveFocus(Qt::TabFocusReason);
        key(Qt::Key_Return);
        ASSERT_TRUE(QTest::qWaitFor([this] { return m_dialog->property("opened").toBool(); }));
    }
    void accept()
    {
        key(Qt::Key_Tab);
        key(Qt::Key_Return);
        ASSERT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
        layOut();
    }
};

TEST_F(KarvelloDialogOfAPage, GivesTheFocusToWhatIsNearAnOpenerThatIsDisabled)
{
    open();
    find("opener")->setEnabled(false);
    accept();
    EXPECT_EQ(focused(), "Row");
    EXPECT_TRUE(m_window->activeFocusItem()->property("visualFocus").toBool());
}

TEST_F(KarvelloDialogOfAPage, GivesTheFocusToWhatIsNearAnOpenerThatIsHidden)
{
    open();
    find("opener")->setVisible(false);
    accept();
    EXPECT_EQ(focused(), "Row");
}

TEST_F(KarvelloDialogOfAPage, GivesTheFocusToThePageThatIsShownInsteadOfTheOpeners)
{
    open();
    find("first")->setVisible(false);
    accept();
    EXPECT_TRUE(find("second")->hasActiveFocus()) << focused();
    key(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Other");
}

TEST_F(KarvelloDialog, SaysItsTitleAndIsADialog)
{
    open();
    QAccessibleInterface* found = nullptr;
    for (QObject* const child : m_window->findChildren<QQuickItem*>()) {
        QAccessibleInterface* const item = spoken(child);
        found = item != nullptr && item->role() == QAccessible::Dialog ? item : found;
    }
    ASSERT_TRUE(found);
    EXPECT_EQ(found->text(QAccessible::Name), QStringLiteral("Move selected items to Trash?"));
}

TEST_F(KarvelloDialog, DoesNotCloseByAClickBesideIt)
{
    open();
    QTest::mouseClick(m_window.get(), Qt::LeftButton, Qt::NoModifier, QPoint(4, 470));
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(m_rejected->count(), 0);
}

TEST_F(KarvelloDialog, ScrollsWhatDoesNotFitIntoTheWindowBetweenHeadAndButtons)
{
    show("KarvelloDialog { objectName: 'dialog'; title: 'Move?'; acceptText: 'Move'; cancelText: 'Cancel';"
         " Rectangle { objectName: 'long'; Layout.fillWidth: true; implicitHeight: 2000 } }");
    m_dialog = find<QObject>("dialog");
    QMetaObject::invokeMethod(m_dialog, "open");
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_dialog->property("opened").toBool(); }));
    EXPECT_LE(m_dialog->property("height").toReal(), 480 - 32);
    EXPECT_EQ(focused(), "Cancel");
    const auto* const button = m_window->activeFocusItem();
    EXPECT_LE(button->mapToScene({0, button->height()}).y(), 480);
    const auto* const content = find("long");
    EXPECT_EQ(content->width(), 520 - 48);
    const qreal top = content->mapToScene({0, 0}).y();
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    key(Qt::Key_PageDown);
    EXPECT_TRUE(QTest::qWaitFor([&] { return content->mapToScene({0, 0}).y() < top - 100; }));
}

} // namespace KarvelloUI
