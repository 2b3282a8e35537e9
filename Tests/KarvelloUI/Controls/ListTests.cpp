#include "Tests/KarvelloUI/Controls/ControlsFixture.h"

namespace KarvelloUI {

namespace {

constexpr const char* kRow = "KarvelloListRow { objectName: 'row'; name: 'pip'; path: '~/.cache/pip';"
                             " reason: 'Package-manager caches'; size: '1.27 GB'; age: '26 days'; pillText: 'Safe';"
                             " menuName: 'Actions'";

} // namespace

/// A row, and what it asked for.
class KarvelloListRow : public Controls {
protected:
    void showRow(const std::string& properties = "")
    {
        show((kRow + properties + (properties.contains("width") ? " }" : "; width: 640 }")).c_str());
        m_row = find("row");
        m_toggles = std::make_unique<QSignalSpy>(m_row, SIGNAL(toggleRequested()));
        m_opens = std::make_unique<QSignalSpy>(m_row, SIGNAL(openRequested(bool)));
        m_menus = std::make_unique<QSignalSpy>(m_row, SIGNAL(menuRequested(QPointF)));
    }

    QQuickItem* m_row = nullptr;
    std::unique_ptr<QSignalSpy> m_toggles;
    std::unique_ptr<QSignalSpy> m_opens;
    std::unique_ptr<QSignalSpy> m_menus;
};

TEST_F(KarvelloListRow, AsksToToggleOnceHoweverItIsPressed)
{
    showRow();
    click(m_row, {24, 27});
    EXPECT_EQ(m_toggles->count(), 1) << "the box";
    click(m_row, {4, 4});
    EXPECT_EQ(m_toggles->count(), 2) << "a blank place";
    key(Qt::Key_Space);
    EXPECT_EQ(m_toggles->count(), 3);
    toggle(m_row);
    EXPECT_EQ(m_toggles->count(), 4);
    press(m_row);
    EXPECT_EQ(m_toggles->count(), 5);
    EXPECT_FALSE(m_row->property("isChecked").toBool());
    EXPECT_EQ(m_opens->count(), 0);
}

TEST_F(KarvelloListRow, OpensOnItsTextsAndDoesNotToggleThen)
{
    showRow();
    click(m_row, {110, 20});
    ASSERT_EQ(m_opens->count(), 1);
    EXPECT_TRUE((*m_opens)[0][0].toBool());
    EXPECT_EQ(m_toggles->count(), 0);
}

TEST_F(KarvelloListRow, OpensAndClosesWithTheArrows)
{
    showRow();
    m_row->forceActiveFocus();
    key(Qt::Key_Left);
    EXPECT_EQ(m_opens->count(), 0);
    key(Qt::Key_Right);
    EXPECT_EQ(m_opens->count(), 1);
    m_row->setProperty("isOpen", true);
    key(Qt::Key_Right);
    EXPECT_EQ(m_opens->count(), 1);
    key(Qt::Key_Left);
    ASSERT_EQ(m_opens->count(), 2);
    EXPECT_FALSE((*m_opens)[1][0].toBool());
}

TEST_F(KarvelloListRow, AsksForItsMenuByKeysAndRightClick)
{
    showRow();
    m_row->forceActiveFocus();
    key(Qt::Key_Menu);
    key(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(m_menus->count(), 2);
    QTest::mouseClick(m_window.get(), Qt::RightButton, Qt::NoModifier, m_row->mapToScene({300, 20}).toPoint());
    EXPECT_EQ(m_menus->count(), 3);
    EXPECT_EQ(m_toggles->count(), 0);
}

TEST_F(KarvelloListRow, TogglesNothingThatMayNotBeSelected)
{
    showRow("; isSelectable: false");
    click(m_row, {24, 27});
    click(m_row, {4, 4});
    key(Qt::Key_Space);
    press(m_row);
    toggle(m_row);
    EXPECT_EQ(m_toggles->count(), 0);
    EXPECT_FALSE(spoken(m_row)->state().checkable);
}

TEST_F(KarvelloListRow, SaysAllOfItselfAsOneCheckBox)
{
    showRow("; isChecked: true; warning: 'Firefox is running'");
    EXPECT_EQ(nameOf(m_row), "pip, Safe, 1.27 GB, ~/.cache/pip, Firefox is running, Package-manager caches, 26 days");
    EXPECT_EQ(spoken(m_row)->role(), QAccessible::CheckBox);
    EXPECT_TRUE(spoken(m_row)->state().checked);
    // Only the menu is left to be found inside.
    ASSERT_EQ(spoken(m_row)->childCount(), 1);
    EXPECT_EQ(spoken(m_row)->child(0)->text(QAccessible::Name), QStringLiteral("Actions"));
}

TEST_F(KarvelloListRow, GrowsWithItsTextAtTwoHundredPercent)
{
    showRow("; width: 900");
    EXPECT_EQ(m_row->height(), 54);
    m_design.setTextEnvironment(
        {.scale = KarvelloTextScale::extraLarge, .dynamicTypeSize = DynamicTypeSize::accessibility2});
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_row->height() >= 76; }));
}

TEST_F(KarvelloListRow, ShowsItsDetailsBelowWhileItIsOpenAndDoesNotToggleThere)
{
    showRow("; width: 900; details: Rectangle { objectName: 'details'; implicitHeight: 80 }");
    EXPECT_EQ(m_row->height(), 54);
    m_row->setProperty("isOpen", true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_row->height() == 54 + 80 + 8; }));
    click(m_row, {400, 100});
    EXPECT_EQ(m_toggles->count(), 0);
    EXPECT_EQ(m_opens->count(), 0);
    m_row->setProperty("isOpen", false);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_row->height() == 54; }));
}

TEST_F(KarvelloListRow, MovesItsReasonBelowThePathWhereItsColumnIsTooNarrow)
{
    showRow("; width: 900");
    EXPECT_TRUE(m_row->property("hasReasonColumn").toBool());
    m_row->setWidth(700);
    EXPECT_FALSE(m_row->property("hasReasonColumn").toBool());
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_row->height() > 54; })) << "a third line";
    m_row->setWidth(900);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_row->height() == 54; }));
}

using KarvelloSectionHeader = Controls;

TEST_F(KarvelloSectionHeader, AsksAndSaysWhatItStandsFor)
{
    show("KarvelloSectionHeader { objectName: 'header'; width: 600; name: 'Safe'; count: '31 items'; total: '7.11 GB';"
         " checkState: Qt.PartiallyChecked; accessibleValue: '4 of 31 selected' }");
    auto* const header = find("header");
    QSignalSpy toggles(header, SIGNAL(toggleRequested()));
    QSignalSpy opens(header, SIGNAL(openRequested(bool)));
    EXPECT_EQ(spoken(header)->role(), QAccessible::Heading);
    EXPECT_EQ(nameOf(header), "Safe, 31 items, 7.11 GB");
    EXPECT_EQ(spoken(header)->text(QAccessible::Description), QStringLiteral("4 of 31 selected"));
    click(header, {24, 20});
    EXPECT_EQ(toggles.count(), 1);
    EXPECT_TRUE(spoken(header)->child(0)->state().checkStateMixed);
    toggle(spoken(header)->child(0)->object());
    EXPECT_EQ(toggles.count(), 2);
    EXPECT_TRUE(spoken(header)->child(0)->state().checkStateMixed);
    header->setProperty("checkState", Qt::Checked);
    EXPECT_TRUE(spoken(header)->child(0)->state().checked);
    key(Qt::Key_Tab);
    key(Qt::Key_Space);
    ASSERT_EQ(opens.count(), 1);
    EXPECT_FALSE(opens[0][0].toBool());
}

} // namespace KarvelloUI
