#include "KarvelloCLI/Bar.h"

#include "KarvelloCLI/TerminalText.h"

#include <gtest/gtest.h>

#include <limits>

using namespace KarvelloCLI;

TEST(Bar, IsAsLongAsItsShareOfTheLargest)
{
    EXPECT_EQ(bar(100, 100, 10, BarGlyphs::ascii), "##########");
    EXPECT_EQ(bar(50, 100, 10, BarGlyphs::ascii), "#####");
    EXPECT_EQ(bar(54, 100, 10, BarGlyphs::ascii), "#####");
    EXPECT_EQ(bar(56, 100, 10, BarGlyphs::ascii), "######");
}

TEST(Bar, TellsEighthsOfAColumnWithBlocks)
{
    EXPECT_EQ(bar(16, 16, 2, BarGlyphs::blocks), "██");
    EXPECT_EQ(bar(11, 16, 2, BarGlyphs::blocks), "█▍");
    EXPECT_EQ(bar(8, 16, 2, BarGlyphs::blocks), "█");
    EXPECT_EQ(bar(1, 16, 2, BarGlyphs::blocks), "▏");
}

TEST(Bar, ShowsATraceOfTheSmallestAndNothingOfNothing)
{
    for (const BarGlyphs glyphs : {BarGlyphs::ascii, BarGlyphs::blocks}) {
        EXPECT_EQ(TerminalText(bar(1, std::numeric_limits<std::int64_t>::max(), 40, glyphs)).columns(), 1U);
        EXPECT_EQ(bar(0, 100, 40, glyphs), "");
        EXPECT_EQ(bar(0, 0, 40, glyphs), "") << "all folders are empty";
        EXPECT_EQ(bar(1, 1, 0, glyphs), "");
    }
}

TEST(Bar, NeverLeavesItsRoom)
{
    for (const BarGlyphs glyphs : {BarGlyphs::ascii, BarGlyphs::blocks}) {
        for (std::int64_t part = 1; part <= 200; ++part) {
            EXPECT_LE(TerminalText(bar(part, 100, 7, glyphs)).columns(), 7U) << part;
        }
    }
}
