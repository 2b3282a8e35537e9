#pragma once

#include "CleanerCore/Insights/SystemResourceSnapshot.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Services/Environment.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace CleanerCore {

/// The lists that an insight scan makes beside its map. One that is left out is empty, and costs nothing.
struct InsightAnalyses {
    bool largeFiles = true;
    bool downloads = true;
    bool duplicates = true;
    bool securityFindings = true;
};

/// What ends an insight scan before it is complete: the report is truncated then.
enum class InsightLimit : std::uint8_t {
    /// Of a root, or of the insides of all packages.
    visits,
    /// More files are too new to judge than may be named.
    recentFiles,
    /// One of those of the search for duplicates.
    duplicates,
};

/// What a caller may decide of an insight scan, its limits apart.
struct InsightScanOptions {
    /// The folders to scan in place of the home's own; each must still pass the rules for scan roots.
    std::optional<std::vector<Platform::FileURL>> roots = {};
    /// Tells where the user has moved folders of the home.
    Platform::Environment environment = {};
    std::function<SystemResourceSnapshot()> currentSnapshot = [] { return SystemResourceSnapshot::current(); };
    InsightAnalyses analyses = {};
    /// How many processors may be kept busy; 0 for all of them. The report is the same for every value.
    unsigned jobs = 0;
    /// Told of each kind of limit that the scan met, once, on the calling thread.
    std::function<void(InsightLimit)> limitHandler = {};
};

/// Where the walk of an insight scan is.
struct InsightScanProgress {
    Platform::FileURL root;
    std::int64_t completedRoots = 0;
    std::int64_t totalRoots = 0;
    /// In all roots so far, those inside packages too.
    std::int64_t visitedItems = 0;
    /// Of files that may be duplicates, once all roots were walked.
    std::int64_t readBytes = 0;
};

} // namespace CleanerCore
