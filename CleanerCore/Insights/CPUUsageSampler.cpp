#include "CleanerCore/Insights/CPUUsageSampler.h"

#include <algorithm>
#include <utility>

namespace CleanerCore {

CPUUsageSampler& CPUUsageSampler::shared()
{
    static CPUUsageSampler sampler;
    return sampler;
}

std::optional<double> CPUUsageSampler::currentCPUUsageFraction(const Platform::SystemStatistics& statistics)
{
    const auto ticks = statistics.cpuTicks();
    if (!ticks) {
        return std::nullopt;
    }
    const std::scoped_lock guard(m_lock);
    const auto previous = std::exchange(m_previousSample, ticks);
    if (!previous) {
        return std::nullopt;
    }
    const auto busy = ticks->user + ticks->system + ticks->nice;
    const auto previousBusy = previous->user + previous->system + previous->nice;
    const auto total = busy + ticks->idle;
    const auto previousTotal = previousBusy + previous->idle;
    if (total <= previousTotal) {
        return std::nullopt;
    }
    const auto busyGrowth = busy > previousBusy ? busy - previousBusy : 0;
    return std::clamp(static_cast<double>(busyGrowth) / static_cast<double>(total - previousTotal), 0.0, 1.0);
}

} // namespace CleanerCore
