#include "Tests/KarvelloUI/Controls/ControlsFixture.h"

namespace KarvelloUI {

/// A map of four quarters, the last of which is a stripe at its right edge.
class KarvelloTreemap : public Controls {
protected:
    void showMap(const std::string& properties = "")
    {
        show(
            ("KarvelloTreemap { objectName: 'map'; width: 600; height: 400; accessibleName: 'Storage Map'; cells: ["
             "{ id: 'a', name: 'Videos', sizeText: '9 GB', countText: '4 items', shareText: '50%', partialText: "
             "'partial',"
             "  tint: '#ff0000', x: 0, y: 0, width: 0.5, height: 0.5 },"
             "{ id: 'b', name: '<b>Projects</b>', sizeText: '5 GB', tint: '#00ff00', x: 0.5, y: 0, width: 0.45, "
             "height: 0.5 },"
             "{ id: 'c', name: 'Music', sizeText: '4 GB', tint: '#0000ff', x: 0, y: 0.5, width: 0.95, height: 0.5 },"
             "{ id: 'd', name: 'Desktop', sizeText: '1 GB', tint: '#0000ff', x: 0.95, y: 0, width: 0.05, height: 1 }]; "
                + properties + " } KarvelloButton { objectName: 'after'; text: 'after' }")
                .c_str());
        m_map = find("map");
        m_selected = std::make_unique<QSignalSpy>(m_map, SIGNAL(selected(QVariant)));
        m_activated = std::make_unique<QSignalSpy>(m_map, SIGNAL(activated(QVariant)));
    }

    static std::string last(const QSignalSpy& spy)
    {
        return spy.isEmpty() ? "none" : spy.last()[0].value<QVariant>().toString().toStdString();
    }
    [[nodiscard]] QObject* cell(int index) const { return spoken(m_map)->child(index)->object(); }
    [[nodiscard]] QRectF place(int index) const
    {
        const auto* const item = qobject_cast<QQuickItem*>(cell(index));
        return {item->x(), item->y(), item->width(), item->height()};
    }

    QQuickItem* m_map = nullptr;
    std::unique_ptr<QSignalSpy> m_selected;
    std::unique_ptr<QSignalSpy> m_activated;
};

TEST_F(KarvelloTreemap, FillsItsPlaceWithCellsThreePixelsApart)
{
    showMap();
    EXPECT_EQ(place(0).topLeft(), QPointF(0, 0));
    EXPECT_EQ(place(1).left() - place(0).right(), 3);
    EXPECT_EQ(place(2).top() - place(0).bottom(), 3);
    EXPECT_EQ(place(3).left() - place(1).right(), 3);
    EXPECT_EQ(place(3).right(), 600);
    EXPECT_EQ(place(2).bottom(), 400);
}

TEST_F(KarvelloTreemap, IsOneStopInWhichArrowsSelectTheNearestCell)
{
    showMap("onSelected: id => selectedId = id; selectedId: 'a'");
    key(Qt::Key_Tab);
    EXPECT_EQ(m_selected->count(), 0);
    key(Qt::Key_Right);
    EXPECT_EQ(last(*m_selected), "b");
    key(Qt::Key_Right);
    EXPECT_EQ(last(*m_selected), "d");
    key(Qt::Key_Right);
    EXPECT_EQ(m_selected->count(), 2) << "there is nothing farther to the right";
    key(Qt::Key_Left);
    key(Qt::Key_Down);
    EXPECT_EQ(last(*m_selected), "c");
    key(Qt::Key_Home);
    EXPECT_EQ(last(*m_selected), "a");
    key(Qt::Key_End);
    EXPECT_EQ(last(*m_selected), "d");
    EXPECT_EQ(m_activated->count(), 0);
    key(Qt::Key_Return);
    EXPECT_EQ(last(*m_activated), "d");
    key(Qt::Key_Space);
    EXPECT_EQ(m_activated->count(), 2);
    key(Qt::Key_Tab);
    EXPECT_TRUE(find("after")->hasActiveFocus());
}

TEST_F(KarvelloTreemap, OnlyAsksAndShowsTheSelectionOfItsOwner)
{
    showMap();
    click(m_map, {500, 40});
    EXPECT_EQ(last(*m_selected), "b");
    EXPECT_FALSE(spoken(cell(1))->state().selected);
    m_map->setProperty("selectedId", QStringLiteral("c"));
    EXPECT_TRUE(spoken(cell(2))->state().selected);
    m_map->setProperty("selectedId", QStringLiteral("gone"));
    EXPECT_FALSE(spoken(cell(2))->state().selected);
}

TEST_F(KarvelloTreemap, TellsWhatThePointerIsOver)
{
    showMap();
    QSignalSpy hovered(m_map, SIGNAL(hovered(QVariant)));
    QTest::mouseMove(m_window.get(), {490, 40});
    QTest::mouseMove(m_window.get(), {500, 40});
    EXPECT_TRUE(QTest::qWaitFor([&] { return last(hovered) == "b"; }));
    QTest::mouseMove(m_window.get(), {500, 470});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !hovered.isEmpty() && !hovered.last()[0].value<QVariant>().isValid(); }));
}

TEST_F(KarvelloTreemap, SaysOfEachCellWhatItIs)
{
    showMap();
    EXPECT_EQ(nameOf(m_map), "Storage Map");
    EXPECT_EQ(nameOf(cell(0)), "Videos, 9 GB, 4 items, 50%, partial");
    EXPECT_EQ(nameOf(cell(1)), "<b>Projects</b>, 5 GB");
}

TEST_F(KarvelloTreemap, SelectsWhatAnAssistantPressesAsAClickDoes)
{
    showMap("onSelected: id => selectedId = id; selectedId: 'a'");
    press(cell(1));
    EXPECT_EQ(last(*m_selected), "b");
    EXPECT_EQ(m_activated->count(), 0);
    EXPECT_TRUE(spoken(cell(1))->state().selected);
}

TEST_F(KarvelloTreemap, SaysAsMuchInACellAsItHasRoomFor)
{
    showMap();
    EXPECT_TRUE(cell(0)->property("isTall").toBool());
    EXPECT_FALSE(cell(3)->property("hasName").toBool());
    m_map->setHeight(180);
    EXPECT_TRUE(cell(0)->property("isLarge").toBool());
    EXPECT_FALSE(cell(0)->property("isTall").toBool());
    m_map->setHeight(120);
    EXPECT_TRUE(cell(0)->property("isMedium").toBool());
    m_map->setHeight(60);
    EXPECT_FALSE(cell(0)->property("isMedium").toBool());
    EXPECT_TRUE(cell(0)->property("hasName").toBool());
    m_map->setHeight(40);
    EXPECT_FALSE(cell(0)->property("hasName").toBool());
}

TEST_F(KarvelloTreemap, CanBeEmptyAndFilledLater)
{
    show("KarvelloTreemap { objectName: 'map'; width: 600; height: 400 }");
    auto* const map = find("map");
    map->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    map->setProperty("cells",
        QVariantList{QVariantMap{{QStringLiteral("id"), QStringLiteral("x")},
            {QStringLiteral("name"), QStringLiteral("X")}, {QStringLiteral("sizeText"), QStringLiteral("1 B")},
            {QStringLiteral("tint"), QStringLiteral("#123456")}, {QStringLiteral("x"), 0}, {QStringLiteral("y"), 0},
            {QStringLiteral("width"), 1}, {QStringLiteral("height"), 1}}});
    EXPECT_EQ(spoken(map)->childCount(), 1);
    EXPECT_EQ(spoken(map)->child(0)->text(QAccessible::Name), QStringLiteral("X, 1 B"));
}

} // namespace KarvelloUI
