#include "KarvelloUI/Screens/IOSGuide/IOSGuideScreenModel.h"

#include "Tests/KarvelloUI/Controls/Tidiness.h"
#include "Tests/KarvelloUI/Dashboard/ScreenWindow.h"

#include <gmock/gmock.h>

namespace DashboardTests {

class IOSGuideScreen : public ScreenWindowTest {
protected:
    void open(int width = 1240, int height = 820)
    {
        dashboard->selectSection(MacDashboardSection::settings);
        guide = std::make_unique<IOSGuideScreenModel>(*dashboard);
        dashboard->openIOSGuide();
        show("IOSGuide", "IOSGuideScreen", guide.get(), width, height);
    }
    ~IOSGuideScreen() override { m_window.reset(); }

    std::unique_ptr<IOSGuideScreenModel> guide;
};

TEST_F(IOSGuideScreen, StoresWhatIsChosenByTheKeyboard)
{
    open();
    QQuickItem* chosen = nullptr;
    std::vector<QQuickItem*> segments;
    collectShown(find("status1"), segments);
    for (auto* const segment : segments) {
        if (segment->inherits("QQuickRadioButton") && segment->property("isChosen").toBool()) {
            chosen = segment;
        }
    }
    ASSERT_NE(chosen, nullptr);
    chosen->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Right);
    EXPECT_EQ(guide->progressText().toStdString(), "1 of 7 reviewed");
}

TEST_F(IOSGuideScreen, LeadsBackByTheButtonAndByTheKeys)
{
    open();
    EXPECT_EQ(nameOf(find("back")), "Back to Settings");
    press(find("back"));
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::settings);
    dashboard->openIOSGuide();
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::settings);
}

TEST_F(IOSGuideScreen, OffersTheResetOnceThereIsSomethingToReset)
{
    open();
    EXPECT_FALSE(find("resetChecklist")->isEnabled());
    guide->setStatus(QStringLiteral("photosReview"), QStringLiteral("done"));
    EXPECT_TRUE(find("resetChecklist")->isEnabled());
    press(find("resetChecklist"));
    EXPECT_EQ(guide->progressText().toStdString(), "0 of 7 reviewed");
}

TEST_F(IOSGuideScreen, SaysEachPickerByItsStep)
{
    open();
    EXPECT_EQ(
        find("status1")->property("accessibleName").toString().toStdString(), "iPhone Storage recommendations status");
}

TEST_F(IOSGuideScreen, IsTidyInEveryLanguageAndScale)
{
    open(1180, 780);
    guide->setStatus(QStringLiteral("iphoneStorageRecommendations"), QStringLiteral("done"));
    guide->setStatus(QStringLiteral("offloadUnusedApps"), QStringLiteral("reviewed"));
    layOut();
    expectTidy();
    photograph("ios-en");
    for (const auto language : Platform::allCases<AppLanguage>()) {
        setLanguage(language);
        for (const auto scale : {KarvelloTextScale::standard, KarvelloTextScale::extraLarge}) {
            setScale(scale);
            layOut();
            SCOPED_TRACE(std::string(Platform::rawValue(language)) + " " + std::string(Platform::rawValue(scale)));
            expectTidy();
            EXPECT_THAT(KarvelloUI::Tidiness::faultsOf(*m_window->contentItem()), testing::IsEmpty());
            photograph(
                "ios-" + std::string(Platform::rawValue(language)) + "-" + std::string(Platform::rawValue(scale)));
        }
    }
    setScale(KarvelloTextScale::standard);
    setLanguage(AppLanguage::german);
    setScale(KarvelloTextScale::extraLarge);
    layOut();
    expectTidy();
    photograph("ios-de-xl");
    m_design.setAppearanceMode(KarvelloAppearanceMode::dark);
    layOut();
    photograph("ios-dark");
}

} // namespace DashboardTests
