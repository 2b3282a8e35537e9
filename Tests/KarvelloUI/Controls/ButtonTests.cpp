#include "Tests/KarvelloUI/Controls/ControlsFixture.h"

namespace KarvelloUI {

using KarvelloButton = Controls;

TEST_F(KarvelloButton, IsClickedOnceByMouseKeysAndAssistant)
{
    show("KarvelloButton { objectName: 'button'; text: 'Scan'; focus: true }");
    auto* const button = find("button");
    QSignalSpy clicks(button, SIGNAL(clicked()));
    click(button);
    EXPECT_EQ(clicks.count(), 1);
    button->forceActiveFocus();
    key(Qt::Key_Space);
    EXPECT_EQ(clicks.count(), 2);
    key(Qt::Key_Return);
    EXPECT_EQ(clicks.count(), 3);
    key(Qt::Key_Enter);
    EXPECT_EQ(clicks.count(), 4);
    press(button);
    EXPECT_EQ(clicks.count(), 5);
}

TEST_F(KarvelloButton, DoesNotRepeatWhileReturnIsHeld)
{
    show("KarvelloButton { objectName: 'button'; text: 'Scan' }");
    auto* const button = find("button");
    button->forceActiveFocus();
    QSignalSpy clicks(button, SIGNAL(clicked()));
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QGuiApplication::sendEvent(m_window.get(), &held);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(KarvelloButton, DoesNothingWhileDisabledAndSaysWhy)
{
    show("KarvelloButton { objectName: 'button'; text: 'Scan'; enabled: false; disabledReason: 'A scan is running' }");
    auto* const button = find("button");
    QSignalSpy clicks(button, SIGNAL(clicked()));
    click(button);
    press(button);
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_EQ(spoken(button)->text(QAccessible::Description), QStringLiteral("A scan is running"));
}

TEST_F(KarvelloButton, SaysItsNameAndRole)
{
    show("KarvelloButton { objectName: 'scan'; text: 'Scan' }"
         "KarvelloButton { objectName: 'export'; iconName: 'export'; accessibleName: 'Export JSON' }");
    EXPECT_EQ(nameOf(find("scan")), "Scan");
    EXPECT_EQ(spoken(find("scan"))->role(), QAccessible::Button);
    EXPECT_EQ(nameOf(find("export")), "Export JSON");
}

TEST_F(KarvelloButton, ShowsTheFocusOnlyForTheKeyboard)
{
    show("KarvelloButton { objectName: 'first'; text: 'a' } KarvelloButton { objectName: 'second'; text: 'b' }");
    click(find("first"));
    EXPECT_TRUE(find("first")->hasActiveFocus());
    EXPECT_FALSE(find("first")->property("visualFocus").toBool());
    key(Qt::Key_Tab);
    EXPECT_TRUE(find("second")->hasActiveFocus());
    EXPECT_TRUE(find("second")->property("visualFocus").toBool());
}

TEST_F(KarvelloButton, TakesTheWidthOfItsTextAndGrowsWithIt)
{
    show("KarvelloButton { objectName: 'short'; text: 'OK' }"
         "KarvelloButton { objectName: 'long'; text: 'Move all of the selected items to the Trash' }"
         "KarvelloButton { objectName: 'icon'; iconName: 'export'; accessibleName: 'Export' }"
         "KarvelloButton { objectName: 'small'; text: 'a'; size: KarvelloButton.Small }");
    EXPECT_EQ(find("short")->width(), 88);
    EXPECT_EQ(find("short")->height(), 34);
    EXPECT_EQ(find("small")->height(), 28);
    EXPECT_EQ(find("icon")->width(), 34);
    const qreal width = find("long")->width();
    EXPECT_GT(width, 200);
    m_design.setTextEnvironment(
        {.scale = KarvelloTextScale::extraLarge, .dynamicTypeSize = DynamicTypeSize::accessibility2});
    EXPECT_TRUE(QTest::qWaitFor([&] { return find("long")->width() > 1.7 * width; }));
    EXPECT_EQ(find("short")->height(), 68);
    EXPECT_GE(find("icon")->height(), 60);
}

TEST_F(KarvelloButton, StaysReadableWhileBusy)
{
    show("KarvelloButton { objectName: 'button'; text: 'Scan'; isBusy: true; enabled: false }");
    EXPECT_EQ(nameOf(find("button")), "Scan");
    m_design.setReducedMotion(false);
    QTest::qWait(30);
    m_design.setReducedMotion(true);
}

} // namespace KarvelloUI
