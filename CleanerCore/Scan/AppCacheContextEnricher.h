#pragma once

#include "CleanerCore/Scan/AppCacheRunningApplicationIdentity.h"
#include "CleanerCore/Scan/CleanupCandidate.h"

#include <span>
#include <vector>

namespace CleanerCore::AppCacheContextEnricher {

/// The candidates in their order, those with a context told whether their application runs. Identifiers match only as
/// a whole, case and white space around them aside; of several processes with one identifier the most telling counts.
[[nodiscard]] std::vector<CleanupCandidate> enrich(
    std::vector<CleanupCandidate> candidates, std::span<const AppCacheRunningApplicationIdentity> runningApplications);

} // namespace CleanerCore::AppCacheContextEnricher
