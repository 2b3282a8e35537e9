#pragma once

#include "Platform/Base/Date.h"

#include <cstdint>
#include <optional>
#include <string>

namespace KarvelloCLI {

/// The time between two moments as one number and a unit, as short as the language has it: "now" below a minute, "5 min",
/// "3 h", "12 d", "5 mo", "2 y". More than a day below zero is "future".
[[nodiscard]] std::string shortAge(double seconds);

/// Bytes in the form that the spoken language gives them.
[[nodiscard]] std::string sizeWords(std::int64_t bytes);

/// "23%" of a fraction, "<1%" of what is more than nothing, "-" of none.
[[nodiscard]] std::string percentage(std::optional<double> fraction);

/// "22:04:05" in the user's own time zone.
[[nodiscard]] std::string localClock(Platform::Date date);

/// "2026-11-15 22:04" in the user's own time zone.
[[nodiscard]] std::string localTime(Platform::Date date);

} // namespace KarvelloCLI
