#pragma once

#include <string>
#include <string_view>

namespace KarvelloUI {

/// How long ago something was, as one number and its unit in the words of the locale: days up to a month of 30, months
/// up to a year of 365, then years. What is less than a day, or lies ahead, counts as one day.
[[nodiscard]] std::string reviewAge(double seconds, std::string_view locale);

} // namespace KarvelloUI
