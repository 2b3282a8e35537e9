#include "Platform/Base/UnseenText.h"

#include <gtest/gtest.h>

namespace Platform::Text {

TEST(UnseenText, LeavesWhatCanBeSeen)
{
    EXPECT_EQ(escapingUnseen("plain name.txt"), "plain name.txt");
    EXPECT_EQ(escapingUnseen("Café 日本語 \\n"), "Café 日本語 \\n");
    EXPECT_EQ(escapingUnseen(""), "");
}

TEST(UnseenText, KeepsJoiners)
{
    EXPECT_EQ(escapingUnseen("\u0645\u06CC\u200C\u062E"), "\u0645\u06CC\u200C\u062E");
}

TEST(UnseenText, EscapesWhatBreaksTheLine)
{
    EXPECT_EQ(escapingUnseen("a\nb\tc\rd\u2028e"), "a\\nb\\tc\\rd\\u2028e");
}

TEST(UnseenText, EscapesWhatReordersTheLine)
{
    EXPECT_EQ(escapingUnseen("gpj\u202Eexe"), "gpj\\u202eexe");
}

TEST(UnseenText, EscapesWhatIsDrawnAsNothing)
{
    EXPECT_EQ(escapingUnseen("a\u200Bb\uFEFFc\U000E0041"), "a\\u200bb\\ufeffc\\U000e0041");
    EXPECT_EQ(escapingUnseen("\x1B[2J"), "\\x1b[2J");
}

TEST(UnseenText, EscapesBytesThatAreNoCharacter)
{
    EXPECT_EQ(escapingUnseen("a\xFF\xC3"), "a\\xFF\\xC3");
}

} // namespace Platform::Text
