#include "KarvelloMac/DashboardWindow.h"
#include "KarvelloMac/StatusPopover.h"

#include <QWindow>
#include <gtest/gtest.h>

namespace KarvelloMac {

namespace {

constexpr QRect kScreen(0, 0, 1920, 1080);

void name(QWindow& window, const char* identifier)
{
    window.setObjectName(QString::fromLatin1(identifier));
}

} // namespace

TEST(DashboardWindow, IsFoundByItsIdentifier)
{
    QWindow other;
    QWindow dashboard;
    name(dashboard, "karvello-dashboard");
    EXPECT_EQ(DashboardWindow::primary({&other, &dashboard}), &dashboard);
    EXPECT_EQ(DashboardWindow::primary({&other}), nullptr);
}

TEST(DashboardWindow, IsNeverAPanel)
{
    QWindow panel;
    name(panel, "karvello-dashboard");
    panel.setFlags(Qt::Tool);
    EXPECT_EQ(DashboardWindow::primary({&panel}), nullptr);
}

TEST(DashboardWindow, IsNoWindowThatCannotTakeTheKeyboard)
{
    QWindow window;
    name(window, "karvello-dashboard");
    window.setFlags(Qt::Window | Qt::WindowDoesNotAcceptFocus);
    EXPECT_EQ(DashboardWindow::primary({&window}), nullptr);
}

TEST(DashboardWindow, ComesOutOfTheTaskBar)
{
    QWindow window;
    window.showMinimized();
    DashboardWindow::bringForward(window);
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.windowStates().testFlag(Qt::WindowMinimized));
}

TEST(DashboardWindow, ComesForwardAsLargeAsItWas)
{
    QWindow window;
    window.showMaximized();
    window.hide();
    DashboardWindow::bringForward(window);
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(window.windowStates().testFlag(Qt::WindowMaximized));
}

TEST(DashboardWindow, OpensInTheMiddleOfTheScreen)
{
    EXPECT_EQ(DashboardWindow::placeOn(kScreen), QRect(340, 130, 1240, 820));
    EXPECT_EQ(DashboardWindow::placeOn(kScreen.translated(1920, 40)), QRect(2260, 170, 1240, 820));
}

TEST(DashboardWindow, CanBeTakenHoldOfOnASmallScreen)
{
    // As large as the screen, down to its smallest size, which hangs over at the right and below.
    EXPECT_EQ(DashboardWindow::placeOn({0, 0, 1366, 800}), QRect(63, 0, 1240, 800));
    EXPECT_EQ(DashboardWindow::placeOn({0, 28, 1024, 740}), QRect(0, 28, 1180, 780));
}

TEST(StatusPopover, HangsBelowAnItemAtTheTop)
{
    const QRect place = StatusPopover::placeFor(QRect(1000, 0, 22, 22), StatusPopover::kSize, kScreen);
    EXPECT_EQ(place.size(), QSize(360, 540));
    EXPECT_GE(place.top(), 22);
    EXPECT_LT(place.top(), 40);
    EXPECT_NEAR(place.center().x(), 1011, 2);
}

TEST(StatusPopover, StandsAboveAnItemAtTheBottom)
{
    const QRect place = StatusPopover::placeFor(QRect(1000, 1056, 22, 22), StatusPopover::kSize, kScreen);
    EXPECT_LT(place.bottom(), 1056);
}

TEST(StatusPopover, StaysOnTheScreen)
{
    for (const QPoint corner : {QPoint(0, 0), QPoint(1919, 0), QPoint(0, 1079), QPoint(1919, 1079)}) {
        EXPECT_TRUE(
            kScreen.contains(StatusPopover::placeFor(QRect(corner, QSize(1, 1)), StatusPopover::kSize, kScreen)));
    }
}

} // namespace KarvelloMac
