#pragma once

#include "Tests/KarvelloUI/Controls/Tidiness.h"
#include "Tests/KarvelloUI/Controls/WindowTest.h"
#include "Tests/KarvelloUI/Screens/Insights/InsightScreenFixture.h"

#include <functional>
#include <gmock/gmock.h>
#include <memory>

namespace InsightScreenTests {

/// A screen in a window of the least size, without the sidebar.
class InsightScreenWindow : public WindowTest<InsightScreenTest> {
protected:
    explicit InsightScreenWindow(std::string_view layoutOfHome = kHome)
        : WindowTest(layoutOfHome)
    {
        m_design.setAppearanceMode(KarvelloAppearanceMode::light);
    }
    ~InsightScreenWindow() override { m_window.reset(); }

    /// Makes a screen's model and shows it. A throw ends the test.
    template <typename Model, typename... Arguments>
    Model& show(const char* module, const char* type, Arguments... arguments)
    {
        auto made = std::make_unique<Model>(*dashboard, arguments...);
        Model& model = *made;
        m_screen = std::move(made);
        showWindow(QByteArray("import ") + module + "\nWindow { id: window; required property " + type
                + "Model model; visible: true; color: KarvelloDesign.background\n" + type
                + " { anchors.fill: parent; screen: window.model } }",
            {{QStringLiteral("model"), QVariant::fromValue(m_screen.get())}, {QStringLiteral("width"), 956},
                {QStringLiteral("height"), 780}});
        m_window->grabWindow();
        return model;
    }

    void focus(const char* name) { find(name)->forceActiveFocus(Qt::TabFocusReason); }
    using WindowTest::focused;
    /// A property of what has the keyboard.
    [[nodiscard]] QVariant focused(const char* property) const
    {
        const auto* const item = focused();
        return item == nullptr ? QVariant() : item->property(property);
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

    std::unique_ptr<QObject> m_screen;

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
