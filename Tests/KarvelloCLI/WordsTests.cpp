#include "KarvelloCLI/Words.h"

#include <gtest/gtest.h>

using namespace KarvelloCLI;

TEST(Words, TellsAnAgeInOneUnit)
{
    EXPECT_EQ(shortAge(0), "now");
    EXPECT_EQ(shortAge(59), "now");
    EXPECT_EQ(shortAge(60), "1 min");
    EXPECT_EQ(shortAge(3600 - 1), "59 min");
    EXPECT_EQ(shortAge(3600), "1 h");
    EXPECT_EQ(shortAge(3 * 86400.0), "3 d");
    EXPECT_EQ(shortAge(60 * 86400.0), "60 d");
    EXPECT_EQ(shortAge(5 * 30.5 * 86400.0), "5 mo");
    EXPECT_EQ(shortAge(800 * 86400.0), "2 y");
    EXPECT_EQ(shortAge(60 * 365.25 * 86400.0), "60 y");
}

TEST(Words, ADateInTheFutureIsNoAge)
{
    EXPECT_EQ(shortAge(-30), "now") << "clocks differ a little";
    EXPECT_EQ(shortAge(-2 * 86400.0), "future");
}
