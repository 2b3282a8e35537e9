#pragma once

#include "KarvelloUI/Copy/Vocabulary/MacDashboardSection.h"
#include "KarvelloUI/Copy/Vocabulary/StorageRecommendationKind.h"

#include <string>

namespace KarvelloUI {

/// A suggestion of what to review first. It leads to a screen and does nothing else. One list has one of a kind at most.
struct StorageRecommendation {
    using Kind = StorageRecommendationKind;
    struct Action {
        MacDashboardSection destination = MacDashboardSection::cleanup;

        friend bool operator==(const Action&, const Action&) = default;
    };

    Kind kind = Kind::scanPrimer;
    std::string title;
    /// One sentence or two.
    std::string body;
    /// A short fact, mostly a size.
    std::string detail;
    std::string actionTitle;
    /// The name of a symbol.
    std::string systemImage;
    /// The higher comes first.
    int priority = 0;
    Action action;

    friend bool operator==(const StorageRecommendation&, const StorageRecommendation&) = default;
};

} // namespace KarvelloUI
