#include "KarvelloCLI/LanguageChoice.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <vector>

namespace KarvelloCLITests {

namespace {

using KarvelloUI::AppLanguage;

AppLanguage languageWith(const std::map<std::string, std::string, std::less<>>& variables)
{
    return KarvelloCLI::languageOf(Platform::Environment(variables));
}

std::optional<AppLanguage> askedFor(const std::vector<std::string>& words)
{
    return KarvelloCLI::languageAskedFor(words);
}

} // namespace

TEST(LanguageChoice, FollowsTheLocaleOfMessages)
{
    EXPECT_EQ(languageWith({{"LANG", "de_AT.UTF-8"}}), AppLanguage::german);
    EXPECT_EQ(languageWith({{"LANG", "fr_FR.UTF-8@euro"}}), AppLanguage::french);
    EXPECT_EQ(languageWith({{"LANG", "de_DE.UTF-8"}, {"LC_MESSAGES", "ko_KR.UTF-8"}}), AppLanguage::korean);
    EXPECT_EQ(languageWith({{"LC_MESSAGES", "ko_KR.UTF-8"}, {"LC_ALL", "ja_JP.UTF-8"}}), AppLanguage::japanese);
    EXPECT_EQ(languageWith({{"LC_ALL", ""}, {"LANG", "es_MX.UTF-8"}}), AppLanguage::spanish)
        << "an empty one is not set";
}

TEST(LanguageChoice, TellsTheTwoWaysToWriteChinese)
{
    EXPECT_EQ(languageWith({{"LANG", "zh_TW.UTF-8"}}), AppLanguage::traditionalChinese);
    EXPECT_EQ(languageWith({{"LANG", "zh_HK.UTF-8"}}), AppLanguage::traditionalChinese);
    EXPECT_EQ(languageWith({{"LANG", "zh_CN.UTF-8"}}), AppLanguage::simplifiedChinese);
    EXPECT_EQ(languageWith({{"LANG", "zh_SG.UTF-8"}}), AppLanguage::simplifiedChinese);
}

TEST(LanguageChoice, TriesTheListOfLanguagesFirst)
{
    EXPECT_EQ(languageWith({{"LANG", "de_DE.UTF-8"}, {"LANGUAGE", "pt_BR:fr:ja"}}), AppLanguage::french);
    EXPECT_EQ(languageWith({{"LANG", "de_DE.UTF-8"}, {"LANGUAGE", "pt_BR::"}}), AppLanguage::german);
    EXPECT_EQ(languageWith({{"LANG", "de_DE.UTF-8"}, {"LANGUAGE", "C"}}), AppLanguage::english);
}

TEST(LanguageChoice, IsEnglishForCAndPOSIXWhateverTheListSays)
{
    for (const char* const locale : {"C", "POSIX", "C.UTF-8", ""}) {
        EXPECT_EQ(languageWith({{"LANG", locale}, {"LANGUAGE", "de"}}), AppLanguage::english) << locale;
    }
    EXPECT_EQ(languageWith({{"LC_ALL", "C"}, {"LANG", "de_DE.UTF-8"}}), AppLanguage::english);
    EXPECT_EQ(languageWith({}), AppLanguage::english);
}

TEST(LanguageChoice, IsEnglishForALanguageThatNobodyTranslated)
{
    EXPECT_EQ(languageWith({{"LANG", "pt_BR.UTF-8"}}), AppLanguage::english);
    EXPECT_EQ(languageWith({{"LANG", "\xff\n.UTF-8"}}), AppLanguage::english);
}

TEST(LanguageChoice, IsEnglishWhereTextIsNotUTF8)
{
    EXPECT_EQ(languageWith({{"LANG", "ja_JP.eucJP"}}), AppLanguage::english);
    EXPECT_EQ(languageWith({{"LANG", "de_DE.UTF-8"}, {"LC_CTYPE", "C"}}), AppLanguage::english);
}

TEST(LanguageChoice, TheLastOptionOfTheCommandLineWins)
{
    EXPECT_EQ(askedFor({"scan", "--language", "de"}), AppLanguage::german);
    EXPECT_EQ(askedFor({"scan", "--language=zh-Hant", "--verbose"}), AppLanguage::traditionalChinese);
    EXPECT_EQ(askedFor({"scan", "--language", "de", "--language", "fr"}), AppLanguage::french);
    EXPECT_EQ(askedFor({"scan"}), std::nullopt);
    EXPECT_EQ(askedFor({"scan", "--language"}), std::nullopt);
    EXPECT_EQ(askedFor({"scan", "--language", "xx"}), std::nullopt);
    EXPECT_EQ(askedFor({"scan", "--languages", "de"}), std::nullopt);
}

} // namespace KarvelloCLITests
