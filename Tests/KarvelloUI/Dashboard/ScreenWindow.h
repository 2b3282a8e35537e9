#pragma once

#include "KarvelloUI/Controls/DesignTokens.h"
#include "KarvelloUI/Controls/InstallDesign.h"
#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"

#include <QAccessible>
#include <QDir>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <memory>
#include <stdexcept>
#include <vector>

namespace DashboardTests {

/// A screen in a window, right of where the sidebar is. Any warning of QML fails the test. With
/// KARVELLO_PHOTOGRAPHS=FOLDER in the environment, `photograph` writes pictures there.
class ScreenWindowTest : public DashboardTest {
protected:
    static constexpr int kSidebarWidth = 224;

    using DashboardTest::DashboardTest;

    /// `type` is that of the module `module` below Karvello.Screens. A throw ends the test.
    void show(const char* module, const char* type, QObject* screen, int width = 1240, int height = 820)
    {
        QQmlComponent component(&m_engine);
        component.setData(QStringLiteral("import QtQuick\nimport Karvello.Design\nimport Karvello.Screens.%1\n"
                                         "Window { id: window; required property var screen; visible: true\n"
                                         "color: KarvelloDesign.background\n"
                                         "%2 { objectName: 'page'; x: %3; width: parent.width - x;\n"
                                         "height: parent.height; focus: true; screen: window.screen } }")
                              .arg(QString::fromLatin1(module), QString::fromLatin1(type))
                              .arg(kSidebarWidth)
                              .toUtf8(),
            {});
        if (!component.isReady()) {
            throw std::runtime_error(component.errorString().toStdString());
        }
        m_window.reset(qobject_cast<QQuickWindow*>(
            component.createWithInitialProperties({{QStringLiteral("screen"), QVariant::fromValue(screen)},
                {QStringLiteral("width"), width}, {QStringLiteral("height"), height}})));
        m_design.setReducedMotion(true);
        m_window->requestActivate();
        if (!QTest::qWaitForWindowActive(m_window.get())) {
            throw std::runtime_error("the window never became active");
        }
        layOut();
    }

    /// Texts wrap and grids change their columns a frame later.
    void layOut()
    {
        for (int frame = 0; frame < 4; ++frame) {
            QTest::qWait(10);
            m_window->grabWindow();
        }
    }

    void setLanguage(AppLanguage language)
    {
        ASSERT_TRUE(preferences->setLanguage(language));
        m_environment.script = language == AppLanguage::japanese || language == AppLanguage::korean
            ? TextScript::cjk
            : TextScript::alphabetic;
        m_design.setTextEnvironment(m_environment);
    }
    void setScale(KarvelloTextScale scale)
    {
        m_environment.scale = scale;
        m_design.setTextEnvironment(m_environment);
    }

    /// Shown or not. A throw ends the test.
    QQuickItem* find(const char* name)
    {
        auto* const found = findBelow(m_window->contentItem(), QString::fromLatin1(name));
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

    /// Nothing reaches out of the page sideways, no text is cut without an ellipsis, and no two lie on each other.
    void expectTidy()
    {
        const QQuickItem* const page = find("page");
        std::vector<const QQuickItem*> texts;
        for (const QQuickItem* const item : shownItems()) {
            if (item->inherits("QQuickText") && item->width() > 0 && !isOutOfView(item)) {
                const QRectF place = placeOf(item);
                EXPECT_GE(place.left(), page->x()) << described(item);
                EXPECT_LE(place.right(), page->x() + page->width()) << described(item);
                EXPECT_LE(item->property("contentWidth").toDouble(), item->width() + 1) << described(item);
                EXPECT_LE(item->property("contentHeight").toDouble(), item->height() + 1) << described(item);
                texts.push_back(item);
            }
        }
        EXPECT_GT(texts.size(), 5U);
        for (std::size_t first = 0; first < texts.size(); ++first) {
            for (std::size_t second = first + 1; second < texts.size(); ++second) {
                const QRectF common = inkOf(texts[first]).intersected(inkOf(texts[second]));
                EXPECT_FALSE(common.width() > 1 && common.height() > 3)
                    << described(texts[first]) << " lies on " << described(texts[second]);
            }
        }
    }

    void photograph(const char* name)
    {
        const QString folder = qEnvironmentVariable("KARVELLO_PHOTOGRAPHS");
        if (!folder.isEmpty()) {
            ASSERT_TRUE(m_window->grabWindow().save(QDir(folder).filePath(QString::fromLatin1(name))));
        }
    }

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

    static QQuickItem* findBelow(QQuickItem* item, const QString& name)
    {
        if (item->objectName() == name) {
            return item;
        }
        for (QQuickItem* const child : item->childItems()) {
            if (auto* const found = findBelow(child, name)) {
                return found;
            }
        }
        return nullptr;
    }
    static QRectF placeOf(const QQuickItem* item)
    {
        return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
    }
    static std::string described(const QQuickItem* item) { return item->property("text").toString().toStdString(); }
    static QRectF inkOf(const QQuickItem* text)
    {
        const double width = std::min(text->width(), text->property("contentWidth").toDouble());
        const double height = std::min(text->height(), text->property("contentHeight").toDouble());
        return text->mapRectToScene(QRectF(0, 0, width, height));
    }
    /// Whether something that clips hides part of it: a list that scrolls.
    static bool isOutOfView(const QQuickItem* item)
    {
        for (const QQuickItem* parent = item->parentItem(); parent != nullptr; parent = parent->parentItem()) {
            if (parent->clip() && !placeOf(parent).contains(placeOf(item))) {
                return true;
            }
        }
        return false;
    }

protected:
    Engine m_engine;
    DesignTokens& m_design = installDesign(m_engine);
    std::unique_ptr<QQuickWindow> m_window;

private:
    TextEnvironment m_environment;
};

} // namespace DashboardTests
