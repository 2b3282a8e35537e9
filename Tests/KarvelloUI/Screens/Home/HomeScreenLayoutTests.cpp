// With KARVELLO_PHOTOGRAPHS=FOLDER in the environment, each of these pages is written there as a picture.

#include "Tests/KarvelloUI/Screens/Home/HomeWindow.h"

#include <QDir>
#include <gmock/gmock.h>

namespace HomeTests {

class HomeScreenLayout : public HomeWindowTest {
protected:
    void photograph(const char* name)
    {
        const QString folder = qEnvironmentVariable("KARVELLO_PHOTOGRAPHS");
        if (!folder.isEmpty()) {
            ASSERT_TRUE(m_window->grabWindow().save(QDir(folder).filePath(QString::fromLatin1(name))));
        }
    }

    void fill()
    {
        addProjects();
        addLargeFiles();
        scanEverything();
        home->reviewLoop()->chooseCadence(QStringLiteral("weekly"));
        home->reviewLoop()->markReviewed();
        for (int index = 0; index < 24; ++index) {
            systemSnapshot.normalizedCPULoad = 0.2 + 0.15 * ((index * 7) % 5) / 5;
            systemSnapshot.capturedAt = now.addingSeconds(index);
            sample();
        }
    }

    void setLanguage(AppLanguage language)
    {
        ASSERT_TRUE(preferences->setLanguage(language));
        settle();
        const bool isCJK = language == AppLanguage::japanese || language == AppLanguage::korean;
        m_environment.script = isCJK ? TextScript::cjk : TextScript::alphabetic;
        m_design.setTextEnvironment(m_environment);
    }
    void setScale(KarvelloTextScale scale)
    {
        m_environment.scale = scale;
        m_design.setTextEnvironment(m_environment);
    }

    /// Nothing reaches out of the page sideways, no text out of its card, and no two texts lie on each other.
    void expectTidy()
    {
        const QQuickItem* const page = find("page");
        std::vector<QQuickItem*> texts;
        for (QQuickItem* const item : shownItems()) {
            const QRectF place = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
            if (item->inherits("QQuickText") && item->width() > 0) {
                EXPECT_GE(place.left(), page->x()) << described(item);
                EXPECT_LE(place.right(), page->x() + page->width()) << described(item);
                texts.push_back(item);
                expectInsideOfItsCard(item, place);
            }
        }
        EXPECT_GT(texts.size(), 40);
        for (std::size_t first = 0; first < texts.size(); ++first) {
            for (std::size_t second = first + 1; second < texts.size(); ++second) {
                const QRectF common = inkOf(texts[first]).intersected(inkOf(texts[second]));
                EXPECT_FALSE(common.width() > 1 && common.height() > 3)
                    << described(texts[first]) << " lies on " << described(texts[second]);
            }
        }
    }

private:
    static std::string described(const QQuickItem* item) { return item->property("text").toString().toStdString(); }

    static QRectF inkOf(const QQuickItem* text)
    {
        const double width = std::min(text->width(), text->property("contentWidth").toDouble());
        const double height = std::min(text->height(), text->property("contentHeight").toDouble());
        return text->mapRectToScene(QRectF(0, 0, width, height));
    }

    static void expectInsideOfItsCard(const QQuickItem* text, const QRectF& place)
    {
        for (const QQuickItem* card = text->parentItem(); card != nullptr; card = card->parentItem()) {
            if (QByteArray(card->metaObject()->className()).startsWith("KarvelloCard")) {
                const QRectF sheet = card->mapRectToScene(QRectF(0, 0, card->width(), card->height()));
                EXPECT_TRUE(sheet.adjusted(-0.5, -0.5, 0.5, 0.5).contains(place)) << described(text);
                // What is longer than its place has an ellipsis, or is broken into lines.
                EXPECT_LE(text->property("contentWidth").toDouble(), text->width() + 1) << described(text);
                return;
            }
        }
    }

    TextEnvironment m_environment;
};

TEST_F(HomeScreenLayout, BeforeTheFirstScan)
{
    show();
    expectTidy();
    photograph("home-first.png");
}

TEST_F(HomeScreenLayout, WithoutAccess)
{
    isDirectDistribution = false;
    remake();
    show(1180, 780);
    expectTidy();
    photograph("home-denied.png");
}

TEST_F(HomeScreenLayout, WithoutADisk)
{
    disk = {};
    remake();
    show();
    expectTidy();
    photograph("home-no-disk.png");
}

TEST_F(HomeScreenLayout, WhileAScanRuns)
{
    show();
    home->startScan();
    laidOut();
    expectTidy();
    photograph("home-scanning.png");
    settle();
}

TEST_F(HomeScreenLayout, Light)
{
    fill();
    show(1240, 1600);
    expectTidy();
    photograph("home-light.png");
}

TEST_F(HomeScreenLayout, Dark)
{
    m_design.setAppearanceMode(KarvelloAppearanceMode::dark);
    fill();
    show(1240, 1600);
    expectTidy();
    photograph("home-dark.png");
}

TEST_F(HomeScreenLayout, AfterAClean)
{
    fill();
    cleanEverything();
    show(1240, 1600);
    expectTidy();
    photograph("home-cleaned.png");
}

TEST_F(HomeScreenLayout, AtTheMinimumSizeInEveryLanguage)
{
    fill();
    show(1180, 780);
    for (const auto language : Platform::allCases<AppLanguage>()) {
        SCOPED_TRACE(Platform::rawValue(language));
        setLanguage(language);
        laidOut();
        expectTidy();
        photograph(("home-min-" + std::string(Platform::rawValue(language)) + ".png").c_str());
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
        laidOut();
        expectTidy();
        photograph(("home-xl-" + std::string(Platform::rawValue(language)) + ".png").c_str());
    }
}

TEST_F(HomeScreenLayout, InAWideWindow)
{
    fill();
    show(2200, 1300);
    expectTidy();
    photograph("home-wide.png");
}

} // namespace HomeTests
