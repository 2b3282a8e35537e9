#pragma once

#include <chrono>
#include <stop_token>

namespace Platform {

/// Returns after this time, or at once when a stop is asked for.
void waitUnlessStopped(std::chrono::milliseconds time, const std::stop_token& stop);

} // namespace Platform
