#include "Platform/Base/DateFormat.h"

#include <algorithm>
#include <cmath>
#include <fmt/compile.h>
#include <fmt/format.h>

namespace Platform::DateFormat {

namespace {

constexpr std::int64_t kSecondsPerDay = 86'400;
constexpr std::int64_t kDaysPerEra = 146'097; // 400 years
constexpr double kLimit = 1e8 * 365.25 * kSecondsPerDay;

struct Moment {
    std::int64_t year = 0;
    std::int64_t month = 0;
    std::int64_t day = 0;
    std::int64_t hour = 0;
    std::int64_t minute = 0;
    std::int64_t second = 0;
    std::int64_t millisecond = 0;
};

constexpr std::int64_t floorDivide(std::int64_t value, std::int64_t divisor)
{
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

/// Fills in the day that lies `days` after 1970-01-01. Years are counted from March, so that the leap day comes last
/// and the lengths of the months before it repeat every five.
void setDay(Moment& moment, std::int64_t days)
{
    constexpr std::int64_t daysFromMarchOfYear0 = 719'468;
    const auto shifted = days + daysFromMarchOfYear0;
    const auto era = floorDivide(shifted, kDaysPerEra);
    const auto dayOfEra = shifted - era * kDaysPerEra;
    const auto yearOfEra = (dayOfEra - dayOfEra / 1'460 + dayOfEra / 36'524 - dayOfEra / 146'096) / 365;
    const auto dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const auto monthFromMarch = (5 * dayOfYear + 2) / 153;
    moment.day = dayOfYear - (153 * monthFromMarch + 2) / 5 + 1;
    moment.month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
    moment.year = era * 400 + yearOfEra + (moment.month <= 2 ? 1 : 0);
}

Moment momentOf(Date date)
{
    const auto given = date.secondsSinceReferenceDate;
    const auto seconds = std::isnan(given) ? 0.0 : std::clamp(given, -kLimit, kLimit);
    // The fraction is split off first: the sum with 1970 would cost digits.
    const auto whole = std::floor(seconds);
    auto milliseconds = static_cast<std::int64_t>(std::floor((seconds - whole) * 1'000 + 0.5));
    auto unixSeconds = static_cast<std::int64_t>(whole) + Date::kReferenceDateInUnixTime;
    if (milliseconds == 1'000) {
        milliseconds = 0;
        ++unixSeconds;
    }

    const auto days = floorDivide(unixSeconds, kSecondsPerDay);
    const auto secondOfDay = unixSeconds - days * kSecondsPerDay;
    Moment moment;
    setDay(moment, days);
    moment.hour = secondOfDay / 3'600;
    moment.minute = secondOfDay / 60 % 60;
    moment.second = secondOfDay % 60;
    moment.millisecond = milliseconds;
    return moment;
}

std::string_view sign(const Moment& moment)
{
    return moment.year < 0 ? "-" : "";
}

} // namespace

std::string iso8601(Date date)
{
    const auto moment = momentOf(date);
    return fmt::format(FMT_COMPILE("{}{:04}-{:02}-{:02}T{:02}:{:02}:{:02}.{:03}Z"), sign(moment), std::abs(moment.year),
        moment.month, moment.day, moment.hour, moment.minute, moment.second, moment.millisecond);
}

std::string fileNameStamp(Date date)
{
    const auto moment = momentOf(date);
    return fmt::format(FMT_COMPILE("{}{:04}{:02}{:02}-{:02}{:02}{:02}"), sign(moment), std::abs(moment.year),
        moment.month, moment.day, moment.hour, moment.minute, moment.second);
}

} // namespace Platform::DateFormat
