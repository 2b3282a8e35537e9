#pragma once

#include "Platform/Base/Date.h"

#include <string>

/// Dates as text, in UTC and the Gregorian calendar, for files and file names. Both forms round to the nearest
/// millisecond first, halves towards the later one, and so never tell of different seconds. Any date has a text: a year
/// has at least four digits, before the year 0 behind a minus sign; dates beyond 100 million years count as that limit,
/// and what is no number as the reference date.
namespace Platform::DateFormat {

/// ISO 8601 with milliseconds: "2026-11-15T22:04:05.123Z".
[[nodiscard]] std::string iso8601(Date date);

/// "20261115-220405".
[[nodiscard]] std::string fileNameStamp(Date date);

} // namespace Platform::DateFormat
