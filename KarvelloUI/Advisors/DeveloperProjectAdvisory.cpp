#include "KarvelloUI/Advisors/DeveloperProjectAdvisory.h"

#include "Platform/Base/CheckedMath.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

namespace KarvelloUI {

namespace {

using Opportunity = DeveloperProjectAdvisoryOpportunity;

bool isInactiveOrStale(const Opportunity& opportunity)
{
    return opportunity.activityLevel == DeveloperProjectActivityLevel::inactive
        || opportunity.activityLevel == DeveloperProjectActivityLevel::stale;
}

std::int64_t countOfProjects(std::span<const Opportunity> opportunities, const auto& counts)
{
    std::unordered_set<std::string_view> projects;
    for (const Opportunity& opportunity : opportunities) {
        if (counts(opportunity)) {
            projects.insert(opportunity.projectPath);
        }
    }
    return static_cast<std::int64_t>(projects.size());
}

} // namespace

std::span<const Opportunity> DeveloperProjectAdvisorySummary::topOpportunities() const
{
    constexpr std::size_t kMaximum = 3;
    return std::span(opportunities).first(std::min(opportunities.size(), kMaximum));
}

std::int64_t DeveloperProjectAdvisorySummary::projectCount() const
{
    return countOfProjects(opportunities, [](const Opportunity&) { return true; });
}

std::int64_t DeveloperProjectAdvisorySummary::inactiveOrStaleCount() const
{
    return countOfProjects(opportunities, isInactiveOrStale);
}

std::int64_t DeveloperProjectAdvisorySummary::estimatedBytes() const
{
    std::int64_t bytes = 0;
    for (const Opportunity& opportunity : opportunities) {
        bytes = Platform::checkedAdd(bytes, opportunity.sizeBytes);
    }
    return bytes;
}

} // namespace KarvelloUI
