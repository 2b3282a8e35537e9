#include "Tests/KarvelloUI/Controls/ControlsFixture.h"

namespace KarvelloUI {

using KarvelloText = Controls;
using KarvelloTextField = Controls;
using KarvelloProgressBar = Controls;
using KarvelloRing = Controls;
using KarvelloSparkline = Controls;
using KarvelloPillItem = Controls;
using KarvelloBanner = Controls;
using KarvelloCard = Controls;

TEST_F(KarvelloText, TakesAHostileNameAsItStandsOnOneLine)
{
    show("KarvelloText { objectName: 'plain'; text: 'a' }"
         "KarvelloText { objectName: 'hostile'; text: '<b>bold</b>\\n<img src=\"file:///etc/passwd\">'; width: 100 }");
    auto* const hostile = find("hostile");
    EXPECT_EQ(hostile->property("lineCount").toInt(), 1);
    EXPECT_EQ(hostile->height(), find("plain")->height());
    EXPECT_TRUE(hostile->property("truncated").toBool());
    EXPECT_EQ(nameOf(hostile), "<b>bold</b>\n<img src=\"file:///etc/passwd\">");
}

TEST_F(KarvelloText, ShowsAllOfAnElidedTextUnderThePointer)
{
    show("KarvelloText { objectName: 'text'; y: 60; width: 60; text: 'a name that is far too long for its column' }");
    auto* const text = find("text");
    ASSERT_TRUE(text->property("truncated").toBool());
    QTest::mouseMove(m_window.get(), text->mapToScene({20, 5}).toPoint());
    QObject* tip = nullptr;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        for (QObject* const child : text->findChildren<QObject*>()) {
            tip = child->inherits("QQuickToolTip") ? child : tip;
        }
        return tip != nullptr && tip->property("visible").toBool();
    }));
    ASSERT_TRUE(tip);
    EXPECT_EQ(tip->property("text"), text->property("text"));
}

TEST_F(KarvelloTextField, EscapeClearsFirstAndIsLeftToOthersThen)
{
    show(
        "Item { objectName: 'outer'; property int escapes: 0; width: 300; height: 40; Keys.onEscapePressed: escapes += "
        "1;"
        " KarvelloTextField { objectName: 'field'; text: 'firefox'; placeholderText: 'Search'; clearName: 'Clear' } }");
    auto* const field = find("field");
    field->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_EQ(nameOf(field), "Search");
    key(Qt::Key_Escape);
    EXPECT_EQ(field->property("text").toString(), QString());
    EXPECT_EQ(find("outer")->property("escapes").toInt(), 0);
    key(Qt::Key_Escape);
    EXPECT_EQ(find("outer")->property("escapes").toInt(), 1);
}

TEST_F(KarvelloTextField, IsClearedByItsButtonAndKeepsTheFocus)
{
    show("KarvelloTextField { objectName: 'field'; width: 200; clearName: 'Clear search' }");
    auto* const field = find("field");
    field->forceActiveFocus();
    key(Qt::Key_A);
    EXPECT_EQ(field->property("text").toString(), QStringLiteral("a"));
    click(field, {185, field->height() / 2});
    EXPECT_EQ(field->property("text").toString(), QString());
    EXPECT_TRUE(field->hasActiveFocus());
}

TEST_F(KarvelloProgressBar, ShowsAStillPieceWithoutAKnownFraction)
{
    show("KarvelloProgressBar { objectName: 'known'; width: 200; value: 0.5; accessibleName: 'Scan' }"
         "KarvelloProgressBar { objectName: 'unknown'; width: 200; indeterminate: true }"
         "KarvelloProgressBar { objectName: 'none'; width: 200 }"
         "KarvelloProgressBar { objectName: 'little'; width: 200; value: 0.001 }");
    const auto filled = [this](const char* name) {
        auto* const content = find(name)->property("contentItem").value<QQuickItem*>();
        return content->childItems().constFirst()->width();
    };
    EXPECT_EQ(filled("known"), 100);
    EXPECT_EQ(filled("unknown"), 60);
    EXPECT_EQ(filled("none"), 0);
    EXPECT_EQ(filled("little"), 8);
    EXPECT_EQ(spoken(find("known"))->role(), QAccessible::ProgressBar);
    EXPECT_EQ(nameOf(find("known")), "Scan");
}

TEST_F(KarvelloRing, ShowsNothingForAnUnknownShareAndNeverMoreThanAll)
{
    show("KarvelloRing { objectName: 'half'; value: 0.5; text: '50%'; accessibleName: 'Free space' }"
         "KarvelloRing { objectName: 'unknown' } KarvelloRing { objectName: 'more'; value: 7 }"
         "KarvelloRing { objectName: 'nan'; value: NaN }");
    EXPECT_EQ(find("half")->property("share").toDouble(), 0.5);
    EXPECT_EQ(find("unknown")->property("share").toDouble(), 0);
    EXPECT_EQ(find("more")->property("share").toDouble(), 1);
    EXPECT_EQ(find("nan")->property("share").toDouble(), 0);
    EXPECT_EQ(nameOf(find("half")), "Free space");
    EXPECT_EQ(spoken(find("half"))->text(QAccessible::Description), QStringLiteral("50%"));
}

TEST_F(KarvelloSparkline, ShowsTheLatestSamplesWithinItsScale)
{
    show("KarvelloSparkline { objectName: 'line'; width: 106; height: 46; samples: [0.5, 2, -1, NaN, 1] }"
         "KarvelloSparkline { objectName: 'many'; samples: Array.from({ length: 100 }, (_, index) => index / 100) }");
    const auto points = find("line")->property("points").value<QJSValue>().toVariant().toList();
    ASSERT_EQ(points.size(), 4);
    EXPECT_EQ(points[0].toPointF(), QPointF(3, 23));
    EXPECT_EQ(points[1].toPointF().y(), 3);
    EXPECT_EQ(points[2].toPointF().y(), 43);
    EXPECT_EQ(points[3].toPointF(), QPointF(103, 3));
    const auto many = find("many")->property("points").value<QJSValue>().toVariant().toList();
    ASSERT_EQ(many.size(), 24);
    EXPECT_LT(many[23].toPointF().y(), many[0].toPointF().y());
}

TEST_F(KarvelloSparkline, SaysSoWhereThereAreTooFewSamples)
{
    show("KarvelloSparkline { objectName: 'none'; emptyText: 'No samples' }"
         "KarvelloSparkline { objectName: 'one'; samples: [0.5]; emptyText: '1 sample' }"
         "KarvelloSparkline { objectName: 'two'; samples: [0.5, 0.6]; emptyText: 'unseen' }");
    EXPECT_FALSE(find("none")->property("hasCourse").toBool());
    EXPECT_FALSE(find("one")->property("hasCourse").toBool());
    EXPECT_TRUE(find("two")->property("hasCourse").toBool());
}

TEST_F(KarvelloPillItem, SaysItsWordAndIsNoTallerThanItsText)
{
    show("KarvelloPill { objectName: 'pill'; text: 'Safe'; kind: KarvelloDesign.SafePill }");
    EXPECT_EQ(nameOf(find("pill")), "Safe");
    EXPECT_EQ(find("pill")->height(), 20);
    EXPECT_GT(find("pill")->width(), 34);
    EXPECT_EQ(find("pill")->property("color").value<QColor>(), qtColor(KarvelloDesign::lightPalette.safeSoft));
}

TEST_F(KarvelloBanner, IsAnAlertUnlessItIsANotice)
{
    show("KarvelloBanner { objectName: 'alert'; width: 400; kind: KarvelloBanner.Review; title: 'The scan failed';"
         " text: 'Why'; closeName: 'Close'; actionText: 'Open Settings' }"
         "KarvelloBanner { objectName: 'notice'; width: 400; text: 'Large folders can take time.' }");
    EXPECT_EQ(spoken(find("alert"))->role(), QAccessible::AlertMessage);
    EXPECT_EQ(nameOf(find("alert")), "The scan failed");
    EXPECT_EQ(spoken(find("alert"))->text(QAccessible::Description), QStringLiteral("Why"));
    EXPECT_EQ(spoken(find("notice"))->role(), QAccessible::Note);
    EXPECT_EQ(nameOf(find("notice")), "Large folders can take time.");
    QSignalSpy closed(find("alert"), SIGNAL(closeRequested()));
    QSignalSpy acted(find("alert"), SIGNAL(actionRequested()));
    key(Qt::Key_Tab);
    key(Qt::Key_Space);
    EXPECT_EQ(acted.count(), 1);
    key(Qt::Key_Tab);
    key(Qt::Key_Space);
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(KarvelloCard, GrowsWithItsContentAndTextEvenAtTwoHundredPercent)
{
    show("KarvelloCard { objectName: 'card'; width: 300; title: 'Safety baseline'; subtitle: 'Estimates only';"
         " KarvelloText { objectName: 'text'; Layout.fillWidth: true; wrapMode: Text.Wrap;"
         " text: 'Home stays status-and-summary only. Cleanup moves only selected review items to Trash.' } }");
    auto* const card = find("card");
    const auto fits = [&] {
        return find("text")->mapToItem(card, {0, find("text")->height()}).y() <= card->height() - 20;
    };
    EXPECT_EQ(nameOf(card), "Safety baseline");
    EXPECT_TRUE(fits());
    const qreal height = card->height();
    m_design.setTextEnvironment(
        {.scale = KarvelloTextScale::extraLarge, .dynamicTypeSize = DynamicTypeSize::accessibility2});
    EXPECT_TRUE(QTest::qWaitFor([&] { return card->height() > 1.8 * height; }));
    EXPECT_TRUE(fits());
}

TEST_F(KarvelloCard, GivesItsContentTheHeightOfItsNeighboursIfItWants)
{
    show("KarvelloCard { objectName: 'card'; width: 300; height: 300; fillsHeight: true;"
         " Item { Layout.fillHeight: true } KarvelloText { objectName: 'text'; text: 'Open' } }");
    const auto* const text = find("text");
    EXPECT_EQ(text->mapToItem(find("card"), {0, text->height()}).y(), 280);
    find("card")->setProperty("fillsHeight", false);
    EXPECT_TRUE(QTest::qWaitFor([&] { return text->mapToItem(find("card"), {0, text->height()}).y() < 100; }));
}

} // namespace KarvelloUI
