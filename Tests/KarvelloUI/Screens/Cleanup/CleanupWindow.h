#pragma once

#include "KarvelloUI/Dashboard/ConfirmationModel.h"
#include "Tests/KarvelloUI/Controls/WindowTest.h"
#include "Tests/KarvelloUI/Screens/Cleanup/CleanupFixture.h"

namespace CleanupTests {

/// The review and its confirmation in a window, right of where the sidebar is.
class CleanupWindowTest : public WindowTest<CleanupTest> {
protected:
    ~CleanupWindowTest() override { m_window.reset(); }

    /// A throw ends the test.
    void show(int width = 1240, int height = 820)
    {
        confirmation = std::make_unique<ConfirmationModel>(*dashboard);
        showWindow("import Karvello.Screens.Cleanup\n"
                   "Window { id: window; required property CleanupScreenModel screen\n"
                   "required property var confirmation; visible: true; color: KarvelloDesign.background\n"
                   "CleanupScreen { objectName: 'page'; x: 224; width: parent.width - x; height: parent.height\n"
                   "focus: true; screen: window.screen }\n"
                   "ConfirmationDialog { objectName: 'dialog'; confirmation: window.confirmation } }",
            {{QStringLiteral("screen"), QVariant::fromValue(screen.get())},
                {QStringLiteral("confirmation"), QVariant::fromValue(confirmation.get())},
                {QStringLiteral("width"), width}, {QStringLiteral("height"), height}});
        layOut();
    }

    /// What has the keyboard, by its accessible name.
    std::string focusedName()
    {
        auto* const told = spoken(focused());
        return told == nullptr ? std::string() : told->text(QAccessible::Name).toStdString();
    }
    int currentRow() { return find("candidates")->property("currentIndex").toInt(); }
    void type(const char* text)
    {
        for (const char* letter = text; *letter != '\0'; ++letter) {
            QTest::keyClick(m_window.get(), *letter);
        }
    }

    std::unique_ptr<ConfirmationModel> confirmation;
};

} // namespace CleanupTests
