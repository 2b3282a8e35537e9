#pragma once

#include "CleanerCore/Relief/ResourceReliefCandidate.h"
#include "KarvelloUI/Copy/Vocabulary/ResourceReliefMetric.h"

#include <vector>

namespace KarvelloUI {

/// Who takes the most comes first, who has no figure last. Those that tie stay in the order of `candidates`, which is the
/// policy's.
[[nodiscard]] std::vector<CleanerCore::ResourceReliefCandidate> sortedCandidates(
    std::vector<CleanerCore::ResourceReliefCandidate> candidates, ResourceReliefMetric metric);

} // namespace KarvelloUI
