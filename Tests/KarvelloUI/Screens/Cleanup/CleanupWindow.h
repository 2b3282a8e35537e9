#pragma once

#include "KarvelloUI/Controls/DesignTokens.h"
#include "KarvelloUI/Controls/InstallDesign.h"
#include "KarvelloUI/Dashboard/ConfirmationModel.h"
#include "Tests/KarvelloUI/Screens/Cleanup/CleanupFixture.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <stdexcept>

namespace CleanupTests {

/// The review and its confirmation in a window, right of where the sidebar is. Any warning of QML fails the test.
class CleanupWindowTest : public CleanupTest {
protected:
    CleanupWindowTest()
        : m_design(installDesign(m_engine))
    {
        m_engine.setOutputWarningsToStandardError(false);
        QObject::connect(&m_engine, &QQmlEngine::warnings, [](const QList<QQmlError>& warnings) {
            for (const QQmlError& warning : warnings) {
                ADD_FAILURE() << warning.toString().toStdString();
            }
        });
        m_design.setReducedMotion(true);
    }
    ~CleanupWindowTest() override { m_window.reset(); }

    /// A throw ends the test.
    void show(int width = 1240, int height = 820)
    {
        confirmation = std::make_unique<ConfirmationModel>(*dashboard);
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nimport Karvello.Design\nimport Karvello.Screens.Cleanup\n"
                          "Window { id: window; required property CleanupScreenModel screen\n"
                          "required property var confirmation; visible: true; color: KarvelloDesign.background\n"
                          "CleanupScreen { objectName: 'page'; x: 224; width: parent.width - x; height: parent.height\n"
                          "focus: true; screen: window.screen }\n"
                          "ConfirmationDialog { objectName: 'dialog'; confirmation: window.confirmation } }",
            {});
        if (!component.isReady()) {
            throw std::runtime_error(component.errorString().toStdString());
        }
        m_window.reset(qobject_cast<QQuickWindow*>(
            component.createWithInitialProperties({{QStringLiteral("screen"), QVariant::fromValue(screen.get())},
                {QStringLiteral("confirmation"), QVariant::fromValue(confirmation.get())},
                {QStringLiteral("width"), width}, {QStringLiteral("height"), height}})));
        m_window->requestActivate();
        if (!QTest::qWaitForWindowActive(m_window.get())) {
            throw std::runtime_error("the window never became active");
        }
        layOut();
    }

    /// Texts wrap and columns fold a frame later.
    void layOut()
    {
        for (int frame = 0; frame < 4; ++frame) {
            QTest::qWait(10);
            m_picture = m_window->grabWindow();
        }
    }

    /// Keeps the picture where the environment asks for it: to be looked at.
    void photograph(const char* name)
    {
        layOut();
        if (const auto folder = qEnvironmentVariable("KARVELLO_PHOTOGRAPHS"); !folder.isEmpty()) {
            m_picture.save(folder + QLatin1Char('/') + QLatin1String(name) + QLatin1String(".png"));
        }
    }

    template <typename T = QQuickItem>
    T* find(const char* name)
    {
        auto* const found = m_window->findChild<T*>(QString::fromLatin1(name));
        if (found == nullptr) {
            throw std::runtime_error(name);
        }
        return found;
    }
    /// What has the keyboard, by its accessible name.
    std::string focused()
    {
        auto* const spoken = QAccessible::queryAccessibleInterface(m_window->activeFocusItem());
        return spoken == nullptr ? std::string() : spoken->text(QAccessible::Name).toStdString();
    }
    int currentRow() { return find("candidates")->property("currentIndex").toInt(); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_window.get(), key, modifiers);
    }
    void type(const char* text)
    {
        for (const char* letter = text; *letter != '\0'; ++letter) {
            QTest::keyClick(m_window.get(), *letter);
        }
    }

    QQmlEngine m_engine;
    DesignTokens& m_design;
    std::unique_ptr<ConfirmationModel> confirmation;
    std::unique_ptr<QQuickWindow> m_window;
    QImage m_picture;
};

} // namespace CleanupTests
