#pragma once

namespace CleanerCore {

// How long an item must have been left alone, in seconds.
inline constexpr double kNoAge = 0;
inline constexpr double kOneDay = 86'400;

} // namespace CleanerCore
