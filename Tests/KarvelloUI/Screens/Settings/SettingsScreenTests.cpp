#include "Tests/KarvelloUI/Controls/ControlsFixture.h"
#include "Tests/KarvelloUI/Controls/Tidiness.h"
#include "Tests/KarvelloUI/Screens/Settings/SettingsFixture.h"

#include <gmock/gmock.h>

namespace KarvelloUI {

namespace {

/// The screen in a window as wide as the content of the smallest window.
class SettingsScreen : public Controls {
protected:
    struct Settings : DashboardTests::SettingsTest {
        void TestBody() override {}
        using SettingsTest::addFolder;
        using SettingsTest::dashboard;
        using SettingsTest::defaults;
        using SettingsTest::fileDialogs;
        using SettingsTest::ignore;
        using SettingsTest::isDirectDistribution;
        using SettingsTest::preferences;
        using SettingsTest::screen;
        using SettingsTest::skipFolders;
        using SettingsTest::tree;
    };

    /// The window goes before what it shows.
    ~SettingsScreen() override { m_window.reset(); }

    void open(int width = 956, int height = 780)
    {
        show("Item { width: 1; height: 1 }");
        m_window->resize(width, height);
        m_window->setColor(m_design.background());
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nimport Karvello.Screens.Settings\n"
                          "SettingsScreen { anchors.fill: parent }",
            {});
        ASSERT_TRUE(component.isReady()) << component.errorString().toStdString();
        m_item = qobject_cast<QQuickItem*>(component.createWithInitialProperties(
            {{QStringLiteral("screen"), QVariant::fromValue(m_settings.screen.get())},
                {QStringLiteral("parent"), QVariant::fromValue(m_window->contentItem())}}));
        ASSERT_NE(m_item, nullptr);
        m_item->setParent(m_window.get());
        m_item->forceActiveFocus();
        QTest::qWait(50);
    }
    void fill()
    {
        m_settings.ignore("home/.cache/mesa_shader_cache", CleanupIgnoreDuration::untilShownAgain, 688'000'000);
        m_settings.ignore("home/.cache/bazel", CleanupIgnoreDuration::oneDay, 2'200'000'000);
        m_settings.tree.add("home/Projects/\n");
        m_settings.addFolder("home/Projects/");
        m_settings.skipFolders(2);
    }
    void photograph(const std::string& name)
    {
        if (const QString folder = qEnvironmentVariable("KARVELLO_PHOTOGRAPHS"); !folder.isEmpty()) {
            m_window->setColor(m_design.background());
            QTest::qWait(200);
            ASSERT_TRUE(m_window->grabWindow().save(folder + QLatin1Char('/') + QString::fromStdString(name)));
        }
    }
    [[nodiscard]] QQuickItem* focused() const { return m_window->activeFocusItem(); }
    /// Every text that is on show lies within the width of the page, and none is cut off.
    void expectFits() const
    {
        EXPECT_THAT(Tidiness::faultsOf(*m_window->contentItem()), testing::IsEmpty());
        for (auto* const item : m_item->findChildren<QQuickItem*>()) {
            if (!item->isVisible() || !item->inherits("QQuickText") || item->property("text").toString().isEmpty()) {
                continue;
            }
            const auto left = item->mapToItem(m_item, {0, 0}).x();
            EXPECT_GE(left, 0) << item->property("text").toString().toStdString();
            EXPECT_LE(left + item->width(), m_item->width()) << item->property("text").toString().toStdString();
            EXPECT_FALSE(item->property("truncated").toBool() && item->property("elide").toInt() != Qt::ElideMiddle)
                << item->property("text").toString().toStdString();
        }
    }

    Settings m_settings;
    QQuickItem* m_item = nullptr;
};

TEST_F(SettingsScreen, ShowsEachGroupWithItsName)
{
    fill();
    open();
    for (const char* const name :
        {"language", "appearance", "textSize", "scanMode", "grantAccess", "clearIgnoreList", "ignoreList", "addFolder",
            "folders", "guidanceStep", "copyPaths", "privacySettings", "shortcut", "iosGuide", "version"}) {
        EXPECT_TRUE(find(name)->isVisible()) << name;
    }
    EXPECT_EQ(nameOf(find("ignoreList")), "Ignore List, 2 hidden items");
    EXPECT_EQ(nameOf(find("shortcut")), "Ctrl+1 … 9, Open one of the first nine sections");
    EXPECT_EQ(nameOf(find("guidanceStep")), "Step 1 of 4, Review skipped items");
    EXPECT_EQ(find("version")->property("text").toString(), QStringLiteral("Version 0.1.0"));
}

TEST_F(SettingsScreen, ShowsNeitherListNorRevokeWhereThereIsNothing)
{
    open();
    EXPECT_FALSE(find("ignoreList")->isVisible());
    EXPECT_FALSE(find("clearIgnoreList")->isVisible());
    EXPECT_FALSE(find("folders")->isVisible());
    EXPECT_FALSE(find("revokeAccess")->isVisible());
    EXPECT_TRUE(find("ignoreListEmpty")->isVisible());
    EXPECT_TRUE(find("foldersEmpty")->isVisible());
    EXPECT_FALSE(find("accessFailure")->isVisible());
}

TEST_F(SettingsScreen, IsReachedByTabWithOneRowOfEachList)
{
    fill();
    open();
    std::vector<std::string> names;
    for (int step = 0; step < 16; ++step) {
        key(Qt::Key_Tab);
        names.push_back(nameOf(focused()));
    }
    EXPECT_THAT(names,
        testing::ElementsAre("Language, English", "System", "Standard", testing::_, "Grant Home Folder Access",
            "Clear Ignore List", "Show Again, ~/.cache/bazel", "iOS Guide", "Add Folder", "Show in File Manager, ~/f1",
            "Remove Folder, ~/f1", "Open Privacy Settings", "Copy paths", "Language, English", "System", "Standard"));
}

TEST_F(SettingsScreen, MovesInAListByArrowsAndKeepsThePlaceWhenARowGoes)
{
    fill();
    open();
    find("ignoreList")->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_EQ(nameOf(focused()), "Show Again, ~/.cache/bazel");
    key(Qt::Key_Down);
    EXPECT_EQ(nameOf(focused()), "Show Again, ~/.cache/mesa_shader_cache");
    key(Qt::Key_Home);
    EXPECT_EQ(nameOf(focused()), "Show Again, ~/.cache/bazel");
    key(Qt::Key_Space);
    QTest::qWait(20);
    EXPECT_EQ(m_settings.screen->ignoreList()->count(), 1);
    EXPECT_EQ(nameOf(focused()), "Show Again, ~/.cache/mesa_shader_cache");
}

TEST_F(SettingsScreen, ShowsWhatIsStoredAfterAChoiceThatWasNot)
{
    open();
    m_settings.defaults.failAllSaves();
    key(Qt::Key_Tab);
    key(Qt::Key_Down);
    key(Qt::Key_Tab);
    key(Qt::Key_Right);
    EXPECT_EQ(m_settings.defaults.failureCount(), 2U);
    EXPECT_EQ(find("language")->property("currentIndex").toInt(), 1);
    EXPECT_EQ(find("appearance")->property("currentIndex").toInt(), 0);
    m_settings.defaults.failNoSave();
    key(Qt::Key_Right);
    EXPECT_EQ(m_settings.preferences->appearanceMode(), KarvelloAppearanceMode::light);
}

TEST_F(SettingsScreen, TellsOneFailureAtATimeTheWorstFirst)
{
    fill();
    open();
    const auto told = [this] {
        std::vector<std::string> names;
        for (const char* const name : {"accessFailure", "ignoreFailure", "foldersFailure"}) {
            if (find(name)->isVisible()) {
                names.emplace_back(name);
            }
        }
        return names;
    };
    EXPECT_THAT(told(), testing::IsEmpty());
    m_settings.defaults.failAllSaves();
    m_settings.screen->customFolders()->remove(0);
    EXPECT_THAT(told(), testing::ElementsAre("foldersFailure"));
    m_settings.screen->ignoreList()->clear();
    EXPECT_THAT(told(), testing::ElementsAre("ignoreFailure"));
    m_settings.screen->scan()->grant();
    m_settings.fileDialogs.answer(m_settings.tree.url("home/Projects/"));
    EXPECT_THAT(told(), testing::ElementsAre("accessFailure"));
    m_settings.screen->scan()->dismissError();
    EXPECT_THAT(told(), testing::ElementsAre("ignoreFailure"));
    m_settings.screen->ignoreList()->dismissError();
    EXPECT_THAT(told(), testing::ElementsAre("foldersFailure"));
    m_settings.screen->customFolders()->dismissError();
    EXPECT_THAT(told(), testing::IsEmpty());
}

TEST_F(SettingsScreen, StandsInOneColumnWithLargeTexts)
{
    fill();
    open();
    EXPECT_EQ(find("columns")->property("columns").toInt(), 2);
    m_design.setTextEnvironment({.scale = KarvelloTextScale::extraLarge});
    QTest::qWait(20);
    EXPECT_EQ(find("columns")->property("columns").toInt(), 1);
}

TEST_F(SettingsScreen, FitsItsWordsInEveryLanguageAndScale)
{
    fill();
    open();
    for (const auto scale : Platform::allCases<KarvelloTextScale>()) {
        m_design.setTextEnvironment({.scale = scale});
        m_window->resize(scale == KarvelloTextScale::extraLarge ? 916 : 956, 780);
        for (const auto language : Platform::allCases<AppLanguage>()) {
            ASSERT_TRUE(m_settings.preferences->setLanguage(language));
            QTest::qWait(30);
            SCOPED_TRACE(std::string(Platform::rawValue(language)) + " " + std::string(Platform::rawValue(scale)));
            expectFits();
        }
    }
}

TEST_F(SettingsScreen, LooksAsItShould)
{
    fill();
    open(1016, 1500);
    photograph("settings-light.png");
    m_design.setAppearanceMode(KarvelloAppearanceMode::dark);
    photograph("settings-dark.png");
    m_design.setAppearanceMode(KarvelloAppearanceMode::light);
    m_window->resize(956, 1600);
    for (const auto language : {AppLanguage::german, AppLanguage::japanese}) {
        ASSERT_TRUE(m_settings.preferences->setLanguage(language));
        photograph("settings-" + std::string(Platform::rawValue(language)) + ".png");
    }
    m_design.setTextEnvironment({.scale = KarvelloTextScale::extraLarge});
    m_window->resize(916, 780);
    ASSERT_TRUE(m_settings.preferences->setLanguage(AppLanguage::german));
    photograph("settings-xl-window.png");
    m_window->resize(916, 3200);
    photograph("settings-xl.png");
    EXPECT_TRUE(m_item->isVisible());
}

} // namespace

} // namespace KarvelloUI
