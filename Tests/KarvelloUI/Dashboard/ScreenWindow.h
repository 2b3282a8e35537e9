#pragma once

#include "Tests/KarvelloUI/Controls/WindowTest.h"
#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"

#include <algorithm>

namespace DashboardTests {

/// A screen over the dashboard of `Fixture` in a window, right of where the sidebar is.
template <typename Fixture>
class ScreenWindow : public WindowTest<Fixture> {
protected:
    static constexpr int kSidebarWidth = 224;

    using WindowTest<Fixture>::WindowTest;
    using WindowTest<Fixture>::m_design;

    /// `type` is that of the module `module` below Karvello.Screens. A throw ends the test.
    void show(const char* module, const char* type, QObject* screen, int width = 1240, int height = 820)
    {
        this->showWindow(QStringLiteral("import Karvello.Screens.%1\n"
                                        "Window { id: window; required property var screen; visible: true\n"
                                        "color: KarvelloDesign.background\n"
                                        "%2 { objectName: 'page'; x: %3; width: parent.width - x;\n"
                                        "height: parent.height; focus: true; screen: window.screen } }")
                             .arg(QString::fromLatin1(module), QString::fromLatin1(type))
                             .arg(kSidebarWidth)
                             .toUtf8(),
            {{QStringLiteral("screen"), QVariant::fromValue(screen)}, {QStringLiteral("width"), width},
                {QStringLiteral("height"), height}});
        this->layOut();
    }

    void setLanguage(AppLanguage language)
    {
        ASSERT_TRUE(this->preferences->setLanguage(language));
        this->settle();
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

    enum class Texts { inView, all };

    /// Nothing reaches out of the page sideways, no text is cut without an ellipsis, and no two lie on each other.
    void expectTidy(Texts which = Texts::inView)
    {
        const QQuickItem* const page = this->find("page");
        std::vector<const QQuickItem*> texts;
        for (const QQuickItem* const item : this->shownItems()) {
            if (item->inherits("QQuickText") && item->width() > 0 && (which == Texts::all || !isOutOfView(item))) {
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

    static QRectF placeOf(const QQuickItem* item)
    {
        return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
    }
    static std::string described(const QQuickItem* item) { return item->property("text").toString().toStdString(); }

private:
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

    TextEnvironment m_environment;
};

using ScreenWindowTest = ScreenWindow<DashboardTest>;

} // namespace DashboardTests
