#include <gtest/gtest.h>

#include <QAccessible>
#include <QGuiApplication>
#include <QQuickWindow>

// Windows exist only in memory, so that the tests need no display and disturb none.
int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    QAccessible::setActive(true);
    return RUN_ALL_TESTS();
}
