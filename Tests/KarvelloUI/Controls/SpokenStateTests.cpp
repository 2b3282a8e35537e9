#include "Tests/KarvelloUI/Controls/ControlsFixture.h"

namespace KarvelloUI {

/// What controls are for an assistant: that was there before them, that came later, or that went and came back.
class KarvelloSpoken : public Controls, public testing::WithParamInterface<bool> {
protected:
    ~KarvelloSpoken() override { QAccessible::setActive(true); }

    void listen(const char* items)
    {
        QAccessible::setActive(GetParam());
        show(items);
        QAccessible::setActive(false);
        QAccessible::setActive(true);
    }
    static QAccessible::Role roleOf(QObject* object) { return spoken(object)->role(); }
    static QAccessible::State stateOf(QObject* object) { return spoken(object)->state(); }
};

INSTANTIATE_TEST_SUITE_P(Assistant, KarvelloSpoken, testing::Bool(),
    [](const auto& test) { return test.param ? "WasThere" : "ComesLater"; });

TEST_P(KarvelloSpoken, SaysOfEachPartOfASegmentedControlWhetherItIsChosen)
{
    listen("KarvelloSegmentedControl { objectName: 'picker'; accessibleName: 'Scan mode'; choices: ['a', 'b'];"
           " currentIndex: 1; onActivated: index => currentIndex = index }");
    QAccessibleInterface* const group = spoken(find("picker"));
    ASSERT_EQ(group->childCount(), 2);
    EXPECT_EQ(group->child(0)->role(), QAccessible::RadioButton);
    EXPECT_TRUE(group->child(0)->state().checkable);
    EXPECT_FALSE(group->child(0)->state().checked);
    EXPECT_TRUE(group->child(1)->state().checked);
    press(group->child(0)->object());
    EXPECT_TRUE(group->child(0)->state().checked);
    EXPECT_FALSE(group->child(1)->state().checked);
}

TEST_P(KarvelloSpoken, SaysOfAButtonWhetherItCanBePressed)
{
    listen("KarvelloButton { objectName: 'button'; text: 'Scan'; enabled: false }");
    auto* const button = find("button");
    EXPECT_EQ(roleOf(button), QAccessible::Button);
    EXPECT_TRUE(stateOf(button).disabled);
    button->setEnabled(true);
    EXPECT_FALSE(stateOf(button).disabled);
}

TEST_P(KarvelloSpoken, SaysOfARowWithABoxThatItIsCheckedAndTogglesIt)
{
    listen("KarvelloListRow { objectName: 'row'; name: 'pip'; menuName: 'Actions'; isChecked: true;"
           " onToggleRequested: isChecked = !isChecked }");
    auto* const row = find("row");
    EXPECT_EQ(roleOf(row), QAccessible::CheckBox);
    EXPECT_TRUE(stateOf(row).checkable);
    EXPECT_TRUE(stateOf(row).checked);
    toggle(row);
    EXPECT_FALSE(stateOf(row).checked);
    press(row);
    EXPECT_TRUE(stateOf(row).checked);
    row->setProperty("isSelectable", false);
    EXPECT_FALSE(stateOf(row).checkable);
    EXPECT_FALSE(stateOf(row).checked);
}

TEST_P(KarvelloSpoken, SaysOfARowWithoutABoxThatItIsOneOfAListAndOpensIt)
{
    listen("KarvelloListRow { objectName: 'row'; name: 'setup.sh'; menuName: 'Actions'; hasCheckBox: false;"
           " isChecked: true; property int toggles: 0; onToggleRequested: ++toggles;"
           " onOpenRequested: wanted => isOpen = wanted }");
    auto* const row = find("row");
    EXPECT_EQ(roleOf(row), QAccessible::ListItem);
    EXPECT_FALSE(stateOf(row).checkable);
    EXPECT_FALSE(stateOf(row).checked);
    press(row);
    EXPECT_TRUE(row->property("isOpen").toBool());
    EXPECT_EQ(row->property("toggles").toInt(), 0);
}

TEST_P(KarvelloSpoken, TellsTheKeeperFromItsExtras)
{
    listen("KarvelloKeeperRow { objectName: 'keeper'; name: 'a'; kindText: 'Keeper'; isKeeper: true }"
           "KarvelloKeeperRow { objectName: 'extra'; name: 'b'; kindText: 'Extra copy'; isChecked: true;"
           " onToggleRequested: isChecked = !isChecked }");
    EXPECT_EQ(roleOf(find("keeper")), QAccessible::ListItem);
    EXPECT_FALSE(stateOf(find("keeper")).checkable);
    auto* const extra = find("extra");
    EXPECT_EQ(roleOf(extra), QAccessible::CheckBox);
    EXPECT_TRUE(stateOf(extra).checked);
    toggle(extra);
    EXPECT_FALSE(stateOf(extra).checked);
}

TEST_P(KarvelloSpoken, SaysWhichSectionIsSelected)
{
    listen("KarvelloSidebarItem { objectName: 'one'; text: 'Home'; isSelected: true }"
           "KarvelloSidebarItem { objectName: 'two'; text: 'Settings' }");
    for (const char* const name : {"one", "two"}) {
        EXPECT_EQ(roleOf(find(name)), QAccessible::ListItem);
        EXPECT_TRUE(stateOf(find(name)).selectable);
        EXPECT_TRUE(stateOf(find(name)).focusable);
        EXPECT_FALSE(stateOf(find(name)).checkable);
    }
    // What assistants do with an item by default is the first of what can be done.
    EXPECT_EQ(
        spoken(find("two"))->actionInterface()->actionNames().value(0), QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(stateOf(find("one")).selected);
    EXPECT_FALSE(stateOf(find("two")).selected);
}

TEST_P(KarvelloSpoken, SaysWhichCellOfTheTreemapIsSelected)
{
    listen("KarvelloTreemapCell { objectName: 'cell'; isSelected: true; width: 80; height: 60;"
           " cell: ({ name: 'Movies', sizeText: '2 GB', tint: 'red' }) }");
    EXPECT_EQ(roleOf(find("cell")), QAccessible::ListItem);
    EXPECT_TRUE(stateOf(find("cell")).selected);
    EXPECT_FALSE(stateOf(find("cell")).checkable);
    EXPECT_EQ(nameOf(find("cell")), "Movies, 2 GB");
}

TEST_P(KarvelloSpoken, SaysOfBoxesAndSwitchesHowTheyStand)
{
    listen("KarvelloCheckBox { objectName: 'mixed'; accessibleName: 'All'; checkState: Qt.PartiallyChecked }"
           "KarvelloCheckBox { objectName: 'locked'; accessibleName: 'No'; isLocked: true }"
           "KarvelloSwitch { objectName: 'switch'; accessibleName: 'Reminders'; checked: true }");
    EXPECT_EQ(roleOf(find("mixed")), QAccessible::CheckBox);
    EXPECT_TRUE(stateOf(find("mixed")).checkStateMixed);
    EXPECT_FALSE(stateOf(find("mixed")).checked);
    EXPECT_FALSE(stateOf(find("locked")).checkable);
    EXPECT_EQ(roleOf(find("switch")), QAccessible::CheckBox);
    EXPECT_TRUE(stateOf(find("switch")).checked);
    toggle(find("switch"));
    EXPECT_FALSE(stateOf(find("switch")).checked);
}

TEST_P(KarvelloSpoken, SaysWhatIsFoldedAway)
{
    listen("KarvelloSidebarGroup { objectName: 'group'; text: 'Advanced'; isCollapsible: true; openText: 'Expanded';"
           " onOpenRequested: isOpen => openText = isOpen ? 'Expanded' : 'Collapsed' }"
           "KarvelloSidebarGroup { objectName: 'heading'; text: 'Support' }"
           "KarvelloSectionHeader { objectName: 'head'; width: 600; name: 'Safe'; openText: 'Collapsed' }");
    auto* const group = find("group");
    EXPECT_EQ(roleOf(group), QAccessible::Button);
    EXPECT_FALSE(stateOf(group).checkable);
    EXPECT_EQ(spoken(group)->text(QAccessible::Description), QStringLiteral("Expanded"));
    EXPECT_TRUE(stateOf(group).expandable);
    EXPECT_TRUE(stateOf(group).expanded);
    group->setProperty("isOpen", false);
    EXPECT_TRUE(stateOf(group).collapsed);
    EXPECT_FALSE(stateOf(group).expanded);
    group->setProperty("isOpen", true);
    press(group);
    EXPECT_EQ(spoken(group)->text(QAccessible::Description), QStringLiteral("Collapsed"));
    EXPECT_EQ(roleOf(find("heading")), QAccessible::Heading);
    EXPECT_FALSE(stateOf(find("heading")).expandable);
    EXPECT_EQ(spoken(find("head"))->text(QAccessible::Description), QStringLiteral("Collapsed"));
    ASSERT_EQ(spoken(find("head"))->childCount(), 3) << "box, chevron, note";
    EXPECT_EQ(spoken(find("head"))->child(1)->text(QAccessible::Name), QStringLiteral("Safe, Collapsed"));
}

TEST_P(KarvelloSpoken, KeepsTheKindsOfTextFieldsAndBars)
{
    listen("KarvelloTextField { objectName: 'field'; accessibleName: 'Filter'; clearName: 'Clear' }"
           "KarvelloProgressBar { objectName: 'bar'; accessibleName: 'Scan'; value: 0.5 }"
           "KarvelloDropDown { objectName: 'list'; accessibleName: 'Language'; model: ['a', 'b'] }"
           "KarvelloButton { objectName: 'button'; text: 'Scan' }");
    EXPECT_EQ(roleOf(find("field")), QAccessible::EditableText);
    EXPECT_EQ(roleOf(find("bar")), QAccessible::ProgressBar);
    EXPECT_EQ(roleOf(find("list")), QAccessible::ComboBox);
    EXPECT_EQ(nameOf(find("list")), "Language, a");
    EXPECT_EQ(roleOf(find("button")), QAccessible::Button);
}

} // namespace KarvelloUI
