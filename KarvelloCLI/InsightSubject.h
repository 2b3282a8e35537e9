#pragma once

#include "KarvelloCLI/InsightsOptions.h"
#include "Platform/Base/FileURL.h"

#include <optional>
#include <vector>

namespace KarvelloCLI {

/// Which limits an insight scan met.
struct InsightCuts {
    bool visits = false;
    bool recentFiles = false;
    bool duplicates = false;
};

/// What an insight scan was asked to look at, for the words around its result.
struct InsightSubject {
    Platform::FileURL home;
    bool looksAtHome = true;
    /// The folders that the user named.
    std::vector<Platform::FileURL> folders = {};
    /// Absent: all parts.
    std::optional<InsightPart> only = {};
    CleanerCore::InsightConfiguration configuration = CleanerCore::InsightConfiguration::standard();
    InsightCuts cuts = {};
    /// No folder was there to look at.
    bool hasNothingToLookAt = false;
    /// Nor may any be looked at that was asked for, or none exists.
    bool isRefused = false;
    bool isIncomplete = false;

    [[nodiscard]] bool wants(InsightPart part) const { return !only || *only == part; }
};

} // namespace KarvelloCLI
