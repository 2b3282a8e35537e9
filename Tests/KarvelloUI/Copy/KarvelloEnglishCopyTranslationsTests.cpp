#include "KarvelloUI/Copy/KarvelloEnglishCopyTranslations.h"

#include "Tests/KarvelloUI/Copy/EnglishTables.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace KarvelloUI {
namespace {

namespace Translations = KarvelloEnglishCopyTranslations;
using Texts = std::vector<std::string>;

struct Sizes {
    std::size_t manualExact;
    std::size_t exact;
    std::size_t manualTemplate;
    std::size_t postProcess;
};

const std::map<AppLanguage, Sizes> kSizes{
    {AppLanguage::japanese, {92, 644, 28, 8}},
    {AppLanguage::simplifiedChinese, {98, 646, 28, 8}},
    {AppLanguage::traditionalChinese, {107, 646, 29, 9}},
    {AppLanguage::spanish, {85, 641, 22, 9}},
    {AppLanguage::french, {96, 646, 24, 10}},
    {AppLanguage::german, {100, 629, 25, 23}},
};

TranslationRows rowsOf(AppLanguage language)
{
    return Translations::rows(language).value();
}

Texts englishOf(std::span<const TranslationRow> rows)
{
    Texts texts;
    std::ranges::transform(
        rows, std::back_inserter(texts), [](const TranslationRow& row) { return std::string(row.english); });
    return texts;
}

std::set<std::string> setOf(const Texts& texts)
{
    return {texts.begin(), texts.end()};
}

class EveryLanguage : public testing::TestWithParam<AppLanguage> {};

INSTANTIATE_TEST_SUITE_P(Copy, EveryLanguage,
    testing::Values(AppLanguage::japanese, AppLanguage::simplifiedChinese, AppLanguage::traditionalChinese,
        AppLanguage::spanish, AppLanguage::french, AppLanguage::german),
    [](const auto& language) {
        std::string name(Platform::rawValue(language.param));
        std::erase(name, '-');
        return name;
    });

TEST_P(EveryLanguage, HasTablesOfItsSizes)
{
    const TranslationRows rows = rowsOf(GetParam());
    const Sizes& sizes = kSizes.at(GetParam());
    EXPECT_EQ(setOf(englishOf(rows.manualExact)).size(), sizes.manualExact);
    EXPECT_EQ(setOf(englishOf(rows.exact)).size(), sizes.exact);
    EXPECT_EQ(setOf(englishOf(rows.manualTemplate)).size(), sizes.manualTemplate);
    EXPECT_EQ(rows.manualExact.size(), sizes.manualExact);
    EXPECT_EQ(rows.exact.size(), sizes.exact);
    EXPECT_EQ(rows.manualTemplate.size(), sizes.manualTemplate);
    EXPECT_EQ(rows.generatedTemplate.size(), 143U);
    EXPECT_EQ(rows.postProcess.size(), sizes.postProcess);
}

TEST_P(EveryLanguage, TranslatesEveryKeyInOneTableOrTheOther)
{
    const TranslationRows rows = rowsOf(GetParam());
    auto keys = setOf(englishOf(rows.exact));
    keys.merge(setOf(englishOf(rows.manualExact)));
    EXPECT_EQ(keys, setOf(EnglishTables::read().keys));
}

TEST_P(EveryLanguage, CorrectsOnlyStarredKeys)
{
    for (const std::string& key : englishOf(rowsOf(GetParam()).manualExact)) {
        EXPECT_TRUE(EnglishTables::read().starredKeys.contains(key)) << key;
    }
}

TEST_P(EveryLanguage, HasThePatternsInTheirOrder)
{
    const EnglishTables& english = EnglishTables::read();
    const TranslationRows rows = rowsOf(GetParam());
    EXPECT_EQ(englishOf(rows.generatedTemplate), english.templates);
    auto known = setOf(english.templates);
    known.insert(english.manualTemplates.begin(), english.manualTemplates.end());
    const Texts manual = englishOf(rows.manualTemplate);
    EXPECT_THAT(
        manual, testing::Each(testing::Truly([&](const std::string& pattern) { return known.contains(pattern); })));
    EXPECT_THAT(std::ranges::count_if(manual, cannotMatch), testing::AllOf(testing::Ge(1), testing::Le(3)));
}

TEST_P(EveryLanguage, HasNoPatternThatDoesNotCompile)
{
    for (const auto& row : Translations::tables(GetParam())->templates()) {
        EXPECT_NE(row.regex, nullptr) << row.pattern;
    }
}

TEST_P(EveryLanguage, TranslatesEveryRow)
{
    const TranslationRows rows = rowsOf(GetParam());
    Texts untranslated;
    for (const auto section :
        {rows.manualExact, rows.exact, rows.manualTemplate, rows.generatedTemplate, rows.postProcess}) {
        for (const TranslationRow& row : section) {
            if (row.translation.data() == nullptr || (row.translation.empty() && row.english != " ")) {
                untranslated.emplace_back(row.english);
            }
        }
    }
    EXPECT_TRUE(untranslated.empty()) << untranslated.size() << " rows, the first is: " << untranslated.front();
}

TEST_P(EveryLanguage, GivesEveryKeyAsItsTableHasIt)
{
    const TranslationRows rows = rowsOf(GetParam());
    std::map<std::string_view, std::string> expected;
    for (const TranslationRow& row : rows.exact) {
        expected[row.english] = Translations::postProcess(row.translation, GetParam());
    }
    for (const TranslationRow& row : rows.manualExact) {
        expected[row.english] = row.translation;
    }
    ASSERT_EQ(expected.size(), 677U);
    for (const auto& [key, translation] : expected) {
        EXPECT_EQ(Translations::translate(key, GetParam()), translation) << key;
    }
}

const std::vector<std::string> kParts{"5", "12", "7", "3", "9", "4", "8", "2", "6", "1", "11"};

/// Whose sentences another row takes first, or which wait for a backslash that no sentence has.
Texts unreachablePatterns(AppLanguage language)
{
    Texts patterns{R"(^(.+?),\ (.+?)\ to\ (.+?)$)",
        R"(^The\ item\ no\ longer\ exists,\ so\ the\ parent\ folder\ was\ opened\.\\n(.+?)$)"};
    if (language == AppLanguage::spanish) {
        patterns.emplace_back(R"(^(.+?)\ processed,\ (.+?)\ failed(.+?)$)");
        patterns.emplace_back(
            R"(^(.+?)\ of\ (.+?)\ requested\ items\ processed,\ (.+?)\ failed\ ·\ (.+?)\.\ Disk\ recovery\ is\ not\ verified\.(.*?)$)");
    }
    return patterns;
}

TEST_P(EveryLanguage, FindsTheRowOfEachShape)
{
    const auto& templates = Translations::tables(GetParam())->templates();
    const Texts unreachable = unreachablePatterns(GetParam());
    for (const auto& row : templates) {
        if (cannotMatch(row.pattern)) {
            continue;
        }
        const std::string text = sentenceOf(row.pattern, kParts);
        const auto first = std::ranges::find_if(templates, [&text](const auto& candidate) {
            MatchableSentence sentence(text);
            MatchBudget budget;
            return candidate.translation(sentence, budget).value().has_value();
        });
        ASSERT_NE(first, templates.end()) << text;
        EXPECT_EQ(first->pattern != row.pattern, std::ranges::find(unreachable, row.pattern) != unreachable.end())
            << text;
    }
}

TEST_P(EveryLanguage, CarriesEveryPartAcross)
{
    const Texts parts{"<a>", "<b>", "<c>", "<d>", "<e>", "<f>", "<g>", "<h>", "<i>", "<j>", "<k>"};
    for (const auto& row : Translations::tables(GetParam())->templates()) {
        if (cannotMatch(row.pattern)) {
            continue;
        }
        const std::string text = sentenceOf(row.pattern, parts);
        MatchableSentence sentence(text);
        MatchBudget budget;
        const auto translation = row.translation(sentence, budget).value();
        ASSERT_TRUE(translation) << row.pattern;
        for (const std::string& part : parts) {
            if (text.find(part) != std::string::npos) {
                EXPECT_THAT(*translation, testing::HasSubstr(part)) << row.pattern;
            }
        }
        EXPECT_THAT(*translation, testing::Not(testing::AnyOf(testing::HasSubstr("{"), testing::HasSubstr("}"))));
    }
}

TEST_P(EveryLanguage, LeavesTheSentencesOfDeadRowsInEnglish)
{
    for (const char* sentence :
        {"Free 12% · CPU 34%", "Free space 12% · 5 GB left", "Thermal pressure Serious · pause heavy work",
            "5 GB · 12% free", "Updated 10:30", "Notifications on · 2 alerts", "Notifications off · 2 alerts",
            "Open Downloads", "Safe 3 · Review 2 · Manual 1", "Duplicate candidates · 1.5 GB",
            "Safari uses 12% of total CPU capacity", "Safari uses 12% of total physical memory",
            "Review confidence levels and categories before moving 5 items (1 GB) to Trash.",
            "5 items\n\nPreview: Caches · 3 items · 1 GB. Cleanup moves items to Trash only.",
            "Clean, Mac insights, 10:30, 5 succeeded, 2 failed, 1 GB",
            "The item no longer exists, so the parent folder was opened.\n~/a",
            "Finder could not open this item.\n~/a"}) {
        EXPECT_EQ(Translations::translate(sentence, GetParam()), sentence);
    }
}

TEST_P(EveryLanguage, LeavesUnknownSentencesInEnglish)
{
    for (const char* sentence : {"", "Nobody wrote this.", "Reset checklist ", "reset checklist"}) {
        EXPECT_EQ(Translations::translate(sentence, GetParam()), sentence);
    }
}

TEST(KarvelloEnglishCopyTranslations, ShareOneEnglishSide)
{
    const EnglishTables& english = EnglishTables::read();
    EXPECT_EQ(english.keys.size(), 677U);
    EXPECT_EQ(setOf(english.keys).size(), 677U);
    EXPECT_EQ(english.templates.size(), 143U);
    EXPECT_EQ(setOf(english.templates).size(), 141U);
    EXPECT_EQ(std::ranges::count_if(english.templates, cannotMatch), 18);
    EXPECT_EQ(english.manualTemplates.size(), 8U);
}

TEST(KarvelloEnglishCopyTranslations, HaveTheKeysInCommonThatNobodyCorrectsAlone)
{
    std::map<std::string, int> languagesOfKey;
    std::set<std::string> corrected;
    std::set<std::string> handWrittenShapes;
    for (const auto& [language, sizes] : kSizes) {
        for (const std::string& key : englishOf(rowsOf(language).exact)) {
            ++languagesOfKey[key];
        }
        corrected.merge(setOf(englishOf(rowsOf(language).manualExact)));
        handWrittenShapes.merge(setOf(englishOf(rowsOf(language).manualTemplate)));
    }
    EXPECT_EQ(std::ranges::count_if(languagesOfKey, [](const auto& entry) { return entry.second == 6; }), 626);
    EXPECT_EQ(corrected, EnglishTables::read().starredKeys);
    EXPECT_THAT(handWrittenShapes, testing::IsSupersetOf(EnglishTables::read().manualTemplates));
}

TEST(KarvelloEnglishCopyTranslations, RepairTheKnownFaults)
{
    const std::vector<std::tuple<AppLanguage, std::string, std::string>> repairs{
        {AppLanguage::japanese, "候補項目はいません", "候補項目はありません"},
        {AppLanguage::japanese, "管理者", "保持するファイル"},
        {AppLanguage::simplifiedChinese, "重复的候选项", "重复候选项"},
        {AppLanguage::traditionalChinese, "保留文件", "保留檔案"},
        {AppLanguage::french, "Review ", "Examiner "},
        {AppLanguage::french, " Télécharge les éléments par taille", " éléments du dossier Téléchargements par taille"},
        {AppLanguage::german, "Licht", "Hell"},
    };
    for (const auto& [language, fault, repaired] : repairs) {
        EXPECT_EQ(Translations::postProcess("<" + fault + fault + ">", language), "<" + repaired + repaired + ">");
        EXPECT_EQ(Translations::postProcess(fault, AppLanguage::english), fault);
        EXPECT_EQ(Translations::postProcess(fault, AppLanguage::korean), fault);
    }
}

TEST(KarvelloEnglishCopyTranslations, ChangeNothingElseAfterwards)
{
    const std::map<AppLanguage, int> corrections{{AppLanguage::japanese, 2}, {AppLanguage::simplifiedChinese, 1},
        {AppLanguage::traditionalChinese, 1}, {AppLanguage::spanish, 0}, {AppLanguage::french, 2},
        {AppLanguage::german, 1}};
    for (const auto& [language, expected] : corrections) {
        const auto pairs = rowsOf(language).postProcess;
        EXPECT_EQ(
            std::ranges::count_if(pairs, [](const TranslationRow& pair) { return pair.english != pair.translation; }),
            expected)
            << Platform::rawValue(language);
    }
}

TEST(KarvelloEnglishCopyTranslations, TranslateReviewedCountsIntoFrench)
{
    EXPECT_EQ(localizedEnglishCopy(AppLanguage::french, "3 of 12 reviewed"), "3 de 12 examiné");
}

TEST(KarvelloEnglishCopyTranslations, AreNoneForKoreanAndEnglish)
{
    for (const AppLanguage language : {AppLanguage::korean, AppLanguage::english}) {
        EXPECT_EQ(Translations::rows(language).has_value(), false);
        EXPECT_EQ(Translations::tables(language), nullptr);
        EXPECT_EQ(Translations::translate("Reset checklist", language), "Reset checklist");
    }
}

TEST(KarvelloEnglishCopyTranslations, StayFastForHostileNames)
{
    const std::array<std::string, 4> pieces{" · ", ", ", " items ", " failed"};
    for (const std::string& piece : pieces) {
        std::string name;
        while (name.size() < 4000) {
            name += "a" + piece;
        }
        for (const auto& [language, sizes] : kSizes) {
            const auto start = std::chrono::steady_clock::now();
            const std::string translation = Translations::translate("Location: " + name + "\n.", language);
            // Far above what it takes, far below what a search without bounds would take.
            EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2)) << piece;
            EXPECT_EQ(translation, "Location: " + name + "\n.");
        }
    }
}

} // namespace
} // namespace KarvelloUI
