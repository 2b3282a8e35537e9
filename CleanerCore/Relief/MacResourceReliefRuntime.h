#pragma once

#include "CleanerCore/Relief/ResourceReliefCandidate.h"
#include "CleanerCore/Relief/ResourceReliefEligibility.h"
#include "CleanerCore/Relief/ResourceReliefProcessSnapshot.h"
#include "Platform/Services/DesktopApplications.h"
#include "Platform/Services/RunningApplications.h"

#include <functional>
#include <optional>
#include <stop_token>
#include <vector>

namespace CleanerCore {

/// What resource relief asks of the system: who runs, what that takes, and the request to quit. Every call may be made
/// from any thread but the main one, for each may take a while.
class MacResourceReliefRuntime {
public:
    /// Whether this build runs in a sandbox; nothing if it cannot be told.
    using SandboxEntitlement = std::function<std::optional<bool>()>;

    /// `applications` and `desktop` must outlive this object.
    MacResourceReliefRuntime(const Platform::RunningApplications& applications,
        const Platform::DesktopApplications& desktop, SandboxEntitlement sandboxEntitlement);

    /// With what they take of the machine, for which they are watched for a third of a second. None if a stop was asked
    /// for meanwhile, or if the system does not tell who runs.
    [[nodiscard]] std::vector<ResourceReliefProcessSnapshot> runningApplicationSnapshots(
        const std::stop_token& stop) const;
    /// What runs under the candidate's process number now, with no processor figure. Whether that is still the candidate
    /// is for `ResourceReliefPolicy::identityMatches` to say.
    [[nodiscard]] std::optional<ResourceReliefProcessSnapshot> revalidatedSnapshot(
        const ResourceReliefCandidate& candidate) const;
    /// Asks the application to quit, which it may refuse. False: it is not there any more, or cannot be asked. An
    /// application of which it is not known when it was started is not asked: it could be another one by now.
    [[nodiscard]] bool requestNormalQuit(const ResourceReliefProcessSnapshot& snapshot) const;

    /// Without a sandbox it is the desktop that decides.
    [[nodiscard]] ResourceReliefCapability currentCapability() const;
    [[nodiscard]] static ResourceReliefCapability capability(std::optional<bool> sandboxEntitlementValue);

private:
    const Platform::RunningApplications& m_applications;
    const Platform::DesktopApplications& m_desktop;
    SandboxEntitlement m_sandboxEntitlement;
};

} // namespace CleanerCore
