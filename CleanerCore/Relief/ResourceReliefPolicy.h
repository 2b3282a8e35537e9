#pragma once

#include "CleanerCore/Relief/ResourceReliefActionResult.h"
#include "CleanerCore/Relief/ResourceReliefCandidate.h"
#include "CleanerCore/Relief/ResourceReliefEligibility.h"
#include "CleanerCore/Relief/ResourceReliefProcessSnapshot.h"

#include <cstdint>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace CleanerCore {

/// Which running applications are listed, which of them may be asked to quit, and in which order they stand. Knows
/// nothing of the platform: it judges snapshots. May be used from any thread.
class ResourceReliefPolicy {
public:
    /// The identifiers are normalized here. Beside them the desktop's own programs (shells, session managers, portals)
    /// are protected always.
    ResourceReliefPolicy(std::int32_t currentProcessIdentifier,
        const std::optional<std::string>& currentBundleIdentifier, ResourceReliefCapability capability,
        const std::set<std::string>& protectedIdentifiers = protectedBundleIdentifiers());

    [[nodiscard]] static const std::set<std::string>& protectedBundleIdentifiers();
    /// Trimmed and lower-cased; an absent identifier is an empty one.
    [[nodiscard]] static std::string normalized(const std::optional<std::string>& bundleIdentifier);

    /// The first rule that applies decides: what an application is outranks what this process may do.
    [[nodiscard]] ResourceReliefEligibility eligibility(const ResourceReliefProcessSnapshot& snapshot) const;
    /// Nothing for an application with neither a name nor an identifier.
    [[nodiscard]] std::optional<ResourceReliefCandidate> candidate(const ResourceReliefProcessSnapshot& snapshot) const;
    /// The frontmost first, then by name, identifier and process number.
    [[nodiscard]] std::vector<ResourceReliefCandidate> candidates(
        std::span<const ResourceReliefProcessSnapshot> snapshots) const;

    /// Whether `snapshot` is the very application that became `candidate`, and none that got its process number since.
    [[nodiscard]] static bool identityMatches(
        const ResourceReliefProcessSnapshot& snapshot, const ResourceReliefCandidate& candidate);
    /// What becomes of a request to an application of this eligibility.
    [[nodiscard]] static ResourceReliefActionStatus actionStatus(const ResourceReliefEligibility& eligibility);

private:
    std::int32_t m_currentProcessIdentifier;
    std::string m_currentBundleIdentifier;
    ResourceReliefCapability m_capability;
    std::set<std::string> m_protectedBundleIdentifiers;
};

} // namespace CleanerCore
