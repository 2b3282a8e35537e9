#include "KarvelloUI/Copy/KarvelloEnglishCopyTranslations.h"
#include "KarvelloUI/Copy/KarvelloLocalizer.h"
#include "KarvelloUI/Copy/SentencePattern.h"
#include "Platform/Base/Text.h"
#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"
#include "Tests/KarvelloUI/Copy/CopyLanguages.h"
#include "Tests/KarvelloUI/Copy/EnglishTables.h"
#include "Tests/KarvelloUI/Copy/EnglishWords.h"

#include <algorithm>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <set>

namespace KarvelloUI {
namespace {

using Texts = std::vector<std::string>;

std::vector<CatalogueSample> allSamples()
{
    std::vector<CatalogueSample> all;
    for (const auto& [theme, samples] : catalogueSamples()) {
        all.insert(all.end(), samples.begin(), samples.end());
    }
    return all;
}

std::vector<AppLanguage> translatedLanguages()
{
    std::vector<AppLanguage> languages;
    std::ranges::copy_if(Platform::allCases<AppLanguage>(), std::back_inserter(languages),
        [](AppLanguage language) { return KarvelloEnglishCopyTranslations::tables(language) != nullptr; });
    return languages;
}

/// The texts that the headers of the catalogue declare for everybody.
std::set<std::string> declaredMembers()
{
    const std::regex declaration(R"(\[\[nodiscard\]\] (?:static )?[\w:<>]+ (\w+)\()");
    std::set<std::string> members;
    for (const char* name : {"CopyWording.h", "CleanupCopy.h", "KarvelloCopy.h"}) {
        std::ifstream file(std::string(KARVELLO_SOURCE_DIR "/KarvelloUI/Copy/") + name);
        const std::string header{std::istreambuf_iterator<char>(file), {}};
        const std::string declarations = header.substr(0, std::min(header.find("private:"), header.find("protected:")));
        for (std::sregex_iterator match(declarations.begin(), declarations.end(), declaration), end; match != end;
            ++match) {
            members.insert((*match)[1]);
        }
    }
    return members;
}

bool matches(const std::string& pattern, const std::string& text)
{
    MatchableSentence sentence(text);
    MatchBudget budget;
    const auto match = SentencePattern::shared(pattern)->firstMatch(sentence, budget);
    return match && *match;
}

/// How much of a sentence a pattern tells by itself.
std::size_t literalSize(const std::string& pattern)
{
    const auto sentence = sentenceOf(pattern, Texts(9));
    return sentence.size();
}

TEST(Catalogue, HasASampleOfEveryMember)
{
    std::set<std::string> members;
    for (const CatalogueSample& sample : allSamples()) {
        members.insert(std::string(sample.member()));
    }
    members.insert("locale"); // an identifier and no text
    EXPECT_THAT(members, testing::ContainerEq(declaredMembers()));
}

TEST(Catalogue, HasNoTwoSamplesOfOneName)
{
    std::set<std::string> names;
    for (const CatalogueSample& sample : allSamples()) {
        EXPECT_TRUE(names.insert(sample.name).second) << sample.name;
    }
}

TEST(Catalogue, TakesItsEnglishFromTheTablesAndResources)
{
    const EnglishTables& tables = EnglishTables::read();
    std::set<std::string> keys(tables.keys.begin(), tables.keys.end());
    for (const KarvelloI18nKey key : Platform::allCases<KarvelloI18nKey>()) {
        keys.insert(KarvelloLocalizer{AppLanguage::english}.string(key));
    }
    auto patterns = tables.manualTemplates;
    patterns.insert(patterns.end(), tables.templates.begin(), tables.templates.end());
    for (const CatalogueSample& sample : allSamples()) {
        if (sample.coverage == SampleCoverage::translated) {
            const std::string text = sample.text(kEnglish);
            EXPECT_TRUE(keys.contains(text)
                || std::ranges::any_of(patterns, [&](const auto& pattern) { return matches(pattern, text); }))
                << sample.name << ": " << text;
        }
    }
}

TEST(Catalogue, HasOwnTextsOnlyWhereALanguageHasNoRow)
{
    for (const CatalogueSample& sample : allSamples()) {
        const std::string text = sample.text(kEnglish);
        const auto stays = [&](AppLanguage language) { return localizedEnglishCopy(language, text) == text; };
        if (sample.coverage == SampleCoverage::own) {
            EXPECT_TRUE(std::ranges::any_of(translatedLanguages(), stays)) << sample.name;
        } else if (sample.coverage == SampleCoverage::staysEnglish) {
            EXPECT_TRUE(std::ranges::all_of(translatedLanguages(), stays)) << sample.name;
        }
    }
}

TEST(Catalogue, HasNoBraceAndNoDoubleSpace)
{
    for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
        for (const CatalogueSample& sample : allSamples()) {
            const std::string text = sample.text({language});
            EXPECT_FALSE(text.empty()) << sample.name;
            EXPECT_EQ(text.find_first_of("{}"), std::string::npos) << sample.name << ": " << text;
            EXPECT_EQ(text.find("  "), std::string::npos) << sample.name << ": " << text;
            EXPECT_TRUE(Platform::Text::isValidUTF8(text)) << sample.name;
        }
    }
}

TEST(Catalogue, LeavesNoEnglishInTheTranslatedLanguages)
{
    for (const AppLanguage language : translatedLanguages()) {
        for (const CatalogueSample& sample : allSamples()) {
            if (sample.coverage != SampleCoverage::staysEnglish && sample.coverage != SampleCoverage::onlyKorean) {
                const std::string text = sample.text({language});
                EXPECT_THAT(englishWordsIn(text, language), testing::IsEmpty()) << sample.name << ": " << text;
            }
        }
    }
}

TEST(Catalogue, LeavesNoEnglishInKorean)
{
    for (const CatalogueSample& sample : allSamples()) {
        if (sample.coverage != SampleCoverage::neverKorean) {
            const std::string text = sample.text({AppLanguage::korean});
            EXPECT_THAT(englishWordsIn(text, AppLanguage::korean), testing::IsEmpty()) << sample.name << ": " << text;
        }
    }
}

// A row that tells more of the sentence would have translated it better.
TEST(Catalogue, GivesEachSentenceToItsNarrowestRow)
{
    const auto& keys = EnglishTables::read().keys;
    for (const AppLanguage language : translatedLanguages()) {
        for (const CatalogueSample& sample : allSamples()) {
            const std::string text = sample.text(kEnglish);
            if (sample.coverage != SampleCoverage::translated || std::ranges::find(keys, text) != keys.end()) {
                continue;
            }
            std::string first;
            for (const auto& row : KarvelloEnglishCopyTranslations::tables(language)->templates()) {
                if (matches(row.pattern, text)) {
                    first = first.empty() ? row.pattern : first;
                    EXPECT_GE(literalSize(first), literalSize(row.pattern))
                        << sample.name << ": " << first << " takes what is for " << row.pattern;
                }
            }
        }
    }
}

} // namespace
} // namespace KarvelloUI
