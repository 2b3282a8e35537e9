#include "KarvelloCLI/AppsTexts.h"

#include "CleanerCore/Relief/ResourceReliefPolicy.h"
#include "KarvelloCLI/Say.h"

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

std::string quitWords(const CleanerCore::ResourceReliefEligibility& eligibility)
{
    if (!eligibility.reason) {
        return eligibility.isActionable ? say("can be asked") : say("unknown");
    }
    switch (*eligibility.reason) {
    case ResourceReliefProtectionReason::currentApplication:
        return say("this program");
    case ResourceReliefProtectionReason::protectedSystemApplication:
        return say("part of the desktop");
    case ResourceReliefProtectionReason::missingUserFacingIdentity:
        return say("has no name");
    case ResourceReliefProtectionReason::alreadyTerminated:
        return say("has ended");
    case ResourceReliefProtectionReason::notUserVisible:
        return say("in the background");
    case ResourceReliefProtectionReason::sandboxUnavailable:
        break;
    }
    return say("not from here");
}

} // namespace KarvelloCLI
