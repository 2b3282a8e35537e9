#include "KarvelloUI/Design/DynamicTypeSize.h"

#include <cmath>

namespace KarvelloUI {

DynamicTypeSize closestDynamicTypeSize(double systemFactor)
{
    if (!std::isfinite(systemFactor)) {
        return DynamicTypeSize::large;
    }
    auto closest = DynamicTypeSize::xSmall;
    for (auto size = closest; size < DynamicTypeSize::accessibility5;) {
        size = static_cast<DynamicTypeSize>(static_cast<std::uint8_t>(size) + 1);
        if (std::abs(factor(size) - systemFactor) < std::abs(factor(closest) - systemFactor)) {
            closest = size;
        }
    }
    return closest;
}

} // namespace KarvelloUI
