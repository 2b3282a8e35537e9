#pragma once

#include "CleanerCore/Insights/StorageMapItem.h"
#include "KarvelloUI/Design/Palette.h"

#include <cstdint>

namespace KarvelloUI {

/// The colour for a share of the largest item, 0 to 1. Warm means large here, not dangerous. What is not a number is `safe`.
[[nodiscard]] Color tintOfShare(double share, const KarvelloDesign::Palette& palette);
/// The colour of an item's cell; `maxBytes` is the largest item's size. Below 1, all are `safe`.
[[nodiscard]] Color tint(
    const CleanerCore::StorageMapItem& item, std::int64_t maxBytes, const KarvelloDesign::Palette& palette);

} // namespace KarvelloUI
