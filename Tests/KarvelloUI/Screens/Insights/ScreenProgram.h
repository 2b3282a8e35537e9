#pragma once

#include <QAccessible>
#include <QGuiApplication>
#include <QQuickWindow>
#include <gtest/gtest.h>

namespace InsightScreenTests {

/// The tests of a program whose windows exist only in memory, so that they need no display and disturb none.
inline int runScreenTests(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    QAccessible::setActive(true);
    return RUN_ALL_TESTS();
}

} // namespace InsightScreenTests
