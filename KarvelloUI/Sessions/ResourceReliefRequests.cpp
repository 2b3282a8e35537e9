#include "KarvelloUI/Sessions/ResourceReliefRequests.h"

#include "Platform/Base/UUID.h"

namespace KarvelloUI {

using CleanerCore::ResourceReliefActionResult;
using CleanerCore::ResourceReliefActionStatus;
using CleanerCore::ResourceReliefCandidate;
using CleanerCore::ResourceReliefPolicy;

namespace {

/// Nothing after a stop.
std::optional<ResourceReliefActionStatus> requestQuit(const ResourceReliefCandidate& candidate,
    const ResourceReliefProviders& providers, const ResourceReliefRequester& requester, const std::stop_token& stop)
{
    const auto snapshot = providers.revalidationProvider(candidate);
    if (!snapshot) {
        return ResourceReliefActionStatus::alreadyExited;
    }
    if (!ResourceReliefPolicy::identityMatches(*snapshot, candidate)) {
        return snapshot->isTerminated ? ResourceReliefActionStatus::alreadyExited
                                      : ResourceReliefActionStatus::staleCandidate;
    }
    const auto present = requester.policy(providers.capabilityProvider()).candidate(*snapshot);
    if (!present) {
        return ResourceReliefActionStatus::staleCandidate;
    }
    if (!present->eligibility.isActionable) {
        return ResourceReliefPolicy::actionStatus(present->eligibility);
    }
    if (stop.stop_requested()) {
        return std::nullopt;
    }
    return providers.quitRequester(*snapshot) ? ResourceReliefActionStatus::requestSent
                                              : ResourceReliefActionStatus::failedToSend;
}

} // namespace

std::vector<ResourceReliefActionResult> requestQuits(std::span<const ResourceReliefCandidate> candidates,
    const ResourceReliefProviders& providers, const ResourceReliefRequester& requester, const std::stop_token& stop)
{
    std::vector<ResourceReliefActionResult> results;
    for (const auto& candidate : candidates) {
        const auto status = stop.stop_requested() ? std::nullopt : requestQuit(candidate, providers, requester, stop);
        if (!status) {
            break;
        }
        results.push_back({
            .id = Platform::UUID::random(),
            .candidateID = candidate.id,
            .displayName = candidate.displayName,
            .status = *status,
            .occurredAt = providers.now(),
        });
    }
    return results;
}

} // namespace KarvelloUI
