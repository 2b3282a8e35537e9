#include "KarvelloUI/Screens/Onboarding/OnboardingScreenModel.h"
#include "Tests/KarvelloUI/Dashboard/ScreenWindow.h"

namespace DashboardTests {

class OnboardingScreen : public ScreenWindowTest {
protected:
    ~OnboardingScreen() override { m_window.reset(); }

    void open() { show("Onboarding", "OnboardingScreen", &screen); }
    /// By the keyboard, as far down the list.
    void chooseLanguage(AppLanguage language)
    {
        find("language")->forceActiveFocus(Qt::TabFocusReason);
        key(Qt::Key_Space);
        layOut();
        for (int step = screen.languageIndex(); step < static_cast<int>(language); ++step) {
            key(Qt::Key_Down);
        }
        key(Qt::Key_Return);
        layOut();
    }
    [[nodiscard]] std::string shownLanguage()
    {
        return find("language")->property("displayText").toString().toStdString();
    }

    OnboardingScreenModel screen{*dashboard};
};

TEST_F(OnboardingScreen, SpeaksTheLanguageThatIsChosen)
{
    open();
    chooseLanguage(AppLanguage::german);
    EXPECT_EQ(preferences->language(), AppLanguage::german);
    EXPECT_EQ(shownLanguage(), "Deutsch");
    EXPECT_FALSE(find("notice")->isVisible());
    ASSERT_TRUE(preferences->setLanguage(AppLanguage::english));
    layOut();
    EXPECT_EQ(shownLanguage(), "English") << "also when it is chosen elsewhere";
}

TEST_F(OnboardingScreen, TellsWhereTheLanguageIsUsedAndCanBeChanged)
{
    open();
    EXPECT_TRUE(find("languageText")->isVisible());
    EXPECT_EQ(find("languageText")->property("text").toString().toStdString(),
        "Karvello uses this language in its window and in the menu bar. You can change it in Settings at any time.");
}

TEST_F(OnboardingScreen, ShowsTheLanguageThatHoldsWhereNoneCanBeStored)
{
    open();
    defaults.failAllSaves();
    chooseLanguage(AppLanguage::german);
    EXPECT_EQ(preferences->language(), AppLanguage::english);
    EXPECT_EQ(shownLanguage(), "English");
    EXPECT_TRUE(find("notice")->isVisible());
    EXPECT_EQ(nameOf(find("notice")), "Setting not saved");
}

} // namespace DashboardTests
