#include "Tests/KarvelloUI/Controls/Tidiness.h"
#include "Tests/KarvelloUI/Controls/WindowTest.h"
#include "Tests/KarvelloUI/Screens/Settings/SettingsFixture.h"

#include <gmock/gmock.h>

namespace KarvelloUI {

namespace {

/// The screen in a window as wide as the content of the smallest window.
class SettingsScreen : public WindowTest<DashboardTests::SettingsTest> {
protected:
    /// The window goes before what it shows.
    ~SettingsScreen() override { m_window.reset(); }

    void open(int width = 956, int height = 780)
    {
        showWindow("import Karvello.Screens.Settings\n"
                   "Window { id: window; required property var screen; visible: true\n"
                   "color: KarvelloDesign.background\n"
                   "SettingsScreen { objectName: 'page'; anchors.fill: parent; focus: true; screen: window.screen } }",
            {{QStringLiteral("screen"), QVariant::fromValue(screen.get())}, {QStringLiteral("width"), width},
                {QStringLiteral("height"), height}});
        m_item = find("page");
        layOut();
    }
    void fill()
    {
        ignore("home/.cache/mesa_shader_cache", CleanupIgnoreDuration::untilShownAgain, 688'000'000);
        ignore("home/.cache/bazel", CleanupIgnoreDuration::oneDay, 2'200'000'000);
        tree.add("home/Projects/\n");
        addFolder("home/Projects/");
        skipFolders(2);
    }
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
    EXPECT_EQ(screen->ignoreList()->count(), 1);
    EXPECT_EQ(nameOf(focused()), "Show Again, ~/.cache/mesa_shader_cache");
}

TEST_F(SettingsScreen, ShowsWhatIsStoredAfterAChoiceThatWasNot)
{
    open();
    defaults.failAllSaves();
    key(Qt::Key_Tab);
    key(Qt::Key_Down);
    key(Qt::Key_Tab);
    key(Qt::Key_Right);
    EXPECT_EQ(defaults.failureCount(), 2U);
    EXPECT_EQ(find("language")->property("currentIndex").toInt(), 1);
    EXPECT_EQ(find("appearance")->property("currentIndex").toInt(), 0);
    defaults.failNoSave();
    key(Qt::Key_Right);
    EXPECT_EQ(preferences->appearanceMode(), KarvelloAppearanceMode::light);
}

TEST_F(SettingsScreen, TellsOneFailureAtATimeTheWorstFirst)
{
    fill();
    open();
    const auto told = [this] {
        std::vector<std::string> names;
        for (const char* const name : {"accessFailure", "ignoreListFailure", "foldersFailure"}) {
            if (find(name)->isVisible()) {
                names.emplace_back(name);
            }
        }
        return names;
    };
    EXPECT_THAT(told(), testing::IsEmpty());
    defaults.failAllSaves();
    screen->customFolders()->remove(0);
    EXPECT_THAT(told(), testing::ElementsAre("foldersFailure"));
    screen->ignoreList()->clear();
    EXPECT_THAT(told(), testing::ElementsAre("ignoreListFailure"));
    screen->scan()->grant();
    fileDialogs.answer(tree.url("home/Projects/"));
    EXPECT_THAT(told(), testing::ElementsAre("accessFailure"));
    screen->scan()->dismissError();
    EXPECT_THAT(told(), testing::ElementsAre("ignoreListFailure"));
    screen->ignoreList()->dismissError();
    EXPECT_THAT(told(), testing::ElementsAre("foldersFailure"));
    screen->customFolders()->dismissError();
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
            ASSERT_TRUE(preferences->setLanguage(language));
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
    photograph("settings-light");
    m_design.setAppearanceMode(KarvelloAppearanceMode::dark);
    photograph("settings-dark");
    m_design.setAppearanceMode(KarvelloAppearanceMode::light);
    m_window->resize(956, 1600);
    for (const auto language : {AppLanguage::german, AppLanguage::japanese}) {
        ASSERT_TRUE(preferences->setLanguage(language));
        photograph("settings-" + std::string(Platform::rawValue(language)));
    }
    m_design.setTextEnvironment({.scale = KarvelloTextScale::extraLarge});
    m_window->resize(916, 780);
    ASSERT_TRUE(preferences->setLanguage(AppLanguage::german));
    photograph("settings-xl-window");
    m_window->resize(916, 3200);
    photograph("settings-xl");
    EXPECT_TRUE(m_item->isVisible());
}

} // namespace

} // namespace KarvelloUI
