#include "KarvelloUI/Copy/AppLanguage.h"

#include "Platform/Files/PosixFileManager.h"
#include "Platform/Services/FileUserDefaults.h"
#include "Tests/Support/TemporaryTree.h"

#include <gtest/gtest.h>
#include <vector>

namespace KarvelloUI {
namespace {

using enum AppLanguage;
using Identifiers = std::vector<std::string>;

TEST(AppLanguage, HasEightLanguagesInTheirOrder)
{
    const std::vector<std::pair<std::string_view, std::string_view>> expected{{"ko", "한국어"}, {"en", "English"},
        {"ja", "日本語"}, {"zh-Hans", "简体中文"}, {"zh-Hant", "繁體中文"}, {"es", "Español"}, {"fr", "Français"},
        {"de", "Deutsch"}};
    std::vector<std::pair<std::string_view, std::string_view>> languages;
    for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
        languages.emplace_back(Platform::rawValue(language), displayName(language));
    }
    EXPECT_EQ(languages, expected);
    EXPECT_EQ(kLanguageStorageKey, "karvello.language");
}

TEST(AppLanguage, TestsTheChineseScriptBeforeTheRegion)
{
    EXPECT_EQ(languageMatchingPreferredIdentifier("zh-Hant-HK"), traditionalChinese);
    EXPECT_EQ(languageMatchingPreferredIdentifier("zh-Hans-TW"), simplifiedChinese);
    EXPECT_EQ(languageMatchingPreferredIdentifier("zh-TW-Hans"), simplifiedChinese);
    EXPECT_EQ(languageMatchingPreferredIdentifier("zh-Hans-Hant"), traditionalChinese);
}

TEST(AppLanguage, TakesTheChineseOfTheRegion)
{
    EXPECT_EQ(languageMatchingPreferredIdentifier("zh_TW"), traditionalChinese);
    EXPECT_EQ(languageMatchingPreferredIdentifier("zh-hk"), traditionalChinese);
    EXPECT_EQ(languageMatchingPreferredIdentifier("zh-MO"), traditionalChinese);
    EXPECT_EQ(languageMatchingPreferredIdentifier("zh"), simplifiedChinese);
    EXPECT_EQ(languageMatchingPreferredIdentifier("zh-SG"), simplifiedChinese);
    EXPECT_EQ(languageMatchingPreferredIdentifier("zh-Latn-pinyin"), simplifiedChinese);
    EXPECT_EQ(languageMatchingPreferredIdentifier("zh-yue-HK"), traditionalChinese);
}

TEST(AppLanguage, TakesThreeDigitsAsTheChineseRegion)
{
    EXPECT_EQ(languageMatchingPreferredIdentifier("zh-419-HK"), simplifiedChinese);
}

TEST(AppLanguage, IgnoresCaseAndRegionOfOtherLanguages)
{
    EXPECT_EQ(languageMatchingPreferredIdentifier("KO"), korean);
    EXPECT_EQ(languageMatchingPreferredIdentifier("ko-KR"), korean);
    EXPECT_EQ(languageMatchingPreferredIdentifier("en-GB"), english);
    EXPECT_EQ(languageMatchingPreferredIdentifier("KO_kr"), korean);
    EXPECT_EQ(languageMatchingPreferredIdentifier("De-Latn-DE-1996"), german);
    EXPECT_EQ(languageMatchingPreferredIdentifier("ZH-HANT"), traditionalChinese);
}

TEST(AppLanguage, MatchesNothingElse)
{
    for (const char* identifier : {"", "-", "_", "pt-BR", "deu", "e", "C", "\xFF"}) {
        EXPECT_EQ(languageMatchingPreferredIdentifier(identifier), std::nullopt) << identifier;
    }
}

TEST(AppLanguage, PrefersTheFirstIdentifierThatMatches)
{
    EXPECT_EQ(preferredDefaultLanguage(Identifiers{"pt-BR", "de-DE", "fr"}), german);
    EXPECT_EQ(preferredDefaultLanguage(Identifiers{"pt-BR"}), english);
    EXPECT_EQ(preferredDefaultLanguage(Identifiers{}), english);
}

TEST(AppLanguage, KeepsAStoredLanguageOnlyIfItIsOne)
{
    const Identifiers preferred{"fr-CA"};
    EXPECT_EQ(persistedLanguage("ja", preferred), japanese);
    EXPECT_EQ(persistedLanguage("xx", preferred), french);
    EXPECT_EQ(persistedLanguage("JA", preferred), french);
    EXPECT_EQ(persistedLanguage("", preferred), french);
    EXPECT_EQ(persistedLanguage(std::nullopt, preferred), french);
}

TEST(AppLanguage, TakesTheStoredChoiceOfThePreferencesAndLeavesAnyOtherAlone)
{
    const TestSupport::TemporaryTree tree;
    const Platform::PosixFileManager files;
    Platform::FileUserDefaults defaults(files, tree.url("preferences.json"));
    const Identifiers preferred{"pt-BR", "de-DE"};
    EXPECT_EQ(persistedLanguage(defaults, preferred), german);
    EXPECT_EQ(persistedLanguage(defaults, Identifiers{}), english);
    ASSERT_TRUE(defaults.set("karvello.language", std::string("zh-Hant")));
    EXPECT_EQ(persistedLanguage(defaults, preferred), traditionalChinese);
    const std::vector<Platform::DefaultsValue> others{std::string("xx"), std::int64_t{1}, Platform::DefaultsData{"ja"}};
    for (const auto& other : others) {
        ASSERT_TRUE(defaults.set(kLanguageStorageKey, other));
        EXPECT_EQ(persistedLanguage(defaults, preferred), german);
        EXPECT_EQ(defaults.value(kLanguageStorageKey), other);
    }
}

TEST(AppLanguage, GivesAnEnglishSentenceBackInEnglishAndKorean)
{
    EXPECT_EQ(localizedEnglishCopy(korean, "Reset checklist"), "Reset checklist");
    EXPECT_EQ(localizedEnglishCopy(english, "Reset checklist"), "Reset checklist");
}

} // namespace
} // namespace KarvelloUI
