#pragma once

#include "Tests/KarvelloUI/Dashboard/ScreenWindow.h"
#include "Tests/KarvelloUI/Screens/Home/HomeFixture.h"

namespace HomeTests {

/// The home screen in a window.
class HomeWindowTest : public DashboardTests::ScreenWindow<HomeTest> {
protected:
    /// A throw ends the test.
    void show(int width = 1240, int height = 820)
    {
        ScreenWindow::show("Home", "HomeScreen", home.get(), width, height);
    }
};

} // namespace HomeTests
