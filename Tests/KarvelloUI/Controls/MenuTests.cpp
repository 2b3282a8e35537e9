#include "Tests/KarvelloUI/Controls/ControlsFixture.h"

namespace KarvelloUI {

/// A button that opens a menu of three entries, the second of which cannot be used.
class KarvelloMenu : public Controls {
protected:
    void open()
    {
        show("KarvelloButton { id: opener; objectName: 'opener'; text: 'More'; onClicked: menu.openBelow(opener);"
             " KarvelloMenu { id: menu; objectName: 'menu'; accessibleName: 'Actions';"
             " KarvelloMenuItem { objectName: 'first'; text: 'Show in Files'; iconName: 'folder' }"
             " KarvelloMenuItem { objectName: 'second'; text: 'Restore'; enabled: false; disabledReason: 'Gone' }"
             " KarvelloMenuItem { objectName: 'third'; text: 'Hide this item until it is shown again' } } }");
        m_menu = find<QObject>("menu");
        find("opener")->forceActiveFocus(Qt::TabFocusReason);
        key(Qt::Key_Return);
        ASSERT_TRUE(QTest::qWaitFor([this] { return m_menu->property("opened").toBool(); }));
    }
    [[nodiscard]] bool isOpen() const { return m_menu->property("visible").toBool(); }

    QObject* m_menu = nullptr;
};

TEST_F(KarvelloMenu, IsWalkedThroughByArrowsAndUsedByReturn)
{
    open();
    const QSignalSpy third(find<QObject>("third"), SIGNAL(triggered()));
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(third.count(), 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    EXPECT_TRUE(QTest::qWaitFor([this] { return find("opener")->property("visualFocus").toBool(); }));
}

TEST_F(KarvelloMenu, IsLeftByEscapeWithTheFocusWhereItWas)
{
    open();
    const QSignalSpy first(find<QObject>("first"), SIGNAL(triggered()));
    key(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    EXPECT_EQ(first.count(), 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return find("opener")->hasActiveFocus(); }));
}

TEST_F(KarvelloMenu, DoesNothingForWhatCannotBeUsedAndSaysWhy)
{
    open();
    auto* const second = find("second");
    const QSignalSpy used(second, SIGNAL(triggered()));
    click(second);
    press(second);
    EXPECT_EQ(used.count(), 0);
    EXPECT_EQ(spoken(second)->text(QAccessible::Description), QStringLiteral("Gone"));
    EXPECT_EQ(nameOf(find("first")), "Show in Files");
    EXPECT_EQ(spoken(find("first"))->role(), QAccessible::MenuItem);
}

TEST_F(KarvelloMenu, IsAsWideAsItsLongestEntry)
{
    open();
    for (const char* name : {"first", "second", "third"}) {
        EXPECT_GE(find(name)->width(), find(name)->implicitWidth()) << name;
    }
}

} // namespace KarvelloUI
