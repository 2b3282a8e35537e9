#include "Platform/Base/Date.h"

#include <gtest/gtest.h>

namespace Platform {

TEST(Date, CountsFrom2001)
{
    EXPECT_EQ(Date::fromUnixTime(978'307'200).secondsSinceReferenceDate, 0);
    EXPECT_EQ(Date::fromUnixTime(0).secondsSinceReferenceDate, -978'307'200);
    EXPECT_EQ(Date{0}.secondsSince1970(), 978'307'200);
}

TEST(Date, KeepsFractionsBeforeAndAfterTheReference)
{
    EXPECT_EQ(Date::fromUnixTime(978'307'200, 500'000'000).secondsSinceReferenceDate, 0.5);
    EXPECT_EQ(Date::fromUnixTime(978'307'199, 500'000'000).secondsSinceReferenceDate, -0.5);
    EXPECT_EQ(Date::fromUnixTime(-2, 250'000'000).secondsSince1970(), -1.75);
}

TEST(Date, MeasuresDistances)
{
    const Date earlier{100};
    EXPECT_EQ(earlier.addingSeconds(2.5).secondsSince(earlier), 2.5);
    EXPECT_EQ(earlier.secondsSince(earlier.addingSeconds(2.5)), -2.5);
    EXPECT_LT(earlier, earlier.addingSeconds(1));
}

TEST(Date, TellsTheTimeOfTheSystem)
{
    const auto before = std::chrono::system_clock::now();
    const auto now = Date::now();
    const auto after = std::chrono::system_clock::now();
    const auto seconds = [](auto time) { return std::chrono::duration<double>(time.time_since_epoch()).count(); };
    EXPECT_GE(now.secondsSince1970(), seconds(before) - 1e-5);
    EXPECT_LE(now.secondsSince1970(), seconds(after) + 1e-5);
}

} // namespace Platform
