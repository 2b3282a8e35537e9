#include "KarvelloUI/Sessions/ResourceReliefOrder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace KarvelloUI {

namespace {

using CleanerCore::ResourceReliefCandidate;

ResourceReliefCandidate candidate(std::string name, std::optional<double> cpu, std::optional<double> memory)
{
    return {.displayName = std::move(name),
        .usage = {.cpuFractionOfTotalCapacity = cpu, .memoryFractionOfPhysicalMemory = memory}};
}

std::string order(const std::vector<ResourceReliefCandidate>& candidates, ResourceReliefMetric metric)
{
    std::string names;
    for (const auto& each : sortedCandidates(candidates, metric)) {
        names += each.displayName;
    }
    return names;
}

} // namespace

TEST(ResourceReliefOrder, HigherFiguresComeFirstAndAbsentOnesLast)
{
    const std::vector candidates{candidate("a", std::nullopt, 0.1), candidate("b", 0.0, std::nullopt),
        candidate("c", 0.5, 0.3), candidate("d", 0.25, 0.2)};
    EXPECT_EQ(order(candidates, ResourceReliefMetric::cpu), "cdba");
    EXPECT_EQ(order(candidates, ResourceReliefMetric::memory), "cdab");
}

TEST(ResourceReliefOrder, TiesAndThoseWithoutAFigureKeepTheOrderOfThePolicy)
{
    const std::vector candidates{candidate("b", std::nullopt, 0.1), candidate("z", 0.5, 0.1),
        candidate("a", std::nullopt, 0.1), candidate("c", 0.5, 0.1)};
    EXPECT_EQ(order(candidates, ResourceReliefMetric::cpu), "zcba");
    EXPECT_EQ(order(candidates, ResourceReliefMetric::memory), "bzac");
}

} // namespace KarvelloUI
