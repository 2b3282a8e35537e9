#include "Tests/KarvelloUI/Screens/Cleanup/CleanupWindow.h"

#include <gmock/gmock.h>

namespace CleanupTests {

/// A review as people have it: many places, all levels of safety, an application that runs.
class CleanupPicturesTest : public CleanupWindowTest {
protected:
    CleanupPicturesTest()
    {
        tree.add("home/Library/Caches/com.example.browser/Default/cache size=740K age=3d\n"
                 "home/Library/Caches/thumbnails/large/a size=418K age=9d\n"
                 "home/Library/Caches/\"not \\xFF utf\"/a size=8K age=90d\n"
                 "home/Library/Caches/\"two\\nlines\"/a size=9K age=90d\n"
                 "home/Library/Caches/\"gpj\\xE2\\x80\\xAEexe\"/a size=10K age=90d\n"
                 "home/Library/Caches/\"very long name \"\"x\"*230/a size=11K age=900d\n"
                 "home/Library/Caches/mesa_shader_cache/a size=688K age=33d\n"
                 "home/Library/Logs/DiagnosticReports/a.log size=120K age=60d\n"
                 "home/Library/Containers/org.example.Paint/Data/Library/Caches/brushes size=1060K age=18d\n"
                 "home/Library/Containers/org.example.Write/Data/Library/Caches/index size=286K age=74d\n"
                 "home/Library/Developer/Xcode/DerivedData/Lantern/Build size=1940K age=52d\n"
                 "home/Library/Developer/CoreSimulator/Caches/dyld/a size=96K age=52d\n"
                 "home/.npm/_cacache/index-v5/a size=3420K age=41d\n"
                 "home/.gradle/caches/modules-2/a size=1270K age=26d\n"
                 "home/.cargo/registry/cache/a size=1080K age=12d\n");
    }

    void useMode(CleanerCore::CleanupScanMode mode) { ASSERT_TRUE(preferences->setScanMode(mode)); }
    void useScheme(KarvelloAppearanceMode mode) { m_design.setAppearanceMode(mode); }
    void useScale(KarvelloTextScale scale) { m_design.setTextEnvironment({.scale = scale}); }

    /// What reaches out of the window or of its place at the side.
    void expectInside(QQuickItem* item)
    {
        if (!item->isVisible()) {
            return;
        }
        if (item->metaObject()->className() == QByteArray("QQuickText") && item->width() > 0) {
            const auto right = item->mapToScene(QPointF(item->width(), 0)).x();
            EXPECT_LE(right, m_window->width() + 1) << item->property("text").toString().toStdString();
        }
        for (QQuickItem* const child : item->childItems()) {
            expectInside(child);
        }
    }
};

TEST_F(CleanupPicturesTest, Idle)
{
    show();
    photograph("idle");
}

TEST_F(CleanupPicturesTest, Denied)
{
    isDirectDistribution = false;
    restartAll();
    show();
    photograph("denied");
}

TEST_F(CleanupPicturesTest, Scanning)
{
    dashboard->selectSection(MacDashboardSection::cleanup);
    screen->scan();
    show();
    photograph("scanning");
    expectInside(m_window->contentItem());
    screen->cancel();
    settle();
}

TEST_F(CleanupPicturesTest, Review)
{
    useMode(CleanerCore::CleanupScanMode::direct);
    scanForCleanup();
    screen->setGrouping(QStringLiteral("safety"));
    show();
    photograph("review-light");
    expectInside(m_window->contentItem());
    screen->setOpen(2, true);
    useScheme(KarvelloAppearanceMode::dark);
    photograph("review-dark-open");
    find("candidates")->setProperty("contentY", 500);
    photograph("review-dark-scrolled");
    useScheme(KarvelloAppearanceMode::light);
    screen->setGrouping(QStringLiteral("flat"));
    photograph("review-flat");
}

TEST_F(CleanupPicturesTest, ExtraLargeTextAtTheSmallestSize)
{
    useMode(CleanerCore::CleanupScanMode::direct);
    scanForCleanup();
    screen->setGrouping(QStringLiteral("safety"));
    useScale(KarvelloTextScale::extraLarge);
    show(1180, 780);
    photograph("review-xl");
    expectInside(m_window->contentItem());
    screen->setOpen(2, true);
    photograph("review-xl-open");
}

TEST_F(CleanupPicturesTest, GermanAndJapaneseAtTheSmallestSize)
{
    useMode(CleanerCore::CleanupScanMode::aggressive);
    scanForCleanup();
    screen->setGrouping(QStringLiteral("category"));
    show(1180, 780);
    for (const auto& [language, name] :
        {std::pair(AppLanguage::german, "review-de"), std::pair(AppLanguage::japanese, "review-ja")}) {
        ASSERT_TRUE(preferences->setLanguage(language));
        photograph(name);
        expectInside(m_window->contentItem());
    }
    ASSERT_TRUE(preferences->setLanguage(AppLanguage::german));
    useScale(KarvelloTextScale::extraLarge);
    photograph("review-de-xl");
    expectInside(m_window->contentItem());
}

TEST_F(CleanupPicturesTest, Confirmation)
{
    useMode(CleanerCore::CleanupScanMode::direct);
    scanForCleanup();
    screen->selectAll();
    screen->setSearchText(QStringLiteral("cache"));
    show();
    screen->askToClean();
    photograph("confirm");
    expectInside(m_window->contentItem());
    useScheme(KarvelloAppearanceMode::dark);
    ASSERT_TRUE(preferences->setLanguage(AppLanguage::german));
    useScale(KarvelloTextScale::extraLarge);
    photograph("confirm-de-xl");
}

TEST_F(CleanupPicturesTest, PanelsAndResults)
{
    scanForCleanup();
    show();
    QMetaObject::invokeMethod(find("page"), "showPanel", Q_ARG(QString, QStringLiteral("skipped")));
    photograph("skipped");
    screen->snooze(0, QStringLiteral("oneDay"));
    screen->snooze(0, QStringLiteral("oneWeek"));
    QMetaObject::invokeMethod(find("page"), "showPanel", Q_ARG(QString, QStringLiteral("ignored")));
    photograph("ignored");
    QMetaObject::invokeMethod(find("page"), "showPanel", Q_ARG(QString, QString()));
    screen->askToClean();
    dashboard->cleanSelected();
    photograph("cleaning");
    settle();
    photograph("finished-empty");
}

} // namespace CleanupTests
