#include "KarvelloUI/Copy/KarvelloLocalizer.h"

#include "KarvelloUI/Copy/KarvelloLocalizationResources.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace KarvelloUI {
namespace {

using Resolution = KarvelloLocalizationResolution;

KarvelloLocalizationResources sampleResources()
{
    static const std::vector<BundledText> texts{{"en", R"("title" = "Language"; "only" = "English only";)"},
        {"fr", R"("title" = "Langue"; "only" = "";)"}, {"de", "broken"}, {"xx", R"("title" = "Other";)"}};
    return KarvelloLocalizationResources(texts);
}

TEST(KarvelloLocalizationResources, ResolvesInTheLanguageItself)
{
    EXPECT_EQ(sampleResources().resolve("title", AppLanguage::french),
        (Resolution{"Langue", AppLanguage::french, false, false}));
    EXPECT_EQ(sampleResources().resolve("title", AppLanguage::english),
        (Resolution{"Language", AppLanguage::english, false, false}));
}

TEST(KarvelloLocalizationResources, TakesAnEmptyTextForNone)
{
    EXPECT_EQ(sampleResources().resolve("only", AppLanguage::french),
        (Resolution{"English only", AppLanguage::english, true, false}));
}

TEST(KarvelloLocalizationResources, TakesABrokenOrMissingFileForEmpty)
{
    const Resolution fallback{"Language", AppLanguage::english, true, false};
    EXPECT_EQ(sampleResources().resolve("title", AppLanguage::german), fallback);
    EXPECT_EQ(sampleResources().resolve("title", AppLanguage::japanese), fallback);
}

TEST(KarvelloLocalizationResources, MarksAMissingKey)
{
    EXPECT_EQ(sampleResources().resolve("none", AppLanguage::french), (Resolution{"‼️none‼️", std::nullopt, true, true}));
    EXPECT_EQ(
        sampleResources().resolve("none", AppLanguage::english), (Resolution{"‼️none‼️", std::nullopt, false, true}));
}

TEST(KarvelloLocalizationResources, HoldsEveryKeyInEveryLanguage)
{
    for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
        for (const KarvelloI18nKey key : Platform::allCases<KarvelloI18nKey>()) {
            EXPECT_EQ(
                KarvelloLocalizationResources::bundled().resolve(Platform::rawValue(key), language).resolvedLanguage,
                language)
                << Platform::rawValue(key);
        }
    }
}

TEST(KarvelloLocalizationResources, HoldsNoFileThatCannotBeRead)
{
    EXPECT_EQ(bundledTexts().size(), 8U);
    for (const BundledText& text : bundledTexts()) {
        const auto entries = readStringsFile(text.contents);
        ASSERT_TRUE(entries) << text.languageCode;
        EXPECT_EQ(entries->size(), Platform::allCases<KarvelloI18nKey>().size()) << text.languageCode;
    }
}

TEST(KarvelloLocalizer, GivesTheTextOfItsLanguage)
{
    EXPECT_EQ(KarvelloLocalizer{AppLanguage::english}.string(KarvelloI18nKey::languageTitle), "Language");
    EXPECT_EQ(KarvelloLocalizer{AppLanguage::korean}.string(KarvelloI18nKey::languageTitle), "언어");
    EXPECT_EQ(KarvelloLocalizer{AppLanguage::korean}.string(KarvelloI18nKey::languageTitle, {}), "언어");
}

TEST(KarvelloLocalizer, LeavesAPercentSignAloneWithoutArguments)
{
    const std::vector<BundledText> texts{{"en", R"("language.title" = "100% of %@";)"}};
    const KarvelloLocalizationResources resources(texts);
    const KarvelloLocalizer localizer{AppLanguage::english};
    EXPECT_EQ(localizer.string(KarvelloI18nKey::languageTitle, resources), "100% of %@");
    EXPECT_EQ(localizer.string(KarvelloI18nKey::languageTitle, {}, resources), "100% of %@");
    EXPECT_EQ(localizer.string(KarvelloI18nKey::languageTitle, {"x"}, resources), "100% of x");
}

TEST(KarvelloLocalizer, WritesArgumentsInItsLanguage)
{
    const std::vector<BundledText> texts{{"en", R"("language.title" = "%d";)"}};
    const KarvelloLocalizer localizer{AppLanguage::german};
    EXPECT_EQ(
        localizer.string(KarvelloI18nKey::languageTitle, {1234567}, KarvelloLocalizationResources(texts)), "1.234.567");
}

std::string inEnglish(std::string_view format, std::vector<FormatArgument> arguments)
{
    return formatted(format, arguments, "en");
}

TEST(FormatString, PutsArgumentsInByOrderOrPosition)
{
    EXPECT_EQ(inEnglish("%@ of %d", {"a", 12}), "a of 12");
    EXPECT_EQ(inEnglish("%2$@ before %1$@", {"a", "b"}), "b before a");
    EXPECT_EQ(inEnglish("%ld, %lld, %i, %u", {1, 2, 3, 4}), "1, 2, 3, 4");
    EXPECT_EQ(inEnglish("100%% of %@", {"x"}), "100% of x");
}

TEST(FormatString, WritesNumbersAsTheLocaleDoes)
{
    EXPECT_EQ(inEnglish("%d %.2f %f", {1234567, 1.5, 0.25}), "1,234,567 1.50 0.250000");
    EXPECT_EQ(formatted("%d %.1f", std::vector<FormatArgument>{1234567, 1.25}, "de"), "1.234.567 1,2");
}

TEST(FormatString, LeavesWhatIsNoConversion)
{
    EXPECT_EQ(inEnglish("100%", {"x"}), "100%");
    EXPECT_EQ(inEnglish("50% off, %z %0$@ %1@", {"x"}), "50% off, %z %0$@ %1@");
    EXPECT_EQ(inEnglish("%@ %@ %7$@ %99999999999999999999$@", {"x"}), "x %@ %7$@ %99999999999999999999$@");
}

} // namespace
} // namespace KarvelloUI
