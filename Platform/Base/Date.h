#pragma once

#include <chrono>
#include <compare>
#include <cstdint>

namespace Platform {

/// A point in time: seconds since 2001-01-01T00:00:00Z, as a double. At today's dates a double keeps about a tenth of
/// a microsecond, so two file times that are closer than that compare as equal.
struct Date {
    double secondsSinceReferenceDate = 0;

    /// 2001-01-01T00:00:00Z, in seconds since 1970-01-01T00:00:00Z.
    static constexpr std::int64_t kReferenceDateInUnixTime = 978'307'200;

    static Date now();
    static constexpr Date fromUnixTime(std::int64_t seconds, std::uint32_t nanoseconds = 0)
    {
        return {static_cast<double>(seconds - kReferenceDateInUnixTime) + static_cast<double>(nanoseconds) * 1e-9};
    }
    static constexpr Date fromSecondsSince1970(double seconds)
    {
        return {seconds - static_cast<double>(kReferenceDateInUnixTime)};
    }

    [[nodiscard]] constexpr double secondsSince1970() const
    {
        return secondsSinceReferenceDate + static_cast<double>(kReferenceDateInUnixTime);
    }
    /// This date minus `earlier`, in seconds.
    [[nodiscard]] constexpr double secondsSince(Date earlier) const
    {
        return secondsSinceReferenceDate - earlier.secondsSinceReferenceDate;
    }
    [[nodiscard]] constexpr Date addingSeconds(double seconds) const { return {secondsSinceReferenceDate + seconds}; }

    friend constexpr auto operator<=>(const Date&, const Date&) = default;
};

} // namespace Platform
