#pragma once

#include "CleanerCore/Relief/ResourceReliefActionResult.h"
#include "CleanerCore/Relief/ResourceReliefCandidate.h"
#include "CleanerCore/Relief/ResourceReliefPolicy.h"
#include "KarvelloUI/Sessions/ResourceReliefProviders.h"

#include <cstdint>
#include <optional>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

namespace KarvelloUI {

/// Whose request it is: never asked itself.
struct ResourceReliefRequester {
    std::int32_t currentProcessIdentifier = 0;
    std::optional<std::string> currentBundleIdentifier = {};

    [[nodiscard]] CleanerCore::ResourceReliefPolicy policy(CleanerCore::ResourceReliefCapability capability) const
    {
        return {currentProcessIdentifier, currentBundleIdentifier, capability};
    }
};

/// Looks at each candidate again and asks those to quit that are still the same and may still be asked: one result each, in
/// their order. After a stop nothing more is asked, and what is left has no result.
[[nodiscard]] std::vector<CleanerCore::ResourceReliefActionResult> requestQuits(
    std::span<const CleanerCore::ResourceReliefCandidate> candidates, const ResourceReliefProviders& providers,
    const ResourceReliefRequester& requester, const std::stop_token& stop);

} // namespace KarvelloUI
