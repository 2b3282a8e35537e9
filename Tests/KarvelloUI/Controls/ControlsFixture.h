#pragma once

#include "Tests/KarvelloUI/Controls/WindowTest.h"

#include <QSignalSpy>

namespace KarvelloUI {

/// A window with controls in it.
class Controls : public WindowTest<testing::Test> {
protected:
    /// Shows a window with these items, one below the other. A throw ends the test.
    void show(const char* items)
    {
        showWindow(QByteArray("import QtQuick.Layouts\nWindow { width: 640; height: 480; visible: true\n"
                              "Column { width: parent.width\n")
            + items + "\n} }");
    }
};

} // namespace KarvelloUI
