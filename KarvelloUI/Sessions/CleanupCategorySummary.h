#pragma once

#include "CleanerCore/Scan/CleanupCategory.h"

#include <cstdint>

namespace KarvelloUI {

/// What a report holds of one category, which identifies the summary.
struct CleanupCategorySummary {
    CleanerCore::CleanupCategory category = CleanerCore::CleanupCategory::customFolder;
    std::int64_t bytes = 0;

    [[nodiscard]] CleanerCore::CleanupCategory id() const { return category; }

    friend bool operator==(const CleanupCategorySummary&, const CleanupCategorySummary&) = default;
};

} // namespace KarvelloUI
