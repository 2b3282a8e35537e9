#include "Platform/Base/LocalizedText.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace {

using Platform::Date;
using Platform::LocalizedText::list;
using Platform::LocalizedText::mediumMoment;
using Platform::LocalizedText::shortTime;

constexpr auto kAfternoon = Date::fromUnixTime(1'763'737'440); // 2025-11-21T15:04:00Z

TEST(LocalizedText, AListIsJoinedAsTheLanguageDoes)
{
    const std::vector<std::string> items{"a", "b", "c"};
    EXPECT_EQ(list(items, "en"), "a, b, and c");
    EXPECT_EQ(list(items, "de"), "a, b und c");
    EXPECT_EQ(list(items, "ko"), "a, b 및 c");
    EXPECT_EQ(list(items, "zh-Hans"), "a、b和c");
    EXPECT_EQ(list(items, "zh-Hant"), "a、b和c");
    EXPECT_EQ(list(items, "ja"), "a、b、c");
}

TEST(LocalizedText, AShortListHasFewerWords)
{
    EXPECT_EQ(list(std::vector<std::string>{"a", "b"}, "en"), "a and b");
    EXPECT_EQ(list(std::vector<std::string>{"a"}, "fr"), "a");
    EXPECT_EQ(list(std::vector<std::string>{}, "en"), "");
}

TEST(LocalizedText, BytesThatAreNoTextDoNotSpoilAList)
{
    EXPECT_EQ(list(std::vector<std::string>{"a\xFF", "{0}"}, "en"), "a\uFFFD and {0}");
}

TEST(LocalizedText, ALanguageThatNobodyKnowsStillHasAForm)
{
    EXPECT_EQ(list(std::vector<std::string>{"a", "b"}, "not a language"), "a, b");
    EXPECT_EQ(shortTime(kAfternoon, "not a language", "UTC"), "15:04");
}

TEST(LocalizedText, ATimeOfDayIsThatOfTheTimeZone)
{
    EXPECT_EQ(shortTime(kAfternoon, "de", "UTC"), "15:04");
    EXPECT_EQ(shortTime(kAfternoon, "de", "Asia/Seoul"), "00:04");
    EXPECT_EQ(shortTime(kAfternoon, "ko", "Asia/Seoul"), "오전 12:04");
    EXPECT_EQ(shortTime(kAfternoon, "zh-Hant", "UTC"), "下午3:04");
    const auto english = shortTime(kAfternoon, "en", "UTC");
    // Between the two, releases of the data disagree about which space it is.
    EXPECT_TRUE(english.starts_with("3:04") && english.ends_with("PM")) << english;
    EXPECT_FALSE(shortTime(kAfternoon, "en").empty());
}

TEST(LocalizedText, AMomentHasItsDayYearAndTime)
{
    EXPECT_EQ(mediumMoment(kAfternoon, "de", "UTC"), "21.11.2025, 15:04");
    EXPECT_EQ(mediumMoment(kAfternoon, "ja", "Asia/Seoul"), "2025/11/22 0:04");
    EXPECT_TRUE(mediumMoment(kAfternoon, "en", "UTC").starts_with("Nov 21, 2025, 3:04"));
}

TEST(LocalizedText, ADateOutOfReachHasATimeToo)
{
    EXPECT_EQ(shortTime({std::numeric_limits<double>::quiet_NaN()}, "de", "UTC"), "00:00");
    EXPECT_EQ(shortTime({std::numeric_limits<double>::infinity()}, "de", "UTC").size(), 5);
    EXPECT_EQ(shortTime({-1e300}, "de", "UTC").size(), 5);
}

} // namespace
