#include "KarvelloUI/Stores/QtDates.h"

#include <algorithm>
#include <cmath>

namespace KarvelloUI {

QDateTime toQDateTime(std::optional<Platform::Date> date)
{
    constexpr double kLimit = 8.64e15;
    if (!date || std::isnan(date->secondsSinceReferenceDate)) {
        return {};
    }
    return QDateTime::fromMSecsSinceEpoch(std::llround(std::clamp(date->secondsSince1970() * 1000, -kLimit, kLimit)));
}

} // namespace KarvelloUI
