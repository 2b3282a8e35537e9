#include "Platform/Base/DecimalForm.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>

namespace Platform {

TEST(DecimalForm, IsTheShortestThatReadsBack)
{
    EXPECT_EQ(shortestDecimalForm(0.1), "0.1");
    EXPECT_EQ(shortestDecimalForm(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(shortestDecimalForm(-2.5), "-2.5");
    EXPECT_EQ(shortestDecimalForm(816'474'245.123), "816474245.123");
}

TEST(DecimalForm, WritesWholeNumbersWithoutAFraction)
{
    EXPECT_EQ(shortestDecimalForm(0), "0");
    EXPECT_EQ(shortestDecimalForm(-0.0), "-0");
    EXPECT_EQ(shortestDecimalForm(785'000'000), "785000000");
    EXPECT_EQ(shortestDecimalForm(9'007'199'254'740'993.0), "9007199254740992");
}

TEST(DecimalForm, TakesAnExponentForTheVeryLargeAndTheVerySmall)
{
    EXPECT_EQ(shortestDecimalForm(0.0001), "0.0001");
    EXPECT_EQ(shortestDecimalForm(0.00001), "1e-05");
    EXPECT_EQ(shortestDecimalForm(1e16), "1e+16");
    EXPECT_EQ(shortestDecimalForm(std::numeric_limits<double>::max()), "1.7976931348623157e+308");
    EXPECT_EQ(shortestDecimalForm(std::numeric_limits<double>::denorm_min()), "5e-324");
}

TEST(DecimalForm, ReadsBackAsTheSameDouble)
{
    for (const double value :
        {1.0 / 3, 123456.789, 0.00012345678901234567, 9.999999999999998e15, -1.0000000000000002e16}) {
        EXPECT_EQ(std::strtod(shortestDecimalForm(value).c_str(), nullptr), value);
    }
}

} // namespace Platform
