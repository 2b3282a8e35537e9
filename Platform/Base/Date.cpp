#include "Platform/Base/Date.h"

namespace Platform {

Date Date::now()
{
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    const auto seconds = std::chrono::floor<std::chrono::seconds>(sinceEpoch);
    const auto rest = std::chrono::duration_cast<std::chrono::nanoseconds>(sinceEpoch - seconds);
    return fromUnixTime(seconds.count(), static_cast<std::uint32_t>(rest.count()));
}

} // namespace Platform
