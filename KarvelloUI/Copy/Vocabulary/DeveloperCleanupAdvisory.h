#pragma once

#include "KarvelloUI/Copy/Vocabulary/DeveloperCleanupAdvisoryKind.h"

#include <string>

namespace KarvelloUI {

/// What a developer should know of a candidate before it goes to the Trash.
struct DeveloperCleanupAdvisory {
    DeveloperCleanupAdvisoryKind kind = DeveloperCleanupAdvisoryKind::xcodeDerivedData;
    std::string title;
    /// What it is.
    std::string summary;
    /// How it comes back.
    std::string regeneration;
    /// What it costs to be without it.
    std::string impact;
    /// What has to be done or known first.
    std::string prerequisite;
    std::string action;

    [[nodiscard]] DeveloperCleanupAdvisoryKind id() const { return kind; }

    friend bool operator==(const DeveloperCleanupAdvisory&, const DeveloperCleanupAdvisory&) = default;
};

} // namespace KarvelloUI
