#pragma once

#include <compare>
#include <string_view>

namespace Platform::Text {

/// The order in which a reader of the environment's language (of none in particular, where it names none) looks names
/// up, capitals and small letters being the same. Bytes that are part of no character stand as U+FFFD. May be called from any thread.
[[nodiscard]] std::weak_ordering localizedCaseInsensitiveCompare(std::string_view left, std::string_view right);

/// The order of a list of files in that language: numbers count by their value ("9" before "10"), capitals and accents
/// only where nothing else differs. Total, since bytes decide in the end. May be called from any thread.
[[nodiscard]] std::strong_ordering localizedStandardCompare(std::string_view left, std::string_view right);

} // namespace Platform::Text
