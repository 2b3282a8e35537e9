#pragma once

#include "KarvelloUI/Controls/DesignTokens.h"
#include "KarvelloUI/Controls/InstallDesign.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QDir>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QVariantMap>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace KarvelloUI {

/// A fixture with a window over it, and an assistant that looks at the window. The window goes before all that the fixture
/// has. Any warning of QML fails the test. With KARVELLO_PHOTOGRAPHS=FOLDER in the environment, `photograph` writes pictures
/// there.
template <typename Fixture>
class WindowTest : public Fixture {
protected:
    using Fixture::Fixture;

    /// `qml` is a Window, after the imports that it needs beside those of the design. A throw ends the test.
    void showWindow(const QByteArray& qml, const QVariantMap& properties = {})
    {
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nimport Karvello.Design\n" + qml, {});
        if (!component.isReady()) {
            throw std::runtime_error(component.errorString().toStdString());
        }
        m_window.reset(qobject_cast<QQuickWindow*>(component.createWithInitialProperties(properties)));
        if (!m_window) {
            throw std::runtime_error("there is no window");
        }
        m_window->requestActivate();
        if (!QTest::qWaitForWindowActive(m_window.get())) {
            throw std::runtime_error("the window never became active");
        }
    }

    /// Texts wrap and grids change their columns a frame later.
    void layOut()
    {
        for (int frame = 0; frame < 4; ++frame) {
            QTest::qWait(10);
            m_window->grabWindow();
        }
    }

    /// Lays out in any case.
    void photograph(const std::string& name)
    {
        layOut();
        if (const QString folder = qEnvironmentVariable("KARVELLO_PHOTOGRAPHS"); !folder.isEmpty()) {
            ASSERT_TRUE(m_window->grabWindow().save(QDir(folder).filePath(QString::fromStdString(name + ".png"))));
        }
    }

    /// Shown or not. A throw ends the test.
    template <typename T = QQuickItem>
    T* find(const char* name)
    {
        auto* found = m_window->findChild<T*>(QString::fromLatin1(name));
        if (found == nullptr) {
            // What a repeater has made belongs to its place alone.
            found = qobject_cast<T*>(itemBelow(m_window->contentItem(), QString::fromLatin1(name)));
        }
        if (found == nullptr) {
            throw std::runtime_error(name);
        }
        return found;
    }

    /// All that can be seen, children behind their parents.
    std::vector<QQuickItem*> shownItems()
    {
        std::vector<QQuickItem*> items;
        collectShown(m_window->contentItem(), items);
        return items;
    }
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

    [[nodiscard]] QQuickItem* focused() const { return m_window->activeFocusItem(); }

    static QAccessibleInterface* spoken(QObject* object) { return QAccessible::queryAccessibleInterface(object); }
    static std::string nameOf(QObject* object) { return spoken(object)->text(QAccessible::Name).toStdString(); }

    /// What an assistant does on behalf of the user.
    static void act(QObject* object, const QString& action) { spoken(object)->actionInterface()->doAction(action); }
    static void press(QObject* object) { act(object, QAccessibleActionInterface::pressAction()); }
    static void toggle(QObject* object) { act(object, QAccessibleActionInterface::toggleAction()); }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_window.get(), key, modifiers);
    }
    void click(const QQuickItem* item, QPointF at)
    {
        QTest::mouseClick(m_window.get(), Qt::LeftButton, Qt::NoModifier, item->mapToScene(at).toPoint());
    }
    void click(const QQuickItem* item) { click(item, QPointF(item->width() / 2, item->height() / 2)); }

private:
    struct Engine : QQmlEngine {
        Engine()
        {
            setOutputWarningsToStandardError(false);
            QObject::connect(this, &QQmlEngine::warnings, [](const QList<QQmlError>& warnings) {
                for (const QQmlError& warning : warnings) {
                    ADD_FAILURE() << warning.toString().toStdString();
                }
            });
        }
    };

    static DesignTokens& installStill(QQmlEngine& engine)
    {
        DesignTokens& design = installDesign(engine);
        design.setReducedMotion(true);
        return design;
    }
    static QQuickItem* itemBelow(QQuickItem* item, const QString& name)
    {
        if (item->objectName() == name) {
            return item;
        }
        for (QQuickItem* const child : item->childItems()) {
            if (QQuickItem* const found = itemBelow(child, name)) {
                return found;
            }
        }
        return nullptr;
    }

protected:
    Engine m_engine;
    DesignTokens& m_design = installStill(m_engine);
    std::unique_ptr<QQuickWindow> m_window;
};

} // namespace KarvelloUI
