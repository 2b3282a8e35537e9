#include "KarvelloCLI/Words.h"

#include "CleanerCore/Scan/ByteSizeFormatter.h"
#include "KarvelloCLI/Say.h"

#include <fmt/chrono.h>
#include <fmt/format.h>

#include <cmath>
#include <ctime>

namespace KarvelloCLI {

namespace {

constexpr double kMinute = 60;
constexpr double kHour = 60 * kMinute;
constexpr double kDay = 24 * kHour;
constexpr double kYear = 365.2425 * kDay;
constexpr double kMonth = kYear / 12;

std::tm localParts(Platform::Date date)
{
    const auto seconds = static_cast<std::time_t>(std::floor(date.secondsSince1970()));
    std::tm parts{};
    localtime_r(&seconds, &parts);
    return parts;
}

} // namespace

std::string sizeWords(std::int64_t bytes)
{
    return CleanerCore::ByteSizeFormatter::string(bytes, Platform::rawValue(spokenLanguage()));
}

std::string shortAge(double seconds)
{
    if (seconds < -kDay) {
        return say("future");
    }
    if (seconds < kMinute) {
        return say("now");
    }
    const auto whole = [seconds](double unit) { return static_cast<long>(seconds / unit); };
    if (seconds < kHour) {
        return say("{} min", whole(kMinute));
    }
    if (seconds < kDay) {
        return say("{} h", whole(kHour));
    }
    if (seconds < 2 * kMonth) {
        return say("{} d", whole(kDay));
    }
    if (seconds < 2 * kYear) {
        return say("{} mo", whole(kMonth));
    }
    return say("{} y", whole(kYear));
}

std::string percentage(std::optional<double> fraction)
{
    if (!fraction) {
        return "-";
    }
    const double percent = *fraction * 100;
    return percent > 0 && percent < 1 ? "<1%" : fmt::format("{:.0f}%", percent);
}

std::string localClock(Platform::Date date)
{
    return fmt::format("{:%H:%M:%S}", localParts(date));
}

std::string localTime(Platform::Date date)
{
    return fmt::format("{:%Y-%m-%d %H:%M}", localParts(date));
}

} // namespace KarvelloCLI
