#include "Tests/KarvelloUI/Screens/Settings/SettingsFixture.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

namespace DashboardTests {

using testing::ElementsAre;

class SettingsAppearanceModelTest : public SettingsTest {
protected:
    [[nodiscard]] SettingsAppearanceModel& group() const { return *screen->appearance(); }
};

TEST_F(SettingsAppearanceModelTest, OffersEachLanguageInItself)
{
    EXPECT_THAT(textsOf(group().languages()),
        ElementsAre("한국어", "English", "日本語", "简体中文", "繁體中文", "Español", "Français", "Deutsch"));
    EXPECT_EQ(group().language(), QStringLiteral("en"));
}

TEST_F(SettingsAppearanceModelTest, OffersAppearancesAndSizes)
{
    EXPECT_THAT(textsOf(group().appearances()), ElementsAre("System", "Light", "Dark"));
    EXPECT_THAT(valuesOf(group().appearances()), ElementsAre("system", "light", "dark"));
    EXPECT_THAT(textsOf(group().textSizes()), ElementsAre("Standard", "Large", "Extra Large"));
    EXPECT_THAT(valuesOf(group().textSizes()), ElementsAre("standard", "large", "extraLarge"));
}

TEST_F(SettingsAppearanceModelTest, HoldsAtOnceAndStaysStored)
{
    const QSignalSpy changes(&group(), &SettingsAppearanceModel::changed);
    group().chooseLanguage(QStringLiteral("de"));
    group().chooseAppearance(QStringLiteral("dark"));
    group().chooseTextSize(QStringLiteral("extraLarge"));
    EXPECT_EQ(changes.count(), 3);
    EXPECT_EQ(group().title(), QStringLiteral("Erscheinungsbild"));
    EXPECT_EQ(preferences->appearanceMode(), KarvelloAppearanceMode::dark);
    EXPECT_EQ(preferences->textScale(), KarvelloTextScale::extraLarge);
    reopen();
    EXPECT_EQ(group().language(), QStringLiteral("de"));
    EXPECT_EQ(group().appearance(), QStringLiteral("dark"));
    EXPECT_EQ(group().textSize(), QStringLiteral("extraLarge"));
}

TEST_F(SettingsAppearanceModelTest, GoesBackToWhatIsStoredAndSaysSo)
{
    defaults.failAllSaves();
    for (const auto choose : {&SettingsAppearanceModel::chooseLanguage, &SettingsAppearanceModel::chooseAppearance,
             &SettingsAppearanceModel::chooseTextSize}) {
        dashboard->dismissNotice();
        for (const char* const value : {"de", "dark", "large"}) {
            (group().*choose)(QString::fromLatin1(value));
        }
        EXPECT_EQ(noticeTitle(), "Setting not saved");
    }
    EXPECT_EQ(defaults.failureCount(), 3U);
    EXPECT_EQ(group().language(), QStringLiteral("en"));
    EXPECT_EQ(group().appearance(), QStringLiteral("system"));
    EXPECT_EQ(group().textSize(), QStringLiteral("standard"));
}

TEST_F(SettingsAppearanceModelTest, IgnoresWhatIsNoChoice)
{
    const auto saves = defaults.saveCount();
    for (const char* const value : {"", "xx", "Dark", "direct"}) {
        group().chooseLanguage(QString::fromLatin1(value));
        group().chooseAppearance(QString::fromLatin1(value));
        group().chooseTextSize(QString::fromLatin1(value));
    }
    EXPECT_EQ(defaults.saveCount(), saves);
}

TEST_F(SettingsAppearanceModelTest, ShowsWhatAnotherProcessHasStored)
{
    const QSignalSpy changes(&group(), &SettingsAppearanceModel::changed);
    Platform::FileUserDefaults other(fileManager, stored.fileURL());
    ASSERT_TRUE(other.set(kAppearanceModeKey, std::string("light")));
    ASSERT_TRUE(other.set(KarvelloTextScaleKey::storageKey, std::string("large")));
    stored.refresh();
    settle();
    EXPECT_EQ(changes.count(), 2);
    EXPECT_EQ(group().appearance(), QStringLiteral("light"));
    EXPECT_EQ(group().textSize(), QStringLiteral("large"));
}

} // namespace DashboardTests
