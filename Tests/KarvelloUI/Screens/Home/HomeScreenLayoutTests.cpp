// With KARVELLO_PHOTOGRAPHS=FOLDER in the environment, each of these pages is written there as a picture.

#include "Tests/KarvelloUI/Screens/Home/HomeWindow.h"

#include <gmock/gmock.h>

namespace HomeTests {

class HomeScreenLayout : public HomeWindowTest {
protected:
    void fill()
    {
        addProjects();
        addLargeFiles();
        scanEverything();
        home->reviewLoop()->chooseCadence(QStringLiteral("weekly"));
        home->reviewLoop()->markReviewed();
        now = now.addingSeconds(1);
        for (int index = 0; index < 24; ++index) {
            systemSnapshot.normalizedCPULoad = 0.2 + 0.15 * ((index * 7) % 5) / 5;
            systemSnapshot.capturedAt = now.addingSeconds(index);
            sample();
        }
    }

    /// The page is tidy, and no text lies out of its card.
    void expectTidy()
    {
        HomeWindowTest::expectTidy(Texts::all);
        int count = 0;
        for (const QQuickItem* const item : shownItems()) {
            if (item->inherits("QQuickText") && item->width() > 0) {
                ++count;
                expectInsideOfItsCard(item);
            }
        }
        EXPECT_GT(count, 40);
    }

private:
    static void expectInsideOfItsCard(const QQuickItem* text)
    {
        for (const QQuickItem* card = text->parentItem(); card != nullptr; card = card->parentItem()) {
            if (QByteArray(card->metaObject()->className()).startsWith("KarvelloCard")) {
                EXPECT_TRUE(placeOf(card).adjusted(-0.5, -0.5, 0.5, 0.5).contains(placeOf(text))) << described(text);
                return;
            }
        }
    }
};

TEST_F(HomeScreenLayout, BeforeTheFirstScan)
{
    show();
    expectTidy();
    photograph("home-first");
}

TEST_F(HomeScreenLayout, WithoutAccess)
{
    isDirectDistribution = false;
    remake();
    show(1180, 780);
    expectTidy();
    photograph("home-denied");
}

TEST_F(HomeScreenLayout, WithoutADisk)
{
    disk = {};
    remake();
    show();
    expectTidy();
    photograph("home-no-disk");
}

TEST_F(HomeScreenLayout, WhileAScanRuns)
{
    show();
    home->startScan();
    layOut();
    expectTidy();
    photograph("home-scanning");
    settle();
}

TEST_F(HomeScreenLayout, Light)
{
    fill();
    show(1240, 1600);
    expectTidy();
    photograph("home-light");
}

TEST_F(HomeScreenLayout, Dark)
{
    m_design.setAppearanceMode(KarvelloAppearanceMode::dark);
    fill();
    show(1240, 1600);
    expectTidy();
    photograph("home-dark");
}

TEST_F(HomeScreenLayout, AfterAClean)
{
    fill();
    cleanEverything();
    show(1240, 1600);
    expectTidy();
    photograph("home-cleaned");
}

TEST_F(HomeScreenLayout, AtTheMinimumSizeInEveryLanguage)
{
    fill();
    show(1180, 780);
    for (const auto language : Platform::allCases<AppLanguage>()) {
        SCOPED_TRACE(Platform::rawValue(language));
        setLanguage(language);
        layOut();
        expectTidy();
        photograph("home-min-" + std::string(Platform::rawValue(language)));
    }
}

TEST_F(HomeScreenLayout, ExtraLargeInEveryLanguage)
{
    fill();
    show(1180, 2800);
    setScale(KarvelloTextScale::extraLarge);
    for (const auto language : Platform::allCases<AppLanguage>()) {
        SCOPED_TRACE(Platform::rawValue(language));
        setLanguage(language);
        layOut();
        expectTidy();
        photograph("home-xl-" + std::string(Platform::rawValue(language)));
    }
}

TEST_F(HomeScreenLayout, InAWideWindow)
{
    fill();
    show(2200, 1300);
    expectTidy();
    photograph("home-wide");
}

} // namespace HomeTests
