#pragma once

#include "CleanerCore/Insights/DuplicateKeeperRecommendation.h"
#include "CleanerCore/Insights/FileInsight.h"
#include "Platform/Base/FileURL.h"

#include <span>
#include <vector>

namespace CleanerCore {

/// How good a place is for the copy to keep, told by the folders of the path: 0 is best.
[[nodiscard]] int keeperLocationRank(const Platform::FileURL& url);

/// Whether `file` is the better one to keep: by place, then the older one (no date counts as the youngest), then the
/// smaller path. A strict order.
[[nodiscard]] bool prefersKeeper(const FileInsight& file, const FileInsight& other);

/// What speaks for the keeper against the other files of its group; never empty.
[[nodiscard]] std::vector<DuplicateKeeperRecommendationReason> keeperRecommendationReasons(
    const FileInsight& keeper, std::span<const FileInsight> files);

} // namespace CleanerCore
