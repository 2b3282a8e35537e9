#pragma once

#include "CleanerCore/Scan/CleanupCategory.h"

#include <cstdint>

namespace CleanerCore {

/// What a selection holds of one category, which identifies the summary.
struct CleanupPreviewCategorySummary {
    CleanupCategory category = CleanupCategory::customFolder;
    std::int64_t count = 0;
    std::int64_t bytes = 0;

    [[nodiscard]] CleanupCategory id() const { return category; }

    friend bool operator==(const CleanupPreviewCategorySummary&, const CleanupPreviewCategorySummary&) = default;
};

} // namespace CleanerCore
