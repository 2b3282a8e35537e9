#include "Tests/KarvelloUI/Controls/ControlsFixture.h"

namespace KarvelloUI {

using KarvelloEmptyState = Controls;
using KarvelloTimelineRow = Controls;
using KarvelloMetricTile = Controls;
using KarvelloProgressStrip = Controls;
using KarvelloSidebar = Controls;
using KarvelloFormRow = Controls;
using KarvelloKeeperRow = Controls;

TEST_F(KarvelloEmptyState, AsksForItsActionsAndSaysWhatIsMissing)
{
    show("KarvelloEmptyState { objectName: 'empty'; width: 600; title: 'Ready to scan'; text: 'Nothing yet.';"
         " actionText: 'Start New Scan'; secondaryText: 'Scan Settings' }");
    auto* const empty = find("empty");
    const QSignalSpy first(empty, SIGNAL(actionRequested()));
    const QSignalSpy second(empty, SIGNAL(secondaryRequested()));
    EXPECT_EQ(nameOf(empty), "Ready to scan");
    EXPECT_EQ(spoken(empty)->text(QAccessible::Description), QStringLiteral("Nothing yet."));
    key(Qt::Key_Tab);
    key(Qt::Key_Return);
    key(Qt::Key_Tab);
    key(Qt::Key_Return);
    EXPECT_EQ(first.count(), 1);
    EXPECT_EQ(second.count(), 1);
    const qreal height = empty->height();
    m_design.setTextEnvironment({.scale = KarvelloTextScale::extraLarge});
    EXPECT_TRUE(QTest::qWaitFor([&] { return empty->height() > height + 20; }));
}

TEST_F(KarvelloTimelineRow, SaysAllOfItselfAndLeadsToItsSection)
{
    show("KarvelloTimelineRow { objectName: 'row'; width: 400; title: 'Estimate'; figure: '11 GB'; date: '14 Nov';"
         " text: 'A sentence.'; detail: '42 candidates'; actionText: 'Cleanup Review'; kind: "
         "KarvelloTimelineRow.Estimate }");
    auto* const row = find("row");
    QSignalSpy asked(row, SIGNAL(actionRequested()));
    EXPECT_EQ(nameOf(row), "Estimate, 11 GB, 14 Nov, A sentence., 42 candidates");
    EXPECT_EQ(spoken(row)->role(), QAccessible::ListItem);
    key(Qt::Key_Tab);
    key(Qt::Key_Space);
    EXPECT_EQ(asked.count(), 1);
}

TEST_F(KarvelloMetricTile, SaysItsFigureAndDropsItsNoteFirst)
{
    show("KarvelloMetricTile { objectName: 'tile'; width: 300; iconName: 'cpu'; name: 'Thermal State'; note: 'TREND';"
         " figure: '18%'; unit: 'of 16'; text: 'Sampled every second'; samples: [0.1, 0.2]; accessibleValue: 'rising' "
         "}");
    auto* const tile = find("tile");
    EXPECT_EQ(nameOf(tile), "Thermal State, 18%, of 16, Sampled every second");
    EXPECT_EQ(spoken(tile)->text(QAccessible::Description), QStringLiteral("rising"));
    EXPECT_TRUE(tile->property("isRoomForNote").toBool());
    tile->setWidth(150);
    EXPECT_FALSE(tile->property("isRoomForNote").toBool());
}

namespace {

constexpr const char* kStrip =
    "KarvelloProgressStrip { objectName: 'strip'; width: 600; title: 'Scanning'; visiting: 'Visiting ~/.cache';"
    " progress: 0; progressText: Math.round(progress * 100) + '%'; cancelText: 'Cancel Operation';"
    " figures: [{ value: '5', label: 'Scanned' }, { value: '2', label: 'Candidates' }] }";

} // namespace

TEST_F(KarvelloProgressStrip, SpeaksAtTheStartWithEachTenthAndAtTheEnd)
{
    show(kStrip);
    auto* const strip = find("strip");
    auto* const announcement = find("announcement");
    EXPECT_EQ(spoken(announcement)->role(), QAccessible::AlertMessage);
    EXPECT_EQ(nameOf(announcement), "Scanning, 0%");
    QSignalSpy changes(strip, SIGNAL(spokenProgressChanged()));
    for (int percent = 1; percent <= 100; ++percent) {
        strip->setProperty("progress", percent / 100.0);
        QTest::qWait(0);
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return nameOf(announcement) == "Scanning, 100%"; }));
    EXPECT_EQ(changes.count(), 10);
}

TEST_F(KarvelloProgressStrip, KnowsNoPercentageWithoutAFraction)
{
    show(kStrip);
    auto* const strip = find("strip");
    strip->setProperty("progress", -1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return nameOf(find("announcement")) == "Scanning"; }));
    EXPECT_FALSE(strip->property("isKnown").toBool());
}

TEST_F(KarvelloProgressStrip, CanBeCancelledOnce)
{
    show(kStrip);
    auto* const strip = find("strip");
    const QSignalSpy cancelled(strip, SIGNAL(cancelRequested()));
    QMetaObject::invokeMethod(strip, "focusCancel");
    EXPECT_TRUE(m_window->activeFocusItem()->property("visualFocus").toBool());
    key(Qt::Key_Return);
    EXPECT_EQ(cancelled.count(), 1);
    strip->setProperty("isCancelling", true);
    key(Qt::Key_Return);
    EXPECT_EQ(cancelled.count(), 1);
}

TEST_F(KarvelloSidebar, ItemSaysTitleCountAndSelection)
{
    show("KarvelloSidebarItem { objectName: 'item'; text: 'Cleanup Review'; count: '42'; isSelected: true }");
    auto* const item = find("item");
    const QSignalSpy clicked(item, SIGNAL(clicked()));
    QSignalSpy moved(item, SIGNAL(moveRequested(int)));
    EXPECT_EQ(nameOf(item), "Cleanup Review, 42");
    EXPECT_TRUE(spoken(item)->state().selected);
    key(Qt::Key_Tab);
    key(Qt::Key_Return);
    key(Qt::Key_Space);
    press(item);
    EXPECT_EQ(clicked.count(), 3);
    key(Qt::Key_Down);
    key(Qt::Key_Home);
    ASSERT_EQ(moved.count(), 2);
    EXPECT_EQ(moved[0][0].toInt(), 1);
    EXPECT_EQ(moved[1][0].toInt(), -2);
}

TEST_F(KarvelloSidebar, GroupStaysOpenWhileItHoldsTheSelection)
{
    show("KarvelloSidebarGroup { objectName: 'group'; text: 'Advanced'; isCollapsible: true }");
    auto* const group = find("group");
    QSignalSpy asked(group, SIGNAL(openRequested(bool)));
    key(Qt::Key_Tab);
    key(Qt::Key_Return);
    click(group);
    press(group);
    ASSERT_EQ(asked.count(), 3);
    EXPECT_FALSE(asked[0][0].toBool());
    EXPECT_FALSE(spoken(group)->state().checkable) << "it is no box";
    group->setProperty("isHeldOpen", true);
    click(group);
    press(group);
    EXPECT_EQ(asked.count(), 3);
}

TEST_F(KarvelloSidebar, FootSaysWhatIsFree)
{
    show("KarvelloStorageFoot { objectName: 'foot'; width: 200; title: 'Storage'; freeText: '186 GB free';"
         " usedText: '290 GB / 476 GB used'; usedFraction: 0.6 }");
    EXPECT_EQ(nameOf(find("foot")), "Storage, 186 GB free, 290 GB / 476 GB used");
}

TEST_F(KarvelloFormRow, PutsItsControlBelowWhereBothDoNotFit)
{
    show("KarvelloFormRow { objectName: 'row'; width: 600; name: 'Language'; text: 'Of the dashboard.';"
         " KarvelloButton { objectName: 'control'; text: 'Change the language' } }");
    const auto* const row = find("row");
    const auto* const control = find("control");
    EXPECT_EQ(row->height(), 60);
    EXPECT_EQ(control->mapToItem(row, {control->width(), 0}).x(), 600 - 20);
    find("row")->setWidth(240);
    EXPECT_TRUE(QTest::qWaitFor([&] { return row->height() > 70 && control->mapToItem(row, {0, 0}).x() == 20; }));
    EXPECT_EQ(spoken(find("row"))->text(QAccessible::Description), QStringLiteral("Of the dashboard."));
}

TEST_F(KarvelloKeeperRow, CannotSelectTheKeeperAndSaysWhyItIsOne)
{
    show("KarvelloKeeperRow { objectName: 'row'; width: 640; isKeeper: true; name: 'a.iso'; path: '~/a.iso'; size: '1 "
         "GB';"
         " kindText: 'Keeper'; reasons: ['preferred folder', 'older copy']; isChecked: true }");
    auto* const row = find("row");
    const QSignalSpy toggled(row, SIGNAL(toggleRequested()));
    click(row, {24, 28});
    click(row, {300, 28});
    press(row);
    toggle(row);
    key(Qt::Key_Space);
    EXPECT_EQ(toggled.count(), 0);
    EXPECT_EQ(nameOf(row), "a.iso, Keeper, preferred folder, older copy, 1 GB, ~/a.iso");
    EXPECT_FALSE(spoken(row)->state().checkable);
    EXPECT_FALSE(spoken(row)->state().checked);
    EXPECT_EQ(row->height(), 56);
}

TEST_F(KarvelloKeeperRow, AsksToToggleAnExtraOnceHoweverItIsPressed)
{
    show("KarvelloKeeperRow { objectName: 'row'; width: 640; name: 'a.iso'; kindText: 'Extra copy'; menuName: "
         "'Actions' }");
    auto* const row = find("row");
    const QSignalSpy toggled(row, SIGNAL(toggleRequested()));
    const QSignalSpy menus(row, SIGNAL(menuRequested(QPointF)));
    click(row, {24, 26});
    click(row, {300, 26});
    key(Qt::Key_Space);
    press(row);
    EXPECT_EQ(toggled.count(), 4);
    key(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(menus.count(), 1);
    EXPECT_EQ(row->height(), 52);
    EXPECT_FALSE(row->property("isChecked").toBool());
}

} // namespace KarvelloUI
