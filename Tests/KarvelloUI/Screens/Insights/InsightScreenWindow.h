#pragma once

#include "KarvelloUI/Controls/DesignTokens.h"
#include "KarvelloUI/Controls/InstallDesign.h"
#include "Tests/KarvelloUI/Controls/Tidiness.h"
#include "Tests/KarvelloUI/Screens/Insights/InsightScreenFixture.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <functional>
#include <gmock/gmock.h>
#include <memory>
#include <stdexcept>

namespace InsightScreenTests {

/// A screen in a window of the least size beside the sidebar. Any warning of QML fails the test. With the name of a folder
/// in KARVELLO_PHOTOGRAPHS, `photograph` writes there what the window shows.
class InsightScreenWindow : public InsightScreenTest {
protected:
    explicit InsightScreenWindow(std::string_view layoutOfHome = kHome)
        : InsightScreenTest(layoutOfHome)
    {
        m_engine.setOutputWarningsToStandardError(false);
        QObject::connect(&m_engine, &QQmlEngine::warnings, [](const QList<QQmlError>& warnings) {
            for (const QQmlError& warning : warnings) {
                ADD_FAILURE() << warning.toString().toStdString();
            }
        });
        m_design.setReducedMotion(true);
        m_design.setAppearanceMode(KarvelloAppearanceMode::light);
    }

    /// Makes a screen's model and shows it. A throw ends the test.
    template <typename Model, typename... Arguments>
    Model& show(const char* module, const char* type, Arguments... arguments)
    {
        auto made = std::make_unique<Model>(*dashboard, arguments...);
        Model& model = *made;
        m_screen = std::move(made);
        load(module, type);
        return model;
    }

    void load(const char* module, const char* type)
    {
        QQmlComponent component(&m_engine);
        component.setData(QByteArray("import QtQuick\nimport Karvello.Design\nimport ") + module
                + "\nWindow { id: window; required property " + type
                + "Model model; visible: true; color: KarvelloDesign.background\n" + type
                + " { anchors.fill: parent; screen: window.model } }",
            {});
        m_window.reset(qobject_cast<QQuickWindow*>(
            component.createWithInitialProperties({{QStringLiteral("model"), QVariant::fromValue(m_screen.get())},
                {QStringLiteral("width"), 956}, {QStringLiteral("height"), 780}})));
        if (!m_window) {
            throw std::runtime_error(component.errorString().toStdString());
        }
        m_window->requestActivate();
        if (!QTest::qWaitForWindowActive(m_window.get())) {
            throw std::runtime_error("the window never became active");
        }
        m_window->grabWindow();
    }

    QQuickItem* find(const char* name)
    {
        auto* const found = m_window->findChild<QQuickItem*>(QString::fromLatin1(name));
        if (found == nullptr) {
            throw std::runtime_error(name);
        }
        return found;
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_window.get(), key, modifiers);
    }
    void focus(const char* name) { find(name)->forceActiveFocus(Qt::TabFocusReason); }
    [[nodiscard]] QVariant focused(const char* property) const
    {
        auto* const item = m_window->activeFocusItem();
        return item == nullptr ? QVariant() : item->property(property);
    }
    static std::string nameOf(QObject* object)
    {
        return QAccessible::queryAccessibleInterface(object)->text(QAccessible::Name).toStdString();
    }

    /// An assistant goes and comes back: the templates of the controls then write their own kinds and states.
    static void comeAgainAsAssistant()
    {
        QAccessible::setActive(false);
        QAccessible::setActive(true);
    }

    /// The rows that a list has made.
    [[nodiscard]] QList<QQuickItem*> rowsOf(const char* list)
    {
        return find(list)->property("contentItem").value<QQuickItem*>()->childItems();
    }

    /// All texts on show that reach over the sides of the window.
    [[nodiscard]] QStringList textsOutside() const
    {
        QStringList outside;
        int count = 0;
        visit(*m_window->contentItem(), [&](const QQuickItem& item) {
            const QString text = item.property("text").toString();
            if (text.isEmpty() || !item.inherits("QQuickText")) {
                return;
            }
            ++count;
            const QRectF place = item.mapRectToScene(item.boundingRect());
            if (place.left() < -0.5 || place.right() > m_window->width() + 0.5) {
                outside.append(text);
            }
        });
        EXPECT_GT(count, 3);
        return outside;
    }

    void photograph(const std::string& name)
    {
        QTest::qWait(50);
        const QImage picture = m_window->grabWindow();
        if (const QString folder = qEnvironmentVariable("KARVELLO_PHOTOGRAPHS"); !folder.isEmpty()) {
            EXPECT_TRUE(picture.save(folder + u'/' + QString::fromStdString(name) + QStringLiteral(".png")));
        }
    }

    /// Looks at the screen in both schemes, in three languages and with the largest text, at the least size of the window.
    void lookAtAllFaces(const std::string& name)
    {
        struct Face {
            const char* name;
            KarvelloAppearanceMode scheme = KarvelloAppearanceMode::light;
            AppLanguage language = AppLanguage::english;
            KarvelloTextScale scale = KarvelloTextScale::standard;
        };
        for (const auto& face : {Face{.name = "light"}, Face{.name = "dark", .scheme = KarvelloAppearanceMode::dark},
                 Face{.name = "de", .language = AppLanguage::german},
                 Face{.name = "ja", .language = AppLanguage::japanese},
                 Face{.name = "xl", .scale = KarvelloTextScale::extraLarge},
                 Face{.name = "de-xl", .language = AppLanguage::german, .scale = KarvelloTextScale::extraLarge}}) {
            m_design.setAppearanceMode(face.scheme);
            m_design.setTextEnvironment({.scale = face.scale});
            EXPECT_TRUE(preferences->setLanguage(face.language));
            photograph(name + "-" + face.name);
            EXPECT_EQ(textsOutside(), QStringList()) << face.name;
        }
        m_design.setAppearanceMode(KarvelloAppearanceMode::light);
        lookInAllLanguages(name);
    }

    /// At the least size of the window, whose sidebar is wider beside large texts.
    void lookInAllLanguages(const std::string& name)
    {
        for (const auto language : Platform::allCases<AppLanguage>()) {
            EXPECT_TRUE(preferences->setLanguage(language));
            for (const auto scale : {KarvelloTextScale::standard, KarvelloTextScale::extraLarge}) {
                m_design.setTextEnvironment({.scale = scale});
                m_window->resize(scale == KarvelloTextScale::standard ? 956 : 916, 780);
                SCOPED_TRACE(name + " " + std::string(Platform::rawValue(language)) + " "
                    + std::string(Platform::rawValue(scale)));
                photograph(name + "-" + std::string(Platform::rawValue(language)) + "-"
                    + std::string(Platform::rawValue(scale)));
                EXPECT_THAT(Tidiness::faultsOf(*m_window->contentItem()), testing::IsEmpty());
                EXPECT_GT(Tidiness::countTexts(*m_window->contentItem()), 3U);
            }
        }
        m_window->resize(956, 780);
        m_design.setTextEnvironment({});
        EXPECT_TRUE(preferences->setLanguage(AppLanguage::english));
    }

    QQmlEngine m_engine;
    DesignTokens& m_design = installDesign(m_engine);
    std::unique_ptr<QObject> m_screen;
    std::unique_ptr<QQuickWindow> m_window;

private:
    /// What is on show, the parents first.
    static void visit(const QQuickItem& item, const std::function<void(const QQuickItem&)>& look)
    {
        if (item.isVisible() && item.opacity() > 0) {
            look(item);
            for (const auto* const child : item.childItems()) {
                visit(*child, look);
            }
        }
    }
};

} // namespace InsightScreenTests
