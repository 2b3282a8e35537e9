#pragma once

#include "KarvelloUI/Controls/DesignTokens.h"
#include "KarvelloUI/Controls/InstallDesign.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>
#include <memory>
#include <stdexcept>
#include <string>

namespace KarvelloUI {

/// A window with controls in it, and an assistant that looks at them. Any warning of QML fails the test.
class Controls : public testing::Test {
protected:
    Controls()
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

    /// Shows a window with these items, one below the other. A throw ends the test.
    void show(const char* items)
    {
        QQmlComponent component(&m_engine);
        component.setData(QByteArray("import QtQuick\nimport QtQuick.Layouts\nimport Karvello.Design\n"
                                     "Window { width: 640; height: 480; visible: true; Column { width: parent.width\n")
                + items + "\n} }",
            {});
        if (!component.isReady()) {
            throw std::runtime_error(component.errorString().toStdString());
        }
        m_window.reset(qobject_cast<QQuickWindow*>(component.create()));
        m_window->requestActivate();
        if (!QTest::qWaitForWindowActive(m_window.get())) {
            throw std::runtime_error("the window never became active");
        }
    }

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

    QQmlEngine m_engine;
    DesignTokens& m_design;
    std::unique_ptr<QQuickWindow> m_window;
};

} // namespace KarvelloUI
