#include "KarvelloUI/Copy/CopyTranslationTables.h"

#include <gtest/gtest.h>
#include <vector>

namespace KarvelloUI {
namespace {

using Rows = std::vector<TranslationRow>;

/// Small tables; they have to outlive what is made of them.
struct SampleRows {
    Rows manualExact = {};
    Rows exact = {};
    Rows manualTemplate = {};
    Rows generatedTemplate = {};
    Rows postProcess = {};

    [[nodiscard]] std::string translate(std::string_view text) const
    {
        return CopyTranslationTables({manualExact, exact, manualTemplate, generatedTemplate, postProcess})
            .translate(text);
    }
};

TEST(CopyTranslationTables, PrefersTheCorrectedSentence)
{
    const SampleRows rows{
        .manualExact = {{"Review", "Prüfen"}}, .exact = {{"Review", "Rezension"}, {"Done", "Fertig"}}};
    EXPECT_EQ(rows.translate("Review"), "Prüfen");
    EXPECT_EQ(rows.translate("Done"), "Fertig");
}

TEST(CopyTranslationTables, LeavesACorrectedSentenceUnprocessed)
{
    const SampleRows rows{.manualExact = {{"Light", "Licht"}},
        .exact = {{"Light mode", "Licht und Licht"}},
        .generatedTemplate = {{"^(.+?) light$", "Licht {0}"}},
        .postProcess = {{"Licht", "Hell"}}};
    EXPECT_EQ(rows.translate("Light"), "Licht");
    EXPECT_EQ(rows.translate("Light mode"), "Hell und Hell");
    EXPECT_EQ(rows.translate("Lichthof light"), "Hell Hellhof");
}

TEST(CopyTranslationTables, LooksForAWholeSentenceBeforeItsShape)
{
    const SampleRows rows{.exact = {{"1 item", "ein Objekt"}}, .manualTemplate = {{"^(.+?) item$", "{0} Objekte"}}};
    EXPECT_EQ(rows.translate("1 item"), "ein Objekt");
    EXPECT_EQ(rows.translate("2 item"), "2 Objekte");
}

TEST(CopyTranslationTables, TakesTheFirstShapeCorrectedOnesFirst)
{
    const SampleRows rows{.manualTemplate = {{"^(.+?) wide$", "manual"}},
        .generatedTemplate = {{"^(.+?) very wide$", "narrow"}, {"^(.+?) narrow$", "first"}, {"^a (.+?)$", "second"}}};
    EXPECT_EQ(rows.translate("a very wide"), "manual");
    EXPECT_EQ(rows.translate("a narrow"), "first");
    EXPECT_EQ(rows.translate("a b"), "second");
}

TEST(CopyTranslationTables, CarriesPartsAcrossInAnyOrder)
{
    const SampleRows rows{.generatedTemplate = {{"^(.+?) of (.+?)$", "{1} / {0} / {1}"}}};
    EXPECT_EQ(rows.translate("3 of 12"), "12 / 3 / 12");
}

TEST(CopyTranslationTables, ReplacesAPlaceholderThatAPartBringsAlong)
{
    const SampleRows rows{.generatedTemplate = {{"^(.+?) of (.+?)$", "{0} von {1}"}}};
    EXPECT_EQ(rows.translate("{1} of x"), "x von x");
    EXPECT_EQ(rows.translate("x of {0}"), "x von {0}");
    EXPECT_EQ(rows.translate("{0} of x"), "{0} von x");
}

TEST(CopyTranslationTables, LeavesThePlaceholderOfAGroupThatTookNoPart)
{
    const SampleRows rows{.generatedTemplate = {{"^(a)?(b)$", "{0}{1}"}, {"^plain$", "{0}"}}};
    EXPECT_EQ(rows.translate("b"), "{0}b");
    EXPECT_EQ(rows.translate("plain"), "{0}");
}

TEST(CopyTranslationTables, SkipsARowThatIsNoExpression)
{
    const SampleRows rows{.generatedTemplate = {{"^(.+?$", "broken"}, {"^(.+?)$", "{0}!"}}};
    EXPECT_EQ(rows.translate("a"), "a!");
    const CopyTranslationTables tables({{}, {}, {}, rows.generatedTemplate, {}});
    ASSERT_EQ(tables.templates().size(), 2U);
    EXPECT_EQ(tables.templates()[0].pattern, "^(.+?$");
    EXPECT_EQ(tables.templates()[0].regex, nullptr);
    EXPECT_NE(tables.templates()[1].regex, nullptr);
}

TEST(CopyTranslationTables, ProcessesPairByPairInOrder)
{
    const SampleRows rows{.exact = {{"x", "a b aa"}}, .postProcess = {{"a", "b"}, {"bb", "c"}, {"b", "b"}}};
    EXPECT_EQ(rows.translate("x"), "b b c");
}

TEST(CopyTranslationTables, GivesAnUnknownSentenceBackUnprocessed)
{
    const SampleRows rows{.postProcess = {{"Review ", "Examiner "}}};
    EXPECT_EQ(rows.translate("Review of x"), "Review of x");
    EXPECT_EQ(rows.translate(""), "");
}

TEST(CopyTranslationTables, LeavesASentenceInEnglishThatTakesTooLong)
{
    const SampleRows rows{.generatedTemplate = {{"^(.+?) (.+?) (.+?) (.+?)!$", "slow"}, {"^(.+?)a$", "fast"}}};
    std::string hostile;
    while (hostile.size() < 4000) {
        hostile += "a ";
    }
    EXPECT_EQ(rows.translate(hostile + "!a"), hostile + "!a");
    EXPECT_EQ(rows.translate("a !a"), "fast");
}

TEST(CopyTranslationTables, LeavesASentenceInEnglishThatIsLongerThanAnyPathMakesIt)
{
    const SampleRows rows{.generatedTemplate = {{"^Location: (.+?)\\.$", "Ort: {0}."}}};
    const std::string longest(4095, 'a');
    EXPECT_EQ(rows.translate("Location: " + longest + "."), "Ort: " + longest + ".");
    const std::string tooLong = "Location: " + longest + longest + longest + ".";
    EXPECT_EQ(rows.translate(tooLong), tooLong);
}

TEST(CopyTranslationTables, LeavesASentenceInEnglishWhosePlaceholdersGrowWithoutEnd)
{
    const SampleRows rows{.generatedTemplate = {{"^(.+?) (.+?) (.+?)$", "{0}"}}};
    std::string first;
    std::string second;
    for (int count = 0; count < 500; ++count) {
        first += "{1}";
        second += "{2}";
    }
    const std::string sentence = first + " " + second + " ccc";
    EXPECT_EQ(rows.translate(sentence), sentence);
    EXPECT_EQ(rows.translate("{1}{1} {2}{2} c"), "cccc");
}

} // namespace
} // namespace KarvelloUI
