#include "Platform/Base/DateFormat.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace Platform {

namespace {

std::string isoOfUnixTime(std::int64_t seconds, std::uint32_t nanoseconds = 0)
{
    return DateFormat::iso8601(Date::fromUnixTime(seconds, nanoseconds));
}

} // namespace

TEST(DateFormat, WritesIso8601InUTC)
{
    EXPECT_EQ(DateFormat::iso8601(Date{0}), "2001-01-01T00:00:00.000Z");
    EXPECT_EQ(isoOfUnixTime(1'794'780'245, 123'000'000), "2026-11-15T22:04:05.123Z");
    EXPECT_EQ(isoOfUnixTime(0), "1970-01-01T00:00:00.000Z");
}

TEST(DateFormat, KnowsLeapYears)
{
    EXPECT_EQ(isoOfUnixTime(951'782'400), "2000-02-29T00:00:00.000Z");
    EXPECT_EQ(isoOfUnixTime(1'709'164'800), "2024-02-29T00:00:00.000Z");
    EXPECT_EQ(isoOfUnixTime(4'107'542'400), "2100-03-01T00:00:00.000Z");
    EXPECT_EQ(isoOfUnixTime(4'107'542'399), "2100-02-28T23:59:59.000Z");
    EXPECT_EQ(isoOfUnixTime(1'735'689'599), "2024-12-31T23:59:59.000Z");
}

TEST(DateFormat, RoundsToTheNearestMillisecond)
{
    EXPECT_EQ(DateFormat::iso8601(Date{0.0004}), "2001-01-01T00:00:00.000Z");
    EXPECT_EQ(DateFormat::iso8601(Date{0.0006}), "2001-01-01T00:00:00.001Z");
    // An exact half goes to the later one.
    EXPECT_EQ(DateFormat::iso8601(Date{0.0625}), "2001-01-01T00:00:00.063Z");
    EXPECT_EQ(DateFormat::iso8601(Date{-0.0625}), "2000-12-31T23:59:59.938Z");
}

TEST(DateFormat, CarriesARoundedSecondThroughTheWholeDate)
{
    EXPECT_EQ(DateFormat::iso8601(Date{-0.0001}), "2001-01-01T00:00:00.000Z");
    EXPECT_EQ(DateFormat::fileNameStamp(Date{-0.0001}), "20010101-000000");
    EXPECT_EQ(DateFormat::iso8601(Date{59.9996}), "2001-01-01T00:01:00.000Z");
}

TEST(DateFormat, WritesDatesBefore1970)
{
    EXPECT_EQ(isoOfUnixTime(-1), "1969-12-31T23:59:59.000Z");
    EXPECT_EQ(DateFormat::iso8601(Date::fromUnixTime(-1, 500'000'000)), "1969-12-31T23:59:59.500Z");
    EXPECT_EQ(isoOfUnixTime(-2'208'988'800), "1900-01-01T00:00:00.000Z");
    EXPECT_EQ(isoOfUnixTime(-62'135'596'800), "0001-01-01T00:00:00.000Z");
    EXPECT_EQ(isoOfUnixTime(-62'135'596'801), "0000-12-31T23:59:59.000Z");
    EXPECT_EQ(isoOfUnixTime(-62'198'755'200), "-0001-01-01T00:00:00.000Z");
}

TEST(DateFormat, WritesYearsBeyond9999)
{
    EXPECT_EQ(isoOfUnixTime(253'402'300'799), "9999-12-31T23:59:59.000Z");
    EXPECT_EQ(isoOfUnixTime(253'402'300'800), "10000-01-01T00:00:00.000Z");
}

TEST(DateFormat, HasATextForEveryDouble)
{
    constexpr auto infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(DateFormat::iso8601(Date{std::nan("")}), "2001-01-01T00:00:00.000Z");
    EXPECT_EQ(DateFormat::iso8601(Date{infinity}), DateFormat::iso8601(Date{std::numeric_limits<double>::max()}));
    EXPECT_TRUE(DateFormat::iso8601(Date{infinity}).starts_with("100004054-"));
    EXPECT_TRUE(DateFormat::iso8601(Date{-infinity}).starts_with("-100000053-"));
    EXPECT_NE(DateFormat::fileNameStamp(Date{-infinity}), DateFormat::fileNameStamp(Date{infinity}));
}

TEST(DateFormat, WritesFileNameStamps)
{
    EXPECT_EQ(DateFormat::fileNameStamp(Date::fromUnixTime(1'794'780'245, 123'000'000)), "20261115-220405");
    EXPECT_EQ(DateFormat::fileNameStamp(Date::fromUnixTime(-1)), "19691231-235959");
    EXPECT_EQ(DateFormat::fileNameStamp(Date::fromUnixTime(253'402'300'800)), "100000101-000000");
}

} // namespace Platform
