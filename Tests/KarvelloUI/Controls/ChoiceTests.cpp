#include "Tests/KarvelloUI/Controls/ControlsFixture.h"

namespace KarvelloUI {

using KarvelloCheckBox = Controls;
using KarvelloSwitch = Controls;
using KarvelloSegmentedControl = Controls;

TEST_F(KarvelloCheckBox, TogglesOnceByMouseKeyAndAssistant)
{
    show("KarvelloCheckBox { objectName: 'box'; accessibleName: 'pip' }");
    auto* const box = find("box");
    QSignalSpy toggles(box, SIGNAL(toggled()));
    click(box);
    EXPECT_EQ(box->property("checkState").toInt(), Qt::Checked);
    EXPECT_EQ(toggles.count(), 1);
    key(Qt::Key_Space);
    EXPECT_EQ(box->property("checkState").toInt(), Qt::Unchecked);
    EXPECT_EQ(toggles.count(), 2);
    toggle(box);
    EXPECT_EQ(box->property("checkState").toInt(), Qt::Checked);
    EXPECT_EQ(toggles.count(), 3);
    press(box);
    EXPECT_EQ(box->property("checkState").toInt(), Qt::Unchecked);
    EXPECT_EQ(toggles.count(), 4);
}

TEST_F(KarvelloCheckBox, BecomesCheckedFromMixed)
{
    show("KarvelloCheckBox { objectName: 'box'; checkState: Qt.PartiallyChecked; accessibleName: "
         "'Safe' }");
    auto* const box = find("box");
    EXPECT_TRUE(spoken(box)->state().checkStateMixed);
    EXPECT_FALSE(spoken(box)->state().checked);
    click(box);
    EXPECT_EQ(box->property("checkState").toInt(), Qt::Checked);
    EXPECT_TRUE(spoken(box)->state().checked);
    EXPECT_FALSE(spoken(box)->state().checkStateMixed);
    click(box);
    EXPECT_EQ(box->property("checkState").toInt(), Qt::Unchecked);
}

TEST_F(KarvelloCheckBox, StaysWhereItIsLocked)
{
    show("KarvelloCheckBox { objectName: 'box'; isLocked: true; accessibleName: 'a'; disabledReason: 'Protected' }");
    auto* const box = find("box");
    QSignalSpy toggles(box, SIGNAL(toggled()));
    click(box);
    toggle(box);
    EXPECT_EQ(toggles.count(), 0);
    EXPECT_FALSE(spoken(box)->state().checkable);
    EXPECT_EQ(spoken(box)->text(QAccessible::Description), QStringLiteral("Protected"));
}

TEST_F(KarvelloCheckBox, CanBeHitAroundTheBox)
{
    show("KarvelloCheckBox { objectName: 'box'; accessibleName: 'a' }");
    EXPECT_EQ(find("box")->width(), 32);
    EXPECT_EQ(find("box")->height(), 32);
    click(find("box"), {2, 30});
    EXPECT_EQ(find("box")->property("checkState").toInt(), Qt::Checked);
}

TEST_F(KarvelloSwitch, TogglesOnceByMouseKeyAndAssistant)
{
    show("KarvelloSwitch { objectName: 'switch'; accessibleName: 'Reminders' }");
    auto* const item = find("switch");
    QSignalSpy toggles(item, SIGNAL(toggled()));
    click(item);
    EXPECT_TRUE(item->property("checked").toBool());
    key(Qt::Key_Space);
    EXPECT_FALSE(item->property("checked").toBool());
    toggle(item);
    EXPECT_TRUE(item->property("checked").toBool());
    EXPECT_TRUE(spoken(item)->state().checked);
    EXPECT_EQ(toggles.count(), 3);
    EXPECT_EQ(nameOf(item), "Reminders");
    item->setEnabled(false);
    toggle(item);
    EXPECT_EQ(toggles.count(), 3);
}

namespace {

constexpr const char* kSegments =
    "KarvelloSegmentedControl { objectName: 'picker'; accessibleName: 'Scan mode';"
    " choices: ['Standard', 'Aggressive', 'Direct']; onActivated: index => currentIndex = index }"
    "KarvelloButton { objectName: 'after'; text: 'after' }";

} // namespace

TEST_F(KarvelloSegmentedControl, IsOneStopInWhichTheArrowsChoose)
{
    show(kSegments);
    auto* const picker = find("picker");
    const auto chosen = [picker] { return picker->property("currentIndex").toInt(); };
    key(Qt::Key_Tab);
    key(Qt::Key_Right);
    EXPECT_EQ(chosen(), 1);
    key(Qt::Key_Down);
    EXPECT_EQ(chosen(), 2);
    key(Qt::Key_Right);
    EXPECT_EQ(chosen(), 2);
    key(Qt::Key_Left);
    key(Qt::Key_Up);
    key(Qt::Key_Up);
    EXPECT_EQ(chosen(), 0);
    key(Qt::Key_End);
    EXPECT_EQ(chosen(), 2);
    key(Qt::Key_Home);
    EXPECT_EQ(chosen(), 0);
    key(Qt::Key_Tab);
    EXPECT_TRUE(find("after")->hasActiveFocus());
}

TEST_F(KarvelloSegmentedControl, OnlyAsksAndLeavesTheChoiceToItsOwner)
{
    show("KarvelloSegmentedControl { objectName: 'picker'; choices: ['a', 'b'] }");
    auto* const picker = find("picker");
    QSignalSpy asked(picker, SIGNAL(activated(int)));
    click(picker, {picker->width() - 6, picker->height() / 2});
    ASSERT_EQ(asked.count(), 1);
    EXPECT_EQ(asked[0][0].toInt(), 1);
    EXPECT_EQ(picker->property("currentIndex").toInt(), 0);
    EXPECT_FALSE(m_window->activeFocusItem()->property("visualFocus").toBool());
    click(picker, {6, picker->height() / 2});
    EXPECT_EQ(asked.count(), 1);
}

TEST_F(KarvelloSegmentedControl, SaysEachChoiceAndWhichOneHolds)
{
    show(kSegments);
    auto* const picker = find("picker");
    EXPECT_EQ(nameOf(picker), "Scan mode");
    QAccessibleInterface* const group = spoken(picker);
    ASSERT_EQ(group->childCount(), 3);
    EXPECT_EQ(group->child(1)->text(QAccessible::Name), QStringLiteral("Aggressive"));
    EXPECT_EQ(group->child(1)->role(), QAccessible::RadioButton);
    EXPECT_TRUE(group->child(0)->state().checked);
    EXPECT_FALSE(group->child(1)->state().checked);
    press(group->child(1)->object());
    EXPECT_EQ(picker->property("currentIndex").toInt(), 1);
    EXPECT_TRUE(group->child(1)->state().checked);
}

} // namespace KarvelloUI
