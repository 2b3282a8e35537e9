#pragma once

#include "KarvelloUI/Controls/DesignTokens.h"
#include "KarvelloUI/Controls/InstallDesign.h"
#include "Tests/KarvelloUI/Screens/Home/HomeFixture.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <memory>
#include <stdexcept>

namespace HomeTests {

/// The home screen in a window, right of where the sidebar is. Any warning of QML fails the test.
class HomeWindowTest : public HomeTest {
protected:
    static constexpr int kSidebarWidth = 224;

    HomeWindowTest()
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
    ~HomeWindowTest() override { m_window.reset(); }

    /// A throw ends the test.
    void show(int width = 1240, int height = 820)
    {
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nimport Karvello.Design\nimport Karvello.Screens.Home\n"
                          "Window { id: window; required property HomeScreenModel screen; visible: true\n"
                          "color: KarvelloDesign.background\n"
                          "HomeScreen { objectName: 'page'; x: 224; width: parent.width - x; height: parent.height;\n"
                          "focus: true; screen: window.screen } }",
            {});
        if (!component.isReady()) {
            throw std::runtime_error(component.errorString().toStdString());
        }
        m_window.reset(qobject_cast<QQuickWindow*>(
            component.createWithInitialProperties({{QStringLiteral("screen"), QVariant::fromValue(home.get())},
                {QStringLiteral("width"), width}, {QStringLiteral("height"), height}})));
        m_window->requestActivate();
        if (!QTest::qWaitForWindowActive(m_window.get())) {
            throw std::runtime_error("the window never became active");
        }
        laidOut();
    }

    /// Texts wrap and grids change their columns a frame later.
    void laidOut()
    {
        for (int frame = 0; frame < 4; ++frame) {
            QTest::qWait(10);
            m_window->grabWindow();
        }
    }

    QQuickItem* find(const char* name)
    {
        auto* const found = m_window->findChild<QQuickItem*>(QString::fromLatin1(name));
        if (found == nullptr) {
            throw std::runtime_error(name);
        }
        return found;
    }

    /// All that can be seen, children behind their parents.
    static void collectShown(QQuickItem* item, std::vector<QQuickItem*>& items)
    {
        if (!item->isVisible()) {
            return;
        }
        items.push_back(item);
        for (QQuickItem* const child : item->childItems()) {
            collectShown(child, items);
        }
    }
    std::vector<QQuickItem*> shownItems()
    {
        std::vector<QQuickItem*> items;
        collectShown(m_window->contentItem(), items);
        return items;
    }

    static QAccessibleInterface* spoken(QObject* object) { return QAccessible::queryAccessibleInterface(object); }
    static std::string nameOf(QObject* object) { return spoken(object)->text(QAccessible::Name).toStdString(); }
    static void press(QObject* object)
    {
        spoken(object)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_window.get(), key, modifiers);
    }

    QQmlEngine m_engine;
    DesignTokens& m_design;
    std::unique_ptr<QQuickWindow> m_window;
};

} // namespace HomeTests
