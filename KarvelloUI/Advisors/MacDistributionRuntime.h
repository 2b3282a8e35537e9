#pragma once

#include <optional>
#include <string>

namespace KarvelloUI {

/// Whether this build is one for direct distribution, which may scan without a grant for the home folder. Nothing is
/// remembered: each call looks anew. May be called from any thread.
struct MacDistributionRuntime {
    /// Only a build that says of itself that it runs in no sandbox, and that its channel is "DeveloperID" (letter case and
    /// white space around it do not count). Whatever is not known makes it false.
    [[nodiscard]] static bool supportsDirectDistributionScans(
        std::optional<bool> appSandboxEntitlementValue, const std::optional<std::string>& distributionChannel);
    /// The same for the running program, by the facts that are installed with it.
    [[nodiscard]] static bool currentSupportsDirectDistributionScans();
};

} // namespace KarvelloUI
