#include "KarvelloUI/Sessions/ResourceReliefOrder.h"

#include <algorithm>
#include <functional>
#include <optional>

namespace KarvelloUI {

std::vector<CleanerCore::ResourceReliefCandidate> sortedCandidates(
    std::vector<CleanerCore::ResourceReliefCandidate> candidates, ResourceReliefMetric metric)
{
    const auto figure = [metric](const CleanerCore::ResourceReliefCandidate& candidate) -> std::optional<double> {
        switch (metric) {
        case ResourceReliefMetric::cpu:
            return candidate.usage.cpuFractionOfTotalCapacity;
        case ResourceReliefMetric::memory:
            return candidate.usage.memoryFractionOfPhysicalMemory;
        }
        return std::nullopt;
    };
    // An absent figure is less than any other.
    std::ranges::stable_sort(candidates, std::greater<>(), figure);
    return candidates;
}

} // namespace KarvelloUI
