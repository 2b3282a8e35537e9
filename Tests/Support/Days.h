#pragma once

namespace TestSupport {

/// A day in seconds.
inline constexpr double kDay = 86'400;

} // namespace TestSupport
