#include "KarvelloUI/Screens/Popover/StatusPopoverModel.h"
#include "Tests/KarvelloUI/Controls/WindowTest.h"
#include "Tests/KarvelloUI/MenuBar/MenuBarModelFixture.h"

#include <QSignalSpy>

namespace KarvelloUI {

namespace {

/// The popover in a window of its size.
class StatusPopover : public WindowTest<MenuBarTests::MenuBarModelTest> {
protected:
    void open(const KarvelloMenuBarStatusSnapshot& machine, AppLanguage language = AppLanguage::english)
    {
        m_first = machine;
        make();
        ASSERT_TRUE(m_preferences.setLanguage(language));
        m_popover = std::make_unique<StatusPopoverModel>(*m_model, m_preferences);
        showWindow("import Karvello.Screens.Popover\n"
                   "Window { id: window; required property var popover; width: 360; height: 540; visible: true\n"
                   "StatusPopover { anchors.fill: parent; focus: true; popover: window.popover } }",
            {{QStringLiteral("popover"), QVariant::fromValue(m_popover.get())}});
        layOut();
    }
    /// The window goes before what it shows.
    ~StatusPopover() override { m_window.reset(); }

    DashboardPreferences m_preferences{m_defaults, {"en"}};
    std::unique_ptr<StatusPopoverModel> m_popover;
};

KarvelloMenuBarStatusSnapshot fullDisk(KarvelloMenuBarStatusSnapshot machine)
{
    machine.diskTotalBytes = std::int64_t{476} << 30;
    machine.diskFreeBytes = std::int64_t{43} << 30;
    return machine;
}

TEST_F(StatusPopover, StartsAtTheDashboardAndGoesRoundByTab)
{
    open(MenuBarTests::strained());
    EXPECT_EQ(focused(), find("openDashboard"));
    key(Qt::Key_Tab);
    EXPECT_EQ(focused(), find("quit"));
    std::vector<std::string> names;
    for (int step = 0; step < 4; ++step) {
        key(Qt::Key_Tab);
        names.push_back(nameOf(focused()));
    }
    EXPECT_THAT(names,
        testing::ElementsAre("Review Cleanup", "Open Memory Analysis", "Review System Status", "Open Dashboard"));
}

TEST_F(StatusPopover, ClosesByEscapeFromAnyPlace)
{
    open(MenuBarTests::strained());
    const QSignalSpy closed(m_popover.get(), &StatusPopoverModel::closeRequested);
    key(Qt::Key_Escape);
    key(Qt::Key_Tab);
    key(Qt::Key_Tab);
    key(Qt::Key_Escape);
    EXPECT_EQ(closed.count(), 2);
}

TEST_F(StatusPopover, ActsByKeyboardAndForAssistants)
{
    open(MenuBarTests::strained());
    const QSignalSpy opened(m_popover.get(), &StatusPopoverModel::openDashboardRequested);
    const QSignalSpy quit(m_popover.get(), &StatusPopoverModel::quitRequested);
    key(Qt::Key_Return);
    key(Qt::Key_Tab);
    key(Qt::Key_Tab);
    key(Qt::Key_Space);
    press(find("quit"));
    ASSERT_EQ(opened.count(), 2);
    EXPECT_EQ(opened.at(0).constFirst().toString(), QStringLiteral("dashboard"));
    EXPECT_EQ(opened.at(1).constFirst().toString(), QStringLiteral("cleanupReview"));
    EXPECT_EQ(quit.count(), 1);
}

TEST_F(StatusPopover, SpeaksEachFigureWithItsName)
{
    open(MenuBarTests::calm());
    EXPECT_EQ(nameOf(find("cpu")), "CPU, 25%");
    EXPECT_EQ(nameOf(find("thermal")), "Thermal, Nominal");
    EXPECT_EQ(nameOf(find("calm")), "No alerts need review now");
    EXPECT_EQ(spoken(find("storage"))->text(QAccessible::Description).toStdString(), "500 bytes / 1000 bytes used");
}

TEST_F(StatusPopover, KeepsTheKeyboardOnARowThroughAPoll)
{
    open(MenuBarTests::strained());
    key(Qt::Key_Tab);
    key(Qt::Key_Tab);
    key(Qt::Key_Tab);
    QObject* const memory = focused();
    ASSERT_EQ(nameOf(memory), "Open Memory Analysis");
    m_machine = MenuBarTests::strained();
    m_machine.diskFreeBytes = 500;
    refreshNow();
    EXPECT_EQ(m_popover->triage()->rowCount(), 2);
    EXPECT_EQ(focused(), memory);
}

TEST_F(StatusPopover, ScrollsTheTriageToTheRowWithTheKeyboardAndKeepsItsFoot)
{
    open(MenuBarTests::strained("Critical"));
    m_design.setTextEnvironment({.scale = KarvelloTextScale::extraLarge});
    QTest::qWait(50);
    auto* const dashboard = find("openDashboard");
    EXPECT_LE(dashboard->mapToScene({0, dashboard->height()}).y(), 540);
    for (int step = 0; step < 4; ++step) {
        key(Qt::Key_Tab);
    }
    auto* const last = qobject_cast<QQuickItem*>(focused());
    ASSERT_EQ(nameOf(last), "Review System Status");
    EXPECT_GT(find("scroll")->property("contentY").toDouble(), 0);
    EXPECT_LE(last->mapToScene({0, last->height()}).y(), dashboard->mapToScene({0, 0}).y());
}

TEST_F(StatusPopover, FitsItsWordsInEveryLanguageAndScale)
{
    open(fullDisk(MenuBarTests::strained("Critical")));
    for (const auto language : Platform::allCases<AppLanguage>()) {
        for (const auto scale : {KarvelloTextScale::standard, KarvelloTextScale::extraLarge}) {
            ASSERT_TRUE(m_preferences.setLanguage(language));
            m_design.setTextEnvironment({.scale = scale});
            QTest::qWait(30);
            for (const auto* item : m_window->findChildren<QQuickItem*>()) {
                if (item->isVisible() && item->property("truncated").toBool()) {
                    ADD_FAILURE() << Platform::rawValue(language) << ' ' << static_cast<int>(scale) << ": "
                                  << item->property("text").toString().toStdString();
                }
            }
            photograph(
                "popover-" + std::string(Platform::rawValue(language)) + "-" + std::string(Platform::rawValue(scale)));
        }
    }
}

TEST_F(StatusPopover, IsPhotographedInBothSchemes)
{
    open(fullDisk(MenuBarTests::calm()));
    for (const auto mode : {KarvelloAppearanceMode::light, KarvelloAppearanceMode::dark}) {
        m_design.setAppearanceMode(mode);
        const QImage picture = m_window->grabWindow();
        EXPECT_EQ(picture.size(), QSize(360, 540));
        EXPECT_EQ(QColor(picture.pixel(4, 300)), m_design.elevated1());
        photograph("popover-" + std::string(Platform::rawValue(mode)));
    }
}

} // namespace

} // namespace KarvelloUI
