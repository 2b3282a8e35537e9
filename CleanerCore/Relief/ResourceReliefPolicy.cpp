#include "CleanerCore/Relief/ResourceReliefPolicy.h"

#include "CleanerCore/Relief/DesktopProtectedIdentifiers.h"
#include "CleanerCore/Scan/BlankText.h"
#include "Platform/Base/Text.h"
#include "Platform/Base/TextOrder.h"

#include <algorithm>
#include <utility>

namespace CleanerCore {

namespace {

using Reason = ResourceReliefProtectionReason;

std::optional<std::string> resolvedDisplayName(const ResourceReliefProcessSnapshot& snapshot)
{
    auto name = trimmedUnlessBlank(snapshot.displayName);
    return name ? name : trimmedUnlessBlank(snapshot.bundleIdentifier);
}

bool standsBefore(const ResourceReliefCandidate& left, const ResourceReliefCandidate& right)
{
    if (left.isFrontmost != right.isFrontmost) {
        return left.isFrontmost;
    }
    const auto byName = Platform::Text::localizedCaseInsensitiveCompare(left.displayName, right.displayName);
    if (byName != std::weak_ordering::equivalent) {
        return byName == std::weak_ordering::less;
    }
    const auto byIdentifier = left.bundleIdentifier.value_or("") <=> right.bundleIdentifier.value_or("");
    if (byIdentifier != std::strong_ordering::equal) {
        return byIdentifier == std::strong_ordering::less;
    }
    return left.processIdentifier < right.processIdentifier;
}

} // namespace

ResourceReliefPolicy::ResourceReliefPolicy(std::int32_t currentProcessIdentifier,
    const std::optional<std::string>& currentBundleIdentifier, ResourceReliefCapability capability,
    const std::set<std::string>& protectedIdentifiers)
    : m_currentProcessIdentifier(currentProcessIdentifier)
    , m_currentBundleIdentifier(normalized(currentBundleIdentifier))
    , m_capability(capability)
{
    for (const auto& identifier : protectedIdentifiers) {
        m_protectedBundleIdentifiers.insert(normalized(identifier));
    }
}

const std::set<std::string>& ResourceReliefPolicy::protectedBundleIdentifiers()
{
    static const std::set<std::string> identifiers{
        "com.apple.finder",
        "com.apple.systempreferences",
        "com.apple.systemsettings",
        "com.apple.dock",
        "com.apple.loginwindow",
        "com.apple.windowmanager",
        "com.apple.controlcenter",
        "com.apple.notificationcenterui",
        "com.apple.systemuiserver",
    };
    return identifiers;
}

std::string ResourceReliefPolicy::normalized(const std::optional<std::string>& bundleIdentifier)
{
    return bundleIdentifier ? Platform::Text::lowercased(Platform::Text::trimmed(*bundleIdentifier)) : std::string();
}

ResourceReliefEligibility ResourceReliefPolicy::eligibility(const ResourceReliefProcessSnapshot& snapshot) const
{
    const auto identifier = normalized(snapshot.bundleIdentifier);
    if (snapshot.processIdentifier == m_currentProcessIdentifier
        || (!m_currentBundleIdentifier.empty() && identifier == m_currentBundleIdentifier)) {
        return ResourceReliefEligibility::unavailable(Reason::currentApplication);
    }
    if (snapshot.isTerminated) {
        return ResourceReliefEligibility::unavailable(Reason::alreadyTerminated);
    }
    if (!snapshot.isUserVisible) {
        return ResourceReliefEligibility::unavailable(Reason::notUserVisible);
    }
    if (identifier.empty() && !trimmedUnlessBlank(snapshot.displayName)) {
        return ResourceReliefEligibility::unavailable(Reason::missingUserFacingIdentity);
    }
    if (m_protectedBundleIdentifiers.contains(identifier) || isDesktopProtectedIdentifier(identifier)) {
        return ResourceReliefEligibility::unavailable(Reason::protectedSystemApplication);
    }
    if (!m_capability.canRequestQuitOtherApplications) {
        return ResourceReliefEligibility::unavailable(Reason::sandboxUnavailable);
    }
    return ResourceReliefEligibility::actionable();
}

std::optional<ResourceReliefCandidate> ResourceReliefPolicy::candidate(
    const ResourceReliefProcessSnapshot& snapshot) const
{
    auto name = resolvedDisplayName(snapshot);
    if (!name) {
        return std::nullopt;
    }
    return ResourceReliefCandidate{
        .id = ResourceReliefCandidateID(snapshot.processIdentifier, snapshot.bundleIdentifier),
        .displayName = *std::move(name),
        .bundleIdentifier = snapshot.bundleIdentifier,
        .processIdentifier = snapshot.processIdentifier,
        .isFrontmost = snapshot.isFrontmost,
        .launchDate = snapshot.launchDate,
        .usage = snapshot.usage,
        .eligibility = eligibility(snapshot),
    };
}

std::vector<ResourceReliefCandidate> ResourceReliefPolicy::candidates(
    std::span<const ResourceReliefProcessSnapshot> snapshots) const
{
    std::vector<ResourceReliefCandidate> candidates;
    for (const auto& snapshot : snapshots) {
        if (auto made = candidate(snapshot)) {
            candidates.push_back(*std::move(made));
        }
    }
    std::ranges::stable_sort(candidates, standsBefore);
    return candidates;
}

bool ResourceReliefPolicy::identityMatches(
    const ResourceReliefProcessSnapshot& snapshot, const ResourceReliefCandidate& candidate)
{
    return snapshot.processIdentifier == candidate.processIdentifier
        && normalized(snapshot.bundleIdentifier) == normalized(candidate.bundleIdentifier)
        && resolvedDisplayName(snapshot) == candidate.displayName && snapshot.launchDate == candidate.launchDate;
}

ResourceReliefActionStatus ResourceReliefPolicy::actionStatus(const ResourceReliefEligibility& eligibility)
{
    using enum ResourceReliefActionStatus;
    if (!eligibility.reason) {
        return eligibility.isActionable ? requestSent : isProtected;
    }
    switch (*eligibility.reason) {
    case Reason::currentApplication:
    case Reason::protectedSystemApplication:
    case Reason::missingUserFacingIdentity:
    case Reason::notUserVisible:
        break;
    case Reason::alreadyTerminated:
        return alreadyExited;
    case Reason::sandboxUnavailable:
        return unavailableInSandbox;
    }
    return isProtected;
}

} // namespace CleanerCore
