#include "KarvelloCLI/Say.h"

#include "CleanerCore/Safety/CleaningError.h"
#include "CleanerCore/Scan/StorageScannerSkipReason.h"
#include "KarvelloCLI/Texts/TextTables.h"
#include "KarvelloCLI/Words.h"
#include "Platform/Files/FileError.h"
#include "Tests/KarvelloCLI/SpokenLanguage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

namespace KarvelloCLITests {

namespace {

using namespace KarvelloCLI;
using CleanerCore::CleaningError;
using KarvelloUI::AppLanguage;
using Platform::FileError;
using Platform::FileErrorKind;
using Platform::FileOperation;
using testing::HasSubstr;

const auto kLanguages = Platform::allCases<AppLanguage>();

/// The numbers of the values that a text takes, in the order of their mention.
std::vector<std::size_t> valuesOf(std::string_view text)
{
    std::vector<std::size_t> values;
    for (auto open = text.find('{'); open != std::string_view::npos; open = text.find('{', open + 1)) {
        const std::string number(text.substr(open + 1, text.find('}', open) - open - 1));
        values.push_back(number.empty() ? values.size() : std::stoul(number));
    }
    return values;
}

} // namespace

TEST(Say, EveryTextStandsInEightLanguages)
{
    for (const AppLanguage language : kLanguages) {
        const auto texts = textsIn(language);
        ASSERT_EQ(texts.size(), kEnglishTexts.size());
        for (std::size_t index = 0; index < texts.size(); ++index) {
            EXPECT_FALSE(texts[index].empty()) << kEnglishTexts[index];
            auto values = valuesOf(texts[index]);
            std::ranges::sort(values);
            EXPECT_EQ(values, valuesOf(kEnglishTexts[index])) << texts[index];
        }
    }
    EXPECT_GT(kEnglishTexts.size(), 200U);
}

TEST(Say, NoLanguageLeavesAnEnglishSentence)
{
    for (const AppLanguage language : kLanguages) {
        const auto texts = textsIn(language);
        for (std::size_t index = 0; index < texts.size() && language != AppLanguage::english; ++index) {
            // Short texts may be the same in both.
            const auto& english = kEnglishTexts[index];
            const bool isSentence = std::ranges::count(english, ' ') > 2 && english.find("CPU {}") == english.npos;
            EXPECT_TRUE(!isSentence || texts[index] != english) << english;
        }
    }
}

TEST(Say, SpeaksEnglishUntilToldOtherwise)
{
    EXPECT_EQ(say("Nothing was moved."), "Nothing was moved.");
    {
        const SpokenLanguage spoken(AppLanguage::german);
        EXPECT_EQ(say("Nothing was moved."), "Es wurde nichts bewegt.");
    }
    EXPECT_EQ(say("Nothing was moved."), "Nothing was moved.");
}

TEST(Say, PutsValuesWhereTheLanguageWantsThem)
{
    EXPECT_EQ(say("{} of {}", 3, "5 items"), "3 of 5 items");
    const SpokenLanguage spoken(AppLanguage::japanese);
    EXPECT_EQ(say("{} of {}", 3, "5項目"), "5項目中3");
}

TEST(Say, AValueThatLooksLikeAPlaceholderStays)
{
    const SpokenLanguage spoken(AppLanguage::korean);
    EXPECT_EQ(say("{} of {}", "{1}", "{0}"), "{0} 중 {1}");
}

TEST(Say, CountsOneInTheSingular)
{
    EXPECT_EQ(itemCount(0), "0 items");
    EXPECT_EQ(itemCount(1), "1 item");
    EXPECT_EQ(itemCount(2), "2 items");
    const SpokenLanguage spoken(AppLanguage::german);
    EXPECT_EQ(itemCount(0), "0 Objekte");
    EXPECT_EQ(itemCount(1), "1 Objekt");
}

TEST(Say, FrenchCountsNoneInTheSingular)
{
    const SpokenLanguage spoken(AppLanguage::french);
    EXPECT_EQ(itemCount(0), "0 élément");
    EXPECT_EQ(itemCount(2), "2 éléments");
}

TEST(SayReason, SaysWhatTheCatalogueKnowsAndWhatTheReaderOfOptionsSays)
{
    namespace Reason = CleanerCore::StorageScannerSkipReason;
    for (const AppLanguage language : kLanguages) {
        const SpokenLanguage spoken(language);
        EXPECT_EQ(sayReason(Reason::recentlyModified), catalogue().skippedReason(Reason::recentlyModified));
        for (const std::string_view sentence :
            {Reason::recentlyModified, std::string_view("--a requires --b"), std::string_view("Permission denied")}) {
            EXPECT_EQ(sayReason(sentence) == sentence, language == AppLanguage::english) << sentence;
        }
        for (const auto safety : Platform::allCases<CleanerCore::CleanupSafety>()) {
            EXPECT_EQ(sayReason(displayName(safety)), catalogue().safetyName(safety));
        }
        for (const auto category : Platform::allCases<CleanerCore::CleanupCategory>()) {
            EXPECT_EQ(sayReason(displayName(category)), catalogue().categoryName(category));
        }
    }
}

TEST(SayReason, KeepsNamesAndPathsEvenThoseThatReadLikeOurWords)
{
    const SpokenLanguage spoken(AppLanguage::german);
    const FileError error{
        .kind = FileErrorKind::noPermission, .operation = FileOperation::read, .path = "/h/Disk image"};
    EXPECT_EQ(sayReason(error.localizedDescription()),
        "Die Datei „Disk image“ konnte nicht geöffnet werden: Ihnen fehlt die Berechtigung, sie anzusehen.");
    EXPECT_EQ(sayReason(CleaningError{CleaningError::Kind::criticalPath, "Recently modified"}.errorDescription()),
        "Kritischer Pfad, wird nicht bereinigt: Recently modified");
    const FileError hostile{.kind = FileErrorKind::unknown,
        .operation = FileOperation::read,
        .path = "/h/x” couldn’t be opened because it is too large"};
    EXPECT_THAT(sayReason(hostile.localizedDescription()), HasSubstr("it is too large"));
}

TEST(SayReason, LeavesWhatNobodyKnows)
{
    for (const AppLanguage language : kLanguages) {
        const SpokenLanguage spoken(language);
        EXPECT_EQ(sayReason("It went wrong"), "It went wrong");
        EXPECT_EQ(sayReason(""), "");
    }
}

TEST(SayReason, AFullStopIsNeverThereTwice)
{
    EXPECT_EQ(withFullStop("It went wrong"), "It went wrong.");
    EXPECT_EQ(withFullStop("It went wrong."), "It went wrong.");
    const SpokenLanguage spoken(AppLanguage::japanese);
    EXPECT_EQ(withFullStop("空の項目"), "空の項目。");
    EXPECT_EQ(withFullStop("中断されました。"), "中断されました。");
}

} // namespace KarvelloCLITests
