#include "Tests/KarvelloUI/Controls/ControlsFixture.h"

namespace KarvelloUI {

using KarvelloDropDown = Controls;

namespace {

constexpr const char* kDropDown = "KarvelloDropDown { objectName: 'down'; accessibleName: 'Category';"
                                  " model: [{ value: 'a', text: 'All categories' }, { value: 'u', text: 'User Caches' "
                                  "}, { value: 't', text: 'Tools' }] }"
                                  "KarvelloButton { objectName: 'after'; text: 'after' }";

bool isOpen(const QObject* dropDown)
{
    return dropDown->property("popup").value<QObject*>()->property("opened").toBool();
}

} // namespace

TEST_F(KarvelloDropDown, IsOpenedChosenFromAndLeftByTheKeyboard)
{
    show(kDropDown);
    auto* const down = find("down");
    QSignalSpy chosen(down, SIGNAL(activated(int)));
    down->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([down] { return isOpen(down); }));
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([down] { return !isOpen(down); }));
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0].toInt(), 1);
    EXPECT_EQ(down->property("currentValue").toString(), QStringLiteral("u"));
    key(Qt::Key_Space);
    ASSERT_TRUE(QTest::qWaitFor([down] { return isOpen(down); }));
    key(Qt::Key_Down);
    key(Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([down] { return !isOpen(down); }));
    EXPECT_EQ(chosen.count(), 1) << "Escape chooses nothing";
    EXPECT_TRUE(down->hasActiveFocus());
    key(Qt::Key_Tab);
    EXPECT_TRUE(find("after")->hasActiveFocus());
}

TEST_F(KarvelloDropDown, SaysWhatItIsAndWhatIsChosen)
{
    show(kDropDown);
    auto* const down = find("down");
    EXPECT_EQ(nameOf(down), "Category, All categories");
    EXPECT_EQ(spoken(down)->role(), QAccessible::ComboBox);
    press(down);
    ASSERT_TRUE(QTest::qWaitFor([down] { return isOpen(down); }));
}

TEST_F(KarvelloDropDown, IsAsWideAsItsLongestTextAndGrowsWithIt)
{
    show(kDropDown);
    auto* const down = find("down");
    const qreal width = down->width();
    EXPECT_EQ(down->height(), 34);
    EXPECT_FALSE(down->property("contentItem").value<QQuickItem*>()->property("truncated").toBool());
    m_design.setTextEnvironment({.scale = KarvelloTextScale::extraLarge});
    EXPECT_TRUE(QTest::qWaitFor([&] { return down->width() > width + 20 && down->height() > 44; }));
    EXPECT_FALSE(down->property("contentItem").value<QQuickItem*>()->property("truncated").toBool());
}

TEST_F(KarvelloDropDown, TakesPlainTextsAsWell)
{
    show("KarvelloDropDown { objectName: 'down'; model: ['one', '<b>two</b>']; currentIndex: 1 }");
    EXPECT_EQ(find("down")->property("displayText").toString(), QStringLiteral("<b>two</b>"));
}

using KarvelloPicker = Controls;

namespace {

constexpr const char* kPicker =
    "KarvelloPicker { objectName: 'picker'; accessibleName: 'Grouping'; currentValue: 'list';"
    " choices: [{ value: 'list', text: 'List' }, { value: 'category', text: 'Category' }, { value: 'safety', text: "
    "'Safety' }] }";

} // namespace

TEST_F(KarvelloPicker, IsSegmentedWhileItFitsAndADropDownElse)
{
    show(kPicker);
    auto* const picker = find("picker");
    EXPECT_TRUE(picker->property("isSegmented").toBool());
    const qreal needed = picker->implicitWidth();
    EXPECT_NEAR(needed, picker->property("segmentsWidth").toReal(), 4);
    picker->setProperty("maximumWidth", 150);
    EXPECT_FALSE(picker->property("isSegmented").toBool());
    EXPECT_LE(picker->implicitWidth(), 150);
    EXPECT_EQ(picker->height(), 34);
    picker->setProperty("maximumWidth", needed + 4);
    EXPECT_TRUE(picker->property("isSegmented").toBool());
}

TEST_F(KarvelloPicker, AsksForTheValueInBothFormsAndLeavesItToItsOwner)
{
    show(kPicker);
    auto* const picker = find("picker");
    QSignalSpy picked(picker, SIGNAL(picked(QVariant)));
    key(Qt::Key_Tab);
    key(Qt::Key_Right);
    ASSERT_EQ(picked.count(), 1);
    EXPECT_EQ(picked[0][0].value<QVariant>().toString(), QStringLiteral("category"));
    EXPECT_EQ(picker->property("currentIndex").toInt(), 0);
    picker->setProperty("maximumWidth", 150);
    QQuickItem* down = nullptr;
    for (auto* const item : picker->findChildren<QQuickItem*>()) {
        down = item->inherits("QQuickComboBox") ? item : down;
    }
    ASSERT_NE(down, nullptr);
    ASSERT_TRUE(down->isVisible());
    down->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Down);
    ASSERT_EQ(picked.count(), 2);
    EXPECT_EQ(down->property("currentIndex").toInt(), 0) << "it shows what its owner holds";
    picker->setProperty("currentValue", QStringLiteral("safety"));
    EXPECT_EQ(down->property("displayText").toString(), QStringLiteral("Safety"));
}

} // namespace KarvelloUI
