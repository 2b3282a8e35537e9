#include "KarvelloUI/Advisors/MacDistributionRuntime.h"

#include "Platform/Base/Text.h"
#include "Platform/Files/PosixFileManager.h"
#include "Platform/Services/DistributionFacts.h"

namespace KarvelloUI {

bool MacDistributionRuntime::supportsDirectDistributionScans(
    std::optional<bool> appSandboxEntitlementValue, const std::optional<std::string>& distributionChannel)
{
    return appSandboxEntitlementValue == false && distributionChannel
        && Platform::Text::lowercased(Platform::Text::trimmed(*distributionChannel)) == "developerid";
}

bool MacDistributionRuntime::currentSupportsDirectDistributionScans()
{
    const auto facts = Platform::DistributionFacts::current(Platform::PosixFileManager());
    return supportsDirectDistributionScans(facts.isSandboxed, facts.channel);
}

} // namespace KarvelloUI
