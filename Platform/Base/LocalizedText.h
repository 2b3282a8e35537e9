#pragma once

#include "Platform/Base/Date.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

/// Texts whose form differs from language to language, by ICU's data. `locale` is an identifier such as "en" or
/// "zh-Hans". Every function may be called from any thread.
namespace Platform::LocalizedText {

/// "a", "a and b", "a, b, and c". Nothing if the form is not known.
[[nodiscard]] std::optional<std::string> list(std::span<const std::string> items, std::string_view locale);

/// The day with its year and the time: "Nov 21, 2025, 3:04 PM", "21.11.2025, 15:04". Time zone and limits as below.
[[nodiscard]] std::string mediumMoment(Date date, std::string_view locale, std::string_view timeZone = {});

/// The time of day alone: "3:04 PM", "15:04". In the system's time zone unless one is named ("Asia/Seoul"). Dates beyond
/// 270,000 years count as that limit, and what is no number as the reference date.
[[nodiscard]] std::string shortTime(Date date, std::string_view locale, std::string_view timeZone = {});

/// The day without its year: "Nov 14", "14. Nov.". Time zone and limits as above.
[[nodiscard]] std::string shortDay(Date date, std::string_view locale, std::string_view timeZone = {});

/// "11 minutes ago", in the largest unit of minutes, hours and days that is reached; "now" for less than a
/// minute, for a time to come and for what is no number. Nothing if the form is not known.
[[nodiscard]] std::optional<std::string> timeAgo(double seconds, std::string_view locale);

} // namespace Platform::LocalizedText
