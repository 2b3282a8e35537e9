#include "Platform/Base/TextFolding.h"

#include <gtest/gtest.h>

namespace Platform {

TEST(TextFolding, LeavesOutCapitals)
{
    EXPECT_EQ(Text::foldedForSearch(""), "");
    EXPECT_EQ(Text::foldedForSearch("/Users/A-Z_[]@.TXT"), "/users/a-z_[]@.txt");
    EXPECT_EQ(Text::foldedForSearch("ΟΔΟΣ"), Text::foldedForSearch("οδος"));
    EXPECT_EQ(Text::foldedForSearch("STRASSE"), Text::foldedForSearch("straße"));
}

TEST(TextFolding, LeavesOutAccentsHoweverTheyAreWritten)
{
    EXPECT_EQ(Text::foldedForSearch("Café"), "cafe");
    EXPECT_EQ(Text::foldedForSearch("Cafe\u0301"), "cafe");
    EXPECT_EQ(Text::foldedForSearch("ÀÉÎÕÜ ñ ç Ż"), "aeiou n c z");
    EXPECT_EQ(Text::foldedForSearch("İ"), "i");
    EXPECT_EQ(Text::foldedForSearch("ΆΈ Й"), "αε и");
    // Vowel points.
    EXPECT_EQ(Text::foldedForSearch("\u05E9\u05B8\u05DC"), "\u05E9\u05DC");
    EXPECT_EQ(Text::foldedForSearch("\u0643\u064E"), "\u0643");
}

TEST(TextFolding, KeepsMarksThatMakeAnotherLetter)
{
    EXPECT_NE(Text::foldedForSearch("が"), Text::foldedForSearch("か"));
    EXPECT_EQ(Text::foldedForSearch("か\u3099"), Text::foldedForSearch("が"));
    EXPECT_EQ(Text::foldedForSearch("हिन्दी"), "हिन्दी");
    EXPECT_EQ(Text::foldedForSearch("ที่"), "ที่");
}

TEST(TextFolding, KeepsSyllablesWhole)
{
    // Both a beginning of the other in parts, not as written.
    EXPECT_EQ(Text::foldedForSearch("각").find(Text::foldedForSearch("가")), std::string::npos);
    EXPECT_EQ(Text::foldedForSearch("\u1100\u1161\u11A8"), Text::foldedForSearch("각"));
}

TEST(TextFolding, KeepsBytesThatAreNoCharacter)
{
    EXPECT_EQ(Text::foldedForSearch("AÉ\xFFÉB\x80"),
        "ae\xFF"
        "eb\x80");
    EXPECT_EQ(Text::foldedForSearch("\xE9"), "\xE9");
}

} // namespace Platform
