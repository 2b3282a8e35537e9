#include "KarvelloUI/Shell/DashboardScreens.h"
#include "Tests/KarvelloUI/Dashboard/ScreenWindow.h"

#include <QUrl>
#include <memory>
#include <string>

namespace DashboardTests {

/// The whole window, with the first run behind it.
class WindowKeyboard : public ScreenWindowTest {
protected:
    ~WindowKeyboard() override { m_window.reset(); }

    void open()
    {
        ASSERT_TRUE(preferences->completeOnboarding());
        m_screens = std::make_unique<DashboardScreens>(*dashboard);
        QQmlComponent component(&m_engine, QUrl(QStringLiteral("qrc:/qt/qml/Karvello/Shell/DashboardWindow.qml")));
        ASSERT_TRUE(component.isReady()) << component.errorString().toStdString();
        m_window.reset(qobject_cast<QQuickWindow*>(
            component.createWithInitialProperties({{QStringLiteral("screens"), QVariant::fromValue(m_screens.get())},
                {QStringLiteral("width"), 1240}, {QStringLiteral("height"), 820}, {QStringLiteral("visible"), true}})));
        ASSERT_TRUE(m_window);
        m_window->requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
        layOut();
    }
    [[nodiscard]] std::string focusedText() const
    {
        return focused() == nullptr ? std::string() : focused()->property("text").toString().toStdString();
    }
    /// Whether Tab comes to the item before it has gone round.
    bool isReachedByTab(const QQuickItem* item)
    {
        for (int step = 0; step < 60; ++step) {
            key(Qt::Key_Tab);
            if (item->hasActiveFocus()) {
                return true;
            }
        }
        return false;
    }

    /// The open dialog as an assistant sees it; nothing where there is none.
    QAccessibleInterface* dialog()
    {
        for (QQuickItem* const item : shownItems()) {
            QAccessibleInterface* const told = spoken(item);
            if (told != nullptr && told->role() == QAccessible::Dialog) {
                return told;
            }
        }
        return nullptr;
    }

    std::unique_ptr<DashboardScreens> m_screens;
};

TEST_F(WindowKeyboard, ReachesTheSidebarFromTheGuideThatIsNotInIt)
{
    open();
    dashboard->selectSection(MacDashboardSection::reviewEvidence);
    dashboard->openIOSGuide();
    layOut();
    EXPECT_TRUE(isReachedByTab(find("reviewEvidence")));
    key(Qt::Key_Up);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::cleanup);
    EXPECT_TRUE(find("cleanup")->hasActiveFocus());
}

TEST_F(WindowKeyboard, GoesToThePageThatIsShownWhenADialogCloses)
{
    open();
    scanForCleanup();
    layOut();
    auto* const opener = find("footer")->findChild<QQuickItem*>(QStringLiteral("primary"));
    ASSERT_TRUE(opener);
    opener->forceActiveFocus(Qt::TabFocusReason);
    layOut();
    key(Qt::Key_Return);
    layOut();
    ASSERT_EQ(focusedText(), "Cancel");
    dashboard->selectSection(MacDashboardSection::settings);
    layOut();
    key(Qt::Key_Escape);
    layOut();
    EXPECT_FALSE(opener->isVisible());
    ASSERT_TRUE(focused());
    EXPECT_TRUE(focused()->isVisible());
    EXPECT_TRUE(focused()->activeFocusOnTab()) << focusedText();
    EXPECT_FALSE(find("cleanup")->hasActiveFocus());
}

TEST_F(WindowKeyboard, OpensTheNextAlertUnderItsOwnNameWhenOneIsDismissed)
{
    open();
    find("cleanup")->forceActiveFocus(Qt::TabFocusReason);
    layOut();
    dashboard->showAlert({.title = QStringLiteral("First"), .message = QStringLiteral("one")});
    dashboard->showAlert({.title = QStringLiteral("Second"), .message = QStringLiteral("two")});
    layOut();
    ASSERT_TRUE(dialog());
    EXPECT_EQ(dialog()->text(QAccessible::Name), QStringLiteral("First"));
    EXPECT_EQ(focusedText(), "OK");
    key(Qt::Key_Return);
    layOut();
    ASSERT_TRUE(dialog());
    EXPECT_EQ(dialog()->text(QAccessible::Name), QStringLiteral("Second"));
    EXPECT_EQ(dialog()->text(QAccessible::Description), QStringLiteral("two"));
    EXPECT_EQ(focusedText(), "OK");
    EXPECT_TRUE(focused()->property("visualFocus").toBool());
    key(Qt::Key_Escape);
    layOut();
    EXPECT_FALSE(dialog());
    EXPECT_TRUE(find("cleanup")->hasActiveFocus());
}

} // namespace DashboardTests
