#include "KarvelloCLI/AppsTexts.h"

#include "CleanerCore/Relief/ResourceReliefPolicy.h"
#include "KarvelloCLI/Words.h"

#include <algorithm>
#include <unordered_map>

namespace KarvelloCLI {

using CleanerCore::ResourceReliefCapability;
using CleanerCore::ResourceReliefPolicy;
using CleanerCore::ResourceReliefProcessSnapshot;
using CleanerCore::ResourceReliefProtectionReason;

std::vector<AppsRow> appsRows(std::span<const Platform::RunningApplication> applications, std::int32_t ownProcess)
{
    std::vector<ResourceReliefProcessSnapshot> snapshots;
    snapshots.reserve(applications.size());
    std::unordered_map<std::int32_t, std::size_t> processCounts;
    for (const auto& application : applications) {
        snapshots.push_back(ResourceReliefProcessSnapshot::of(application));
        processCounts.emplace(application.processIdentifier, application.processes.size());
    }
    const ResourceReliefPolicy policy(ownProcess, std::nullopt, ResourceReliefCapability::unknown());
    std::vector<AppsRow> rows;
    for (auto& candidate : policy.candidates(snapshots)) {
        const auto count = processCounts.at(candidate.processIdentifier);
        rows.push_back({.candidate = std::move(candidate), .processCount = count});
    }
    return rows;
}

std::string_view quitWords(const CleanerCore::ResourceReliefEligibility& eligibility)
{
    if (!eligibility.reason) {
        return eligibility.isActionable ? "can be asked" : "unknown";
    }
    switch (*eligibility.reason) {
    case ResourceReliefProtectionReason::currentApplication:
        return "this program";
    case ResourceReliefProtectionReason::protectedSystemApplication:
        return "part of the desktop";
    case ResourceReliefProtectionReason::missingUserFacingIdentity:
        return "has no name";
    case ResourceReliefProtectionReason::alreadyTerminated:
        return "has ended";
    case ResourceReliefProtectionReason::notUserVisible:
        return "in the background";
    case ResourceReliefProtectionReason::sandboxUnavailable:
        break;
    }
    return "not from here";
}

} // namespace KarvelloCLI
